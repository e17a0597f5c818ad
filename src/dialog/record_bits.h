// The bits of a control's record, which every control keeps in two fields of the same names.
#pragma once

#include <windows.h>

template <typename Ctl>
bool HasStyle(const Ctl* ctl, DWORD bits)
{
    return (ctl->dwStyle & bits) != 0;
}
template <typename Ctl>
bool HasFlag(const Ctl* ctl, WORD bits)
{
    return (ctl->wFlags & bits) != 0;
}
template <typename Ctl>
void SetFlag(Ctl* ctl, WORD bits, bool on)
{
    ctl->wFlags = static_cast<WORD>(on ? ctl->wFlags | bits : ctl->wFlags & ~bits);
}
