// A record of the edit control without a window, for tests of its arithmetic.
#pragma once

#include "edit/edit_internal.h"

#include <string>

struct EditRecord {
    HEditCtl ctl = {};
    bool     ok;
    explicit EditRecord(const char* text) : ok(ReadWinText(&ctl, text)) {}
    ~EditRecord() { FreeBuffers(&ctl); }
    EditRecord(const EditRecord&) = delete;
    EditRecord& operator=(const EditRecord&) = delete;

    std::string Format() const { return ctl.pszFormat ? ctl.pszFormat : "(null)"; }
    const char* UsedFormat() const { return FormatOf(&ctl); }
    std::string Text() const { return static_cast<const char*>(ctl.pData); }
    double      Number() const { return NumToDouble(ctl.pData, ctl.cType); }
};
