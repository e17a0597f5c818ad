// Own messages of an edit control: a handler each, found by number.
#include "edit/edit_internal.h"

#include <algorithm>

namespace {

constexpr int lowBound = 1;
constexpr int highBound = 2;

constexpr LRESULT nullArgument = -2;
constexpr LRESULT badCharacter = -3;

char* TextArg(const MsgArgs& args)
{
    return reinterpret_cast<char*>(args.lParam);
}
void* DataArg(const MsgArgs& args)
{
    return reinterpret_cast<void*>(args.lParam);
}
int SizeArg(const MsgArgs& args)
{
    return static_cast<int>(args.wParam);
}

// Value

LRESULT OnGetData(HEditCtl* ctl, const MsgArgs& args)
{
    if (!CommitIfFocused(ctl) || HasFlag(ctl, CF_NULL) || !args.lParam || !ctl->pData) {
        return 0;
    }
    if (IsStringType(ctl)) {
        return _fstrnzcpy(TextArg(args), static_cast<const char*>(ctl->pData), SizeArg(args));
    }
    CopyValue(ctl, DataArg(args), ctl->pData);
    return ctl->cbData;
}

LRESULT OnSetData(HEditCtl* ctl, const MsgArgs& args)
{
    return HEditSetData(ctl, DataArg(args));
}

LRESULT OnCommit(HEditCtl* ctl, const MsgArgs& args)
{
    const HWND hwnd = ctl->hWnd;
    const int status = args.wParam ? CommitText(ctl, FieldText(ctl)) : 0;
    const bool keepsText = args.wParam && !args.lParam;
    if (!keepsText && IsWindow(hwnd)) {
        RefreshText(ctl, IsFocused(ctl));
    }
    return status;
}

LRESULT OnLinkData(HEditCtl* ctl, const MsgArgs& args)
{
    ctl->pLinked = DataArg(args);
    if (args.wParam || !ctl->pLinked) {
        HEditSetData(ctl, DataArg(args));
    } else if (ctl->pData) {
        CopyValue(ctl, ctl->pLinked, ctl->pData);
    }
    return 1;
}

LRESULT OnGetValidator(HEditCtl* ctl, const MsgArgs&)
{
    return reinterpret_cast<LRESULT>(ctl->pfnValidate);
}

LRESULT OnSetValidator(HEditCtl* ctl, const MsgArgs& args)
{
    ctl->pfnValidate = reinterpret_cast<HEVALIDATE>(args.lParam);
    return 1;
}

LRESULT OnValidate(HEditCtl* ctl, const MsgArgs& args)
{
    return ctl->pfnValidate ? ctl->pfnValidate(args.hwnd, static_cast<int>(ctl->wId), ctl->pData) : -1;
}

LRESULT OnGetMax(HEditCtl* ctl, const MsgArgs& args)
{
    return ReadBound(ctl, highBound, DataArg(args));
}

LRESULT OnGetMin(HEditCtl* ctl, const MsgArgs& args)
{
    return ReadBound(ctl, lowBound, DataArg(args));
}

// Text that is still being typed stays as it is: its bounds are looked at when it is committed.
LRESULT ApplyBound(HEditCtl* ctl, int which, const MsgArgs& args)
{
    SetBound(ctl, which, DataArg(args));
    if (!HasFlag(ctl, HEF_DIRTY)) {
        RefreshText(ctl, IsFocused(ctl));
    }
    return 0;
}

LRESULT OnSetMax(HEditCtl* ctl, const MsgArgs& args)
{
    return ApplyBound(ctl, highBound, args);
}

LRESULT OnSetMin(HEditCtl* ctl, const MsgArgs& args)
{
    return ApplyBound(ctl, lowBound, args);
}

LRESULT OnGetClass(HEditCtl* ctl, const MsgArgs&)
{
    return ctl->cClass;
}

LRESULT OnGetDataSize(HEditCtl* ctl, const MsgArgs&)
{
    return ctl->cbData;
}

LRESULT OnGetType(HEditCtl* ctl, const MsgArgs&)
{
    return ctl->cType;
}

LRESULT OnGetFormat(HEditCtl* ctl, const MsgArgs& args)
{
    return args.lParam ? _fstrnzcpy(TextArg(args), ctl->pszFormat, SizeArg(args)) : 0;
}

LRESULT OnSetFormat(HEditCtl* ctl, const MsgArgs& args)
{
    return SetFormat(ctl, TextArg(args), args.wParam != 0);
}

LRESULT OnGetTextPtr(HEditCtl* ctl, const MsgArgs&)
{
    return reinterpret_cast<LRESULT>(ctl->pszText);
}

LRESULT OnGetFormatPtr(HEditCtl* ctl, const MsgArgs&)
{
    return reinterpret_cast<LRESULT>(ctl->pszFormat);
}

// Text area, scrolling, caret

LRESULT OnGetRect(HEditCtl* ctl, const MsgArgs& args)
{
    if (!args.lParam) {
        return nullArgument;
    }
    *reinterpret_cast<RECT*>(args.lParam) = ctl->rcText;
    return 1;
}

RECT DefaultTextRect(const HEditCtl* ctl)
{
    constexpr LONG frameMargin = 3;
    RECT rect = {};
    GetClientRect(ctl->hWnd, &rect);
    if (HasStyle(ctl, HES_FRAME)) {
        rect.right -= frameMargin;
        rect.left = frameMargin;
    }
    return rect;
}

// The editor of a grid gets its size with each step of the current cell, and a context of the whole screen is dear.
int CharWidth(const HEditCtl* ctl)
{
    const WindowDC dc(ctl->hWnd);
    return std::max<int>(1, LOWORD(HFontUnits(dc.hdc, ctl->hFont)));
}

LRESULT OnSetRect(HEditCtl* ctl, const MsgArgs& args)
{
    const RECT rect = args.lParam ? *reinterpret_cast<const RECT*>(args.lParam) : DefaultTextRect(ctl);
    const int charWidth = CharWidth(ctl);
    ctl->rcText = rect;
    ctl->cPageChars = std::max<LONG>(1, (rect.right - rect.left) / charWidth);
    if (args.wParam) {
        RefreshText(ctl, IsFocused(ctl));
    }
    return 1;
}

LRESULT OnGetLimit(HEditCtl* ctl, const MsgArgs&)
{
    return ctl->cchMax;
}

LRESULT OnGetOverwrite(HEditCtl*, const MsgArgs&)
{
    return GetOverwriteMode();
}

LRESULT OnSetOverwrite(HEditCtl* ctl, const MsgArgs& args)
{
    SetOverwriteMode(SizeArg(args));
    RebuildCaret(ctl);
    return 1;
}

LRESULT OnGetPasswordChar(HEditCtl* ctl, const MsgArgs&)
{
    return static_cast<BYTE>(ctl->chPassword);
}

LRESULT OnSetPasswordChar(HEditCtl* ctl, const MsgArgs& args)
{
    const char ch = static_cast<char>(args.wParam);
    if (!ch) {
        return badCharacter;
    }
    ctl->chPassword = ch;
    return 1;
}

LRESULT OnGetScroll(HEditCtl* ctl, const MsgArgs&)
{
    return ctl->nScroll;
}

LRESULT OnSetScroll(HEditCtl* ctl, const MsgArgs& args)
{
    const int delta = SizeArg(args) - static_cast<int>(ctl->nScroll);
    ScrollBy(ctl, HasFlag(ctl, HEF_RIGHT) ? -delta : delta);
    return 1;
}

LRESULT OnGetSelText(HEditCtl* ctl, const MsgArgs& args)
{
    const TextRange selection = SelectionOf(ctl);
    const int whole = selection.hi - selection.lo + 1;
    if (args.lParam) {
        const int size = SizeArg(args);
        _fstrnzcpy(TextArg(args), FieldText(ctl) + selection.lo, size < 0 ? whole : std::min(size, whole));
    }
    return 1;
}

// Look and behaviour

LRESULT OnRefocus(HEditCtl*, const MsgArgs& args)
{
    const HWND hwnd = args.hwnd;
    SetFocus(nullptr);
    if (IsWindow(hwnd)) {
        SetFocus(hwnd);
    }
    return 1;
}

LRESULT OnSetReadOnly(HEditCtl* ctl, const MsgArgs& args)
{
    const int level = SizeArg(args);
    ctl->dwStyle &= ~static_cast<DWORD>(HES_READONLY | HES_STATIC);
    if (level > 0) {
        ctl->dwStyle |= level == 1 ? HES_READONLY : HES_READONLY | HES_STATIC;
    }
    return 1;
}

LRESULT OnGetBrush(HEditCtl* ctl, const MsgArgs&)
{
    return reinterpret_cast<LRESULT>(ctl->hBrush);
}

LRESULT OnSetBrush(HEditCtl* ctl, const MsgArgs& args)
{
    const HBRUSH old = ctl->hBrush;
    ctl->hBrush = reinterpret_cast<HBRUSH>(args.wParam);
    return reinterpret_cast<LRESULT>(old);
}

LRESULT OnGetFocusBrush(HEditCtl* ctl, const MsgArgs&)
{
    return reinterpret_cast<LRESULT>(ctl->hBrushFocus);
}

LRESULT OnSetFocusBrush(HEditCtl* ctl, const MsgArgs& args)
{
    const HBRUSH old = ctl->hBrushFocus;
    ctl->hBrushFocus = reinterpret_cast<HBRUSH>(args.wParam);
    return reinterpret_cast<LRESULT>(old);
}

LRESULT OnGetColor(HEditCtl* ctl, const MsgArgs& args)
{
    return static_cast<LRESULT>(args.wParam ? ctl->clrNegative : ctl->clrText);
}

LRESULT OnSetColor(HEditCtl* ctl, const MsgArgs& args)
{
    const COLORREF color = static_cast<COLORREF>(args.lParam);
    if (args.wParam) {
        ctl->clrNegative = color;
    } else {
        ctl->clrText = color;
    }
    InvalidateRect(ctl->hWnd, nullptr, FALSE);
    return 1;
}

LRESULT OnGetFlags(HEditCtl* ctl, const MsgArgs&)
{
    return ctl->wFlags & static_cast<WORD>(~HEF_COMMITTING);
}

LRESULT OnSetFlags(HEditCtl* ctl, const MsgArgs& args)
{
    SetFlag(ctl, static_cast<WORD>(args.wParam & ~HEF_COMMITTING), args.lParam != 0);
    return 1;
}

// Answered by the frame, once what was typed counts.
LRESULT OnGetChanged(HEditCtl* ctl, const MsgArgs& args)
{
    return CommitBeforeAsking(ctl) ? AskDefault(args) : 0;
}

constexpr MessageEntry<EditHandler> editMessages[] = {
    { HEM_GETDATA, OnGetData },
    { HEM_SETDATA, OnSetData },
    { HEM_GETRECT, OnGetRect },
    { HEM_SETRECT, OnSetRect },
    { HEM_GETLIMIT, OnGetLimit },
    { HEM_GETOVERWRITE, OnGetOverwrite },
    { HEM_SETOVERWRITE, OnSetOverwrite },
    { HEM_GETPASSWORDCHAR, OnGetPasswordChar },
    { HEM_SETPASSWORDCHAR, OnSetPasswordChar },
    { HEM_GETSCROLL, OnGetScroll },
    { HEM_SETSCROLL, OnSetScroll },
    { HEM_COMMIT, OnCommit },
    { HEM_GETVALIDATOR, OnGetValidator },
    { HEM_SETVALIDATOR, OnSetValidator },
    { HEM_VALIDATE, OnValidate },
    { HEM_GETSELTEXT, OnGetSelText },
    { HEM_GETMAX, OnGetMax },
    { HEM_SETMAX, OnSetMax },
    { HEM_GETMIN, OnGetMin },
    { HEM_SETMIN, OnSetMin },
    { HEM_REFOCUS, OnRefocus },
    { HEM_SETREADONLY, OnSetReadOnly },
    { HEM_GETBRUSH, OnGetBrush },
    { HEM_SETBRUSH, OnSetBrush },
    { HEM_GETFORMAT, OnGetFormat },
    { HEM_SETFORMAT, OnSetFormat },
    { HEM_GETFOCUSBRUSH, OnGetFocusBrush },
    { HEM_SETFOCUSBRUSH, OnSetFocusBrush },
    { HEM_GETCOLOR, OnGetColor },
    { HEM_SETCOLOR, OnSetColor },
    { HEM_GETCLASS, OnGetClass },
    { HEM_GETDATASIZE, OnGetDataSize },
    { HEM_GETTYPE, OnGetType },
    { HEM_LINKDATA, OnLinkData },
    { WWM_GETCHANGED, OnGetChanged },
    { HEM_GETFLAGS, OnGetFlags },
    { HEM_SETFLAGS, OnSetFlags },
    { HEM_GETTEXTPTR, OnGetTextPtr },
    { HEM_GETFORMATPTR, OnGetFormatPtr },
};
constexpr auto editHandlers = ByNumber<HEM_GETDATA, HEM_GETFORMATPTR>(editMessages);

} // namespace

EditHandler FindEditHandler(UINT message)
{
    return FindHandler<HEM_GETDATA>(editHandlers, message);
}

bool CommitBeforeAsking(HEditCtl* ctl)
{
    const bool pending = HasFlag(ctl, HEF_DIRTY) && !HasFlag(ctl, CF_CHANGED);
    return pending ? CommitIfFocused(ctl) : true;
}
