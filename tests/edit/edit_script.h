// Scripts of typed keys in real fields, and tables of them: the text with the caret in it, and the value, after each
// key.
#pragma once

#include "edit_window.h"
#include "typed/entry_script.h"
#include "typed/intl.h"

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

// A key is one character, or {Home}, {End}, {Left}, {Right}, {Del}, {Back}, {Ins}, {All}, which selects the text, or
// {Leave}, which takes the focus away and gives it back. In texts and values, @Y and @M stand for the current year and
// month, @m for the month without a zero in front. A value that is null reads "null".
struct ScriptStep {
    const char* key;
    const char* shown; // the caret is "|"
    const char* value;
};

struct TypedScript {
    const char*             winText;
    DWORD                   style;
    const char*             start; // a text to begin with; null for the value that the field comes with
    std::vector<ScriptStep> steps;
};
inline constexpr char startNull[] = "null"; // the start at the null value

struct NamedKey {
    const char* name;
    UINT        message;
    WPARAM      key;
};
inline constexpr NamedKey namedKeys[] = {
    { "{Home}", WM_KEYDOWN, VK_HOME },   { "{End}", WM_KEYDOWN, VK_END },    { "{Left}", WM_KEYDOWN, VK_LEFT },
    { "{Right}", WM_KEYDOWN, VK_RIGHT }, { "{Del}", WM_KEYDOWN, VK_DELETE }, { "{Back}", WM_CHAR, VK_BACK },
    { "{Ins}", WM_KEYDOWN, VK_INSERT },
};

// Known separators and default formats; the start values come back afterwards.
class EditScript : public EditWindow {
protected:
    EditScript()
    {
        SetDecimalSep('.');
        SetThousandsSep(',');
        SetDateSep('.');
        SetTimeSep(':');
        SetDefDateFormat("d/m/yyyy");
        SetDefTimeFormat("h:mm:ss");
    }
    ~EditScript() override { GetIntlSettings(); }

    void Press(const char* key) const
    {
        if (std::strcmp(key, "{All}") == 0) {
            Send(EM_SETSEL, 0, -1);
            return;
        }
        if (std::strcmp(key, "{Leave}") == 0) {
            Blur();
            Focus();
            return;
        }
        for (const NamedKey& named : namedKeys) {
            if (std::strcmp(key, named.name) == 0) {
                Send(named.message, named.key);
                return;
            }
        }
        ASSERT_EQ(1u, std::strlen(key)) << key;
        Send(WM_CHAR, static_cast<BYTE>(*key));
    }

    std::string Shown() const
    {
        std::string text = Text();
        const int   caret = Ctl()->nCaret;
        return caret < 0 || caret > static_cast<int>(text.size()) ? "caret out of range"
                                                                  : text.insert(static_cast<size_t>(caret), 1, '|');
    }

    // The field keeps its text and its caret while it stores it.
    std::string Stored() const
    {
        char value[512] = {};
        Send(HEM_GETDATA, sizeof value, AsParam(value));
        if (Send(WWM_ISNULL)) {
            return "null";
        }
        const char dataClass = Ctl()->cClass;
        if (dataClass == 'n' || dataClass == 'c' || dataClass == 'z') {
            char text[32];
            std::snprintf(text, sizeof text, "%.10g", NumToDouble(value, Ctl()->cType) + 0.0);
            return text;
        }
        const std::string text = StoredText(dataClass, Ctl()->cType, value);
        const size_t      blank = text.find(' ');
        return dataClass == 'd' ? text.substr(0, blank) : dataClass == 't' ? text.substr(blank + 1) : text;
    }

    void Run(const TypedScript& script)
    {
        edit = nullptr;
        Create(script.winText, script.style | HES_AUTOHSCROLL, 300);
        if (script.start == startNull) {
            Send(HEM_SETDATA, 0, 0);
        } else if (script.start) {
            SendText(WM_SETTEXT, 0, script.start);
        }
        Focus();
        std::string keys;
        for (const ScriptStep& step : script.steps) {
            keys += step.key;
            Press(step.key);
            EXPECT_EQ(Filled(step.shown), Shown()) << script.winText << " by " << keys;
            EXPECT_EQ(Filled(step.value), Stored()) << script.winText << " by " << keys;
        }
        DestroyWindow(edit);
    }

    void RunAll(const std::vector<TypedScript>& scripts)
    {
        for (const TypedScript& script : scripts) {
            Run(script);
        }
    }

private:
    static std::string Filled(const std::string& value)
    {
        SYSTEMTIME now;
        GetLocalTime(&now);
        std::string text;
        for (size_t i = 0; i < value.size(); ++i) {
            if (value[i] != '@') {
                text += value[i];
                continue;
            }
            char       number[8];
            const char letter = value[++i];
            std::snprintf(number, sizeof number, letter == 'm' ? "%d" : "%02d", letter == 'Y' ? now.wYear : now.wMonth);
            text += number;
        }
        return text;
    }
};
