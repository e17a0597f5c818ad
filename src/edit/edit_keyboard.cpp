// Keys of an edit control: a table of what each does while the field is edited.
#include "edit/edit_internal.h"

#include <algorithm>

namespace {

struct KeyState {
    bool shift;
    bool ctrl; // without Alt
};

constexpr int farEnd = 32767; // the end of any text
constexpr int caretAlone = 1;

bool IsDown(int vk)
{
    return GetKeyState(vk) < 0;
}

void MoveCaret(HEditCtl* ctl, int index, const KeyState& keys)
{
    SetSelection(ctl, keys.shift ? caretAlone : 0, index, index);
}

void OnLeft(HEditCtl* ctl, const KeyState& keys)
{
    const int caret = ClampIndex(ctl->nCaret, TextLength(ctl));
    MoveCaret(ctl, keys.ctrl ? PreviousWord(FieldText(ctl), caret) : std::max(0, caret - 1), keys);
}

void OnRight(HEditCtl* ctl, const KeyState& keys)
{
    const int caret = ClampIndex(ctl->nCaret, TextLength(ctl));
    MoveCaret(ctl, keys.ctrl ? NextWord(FieldText(ctl), caret) : caret + 1, keys);
}

void OnHome(HEditCtl* ctl, const KeyState& keys)
{
    MoveCaret(ctl, 0, keys);
}

void OnEnd(HEditCtl* ctl, const KeyState& keys)
{
    MoveCaret(ctl, farEnd, keys);
}

void DeleteByKey(HEditCtl* ctl, const char*)
{
    DeleteChar(ctl, true);
}

void OnDelete(HEditCtl* ctl, const KeyState& keys)
{
    if (keys.shift) {
        SendMessageA(ctl->hWnd, WM_CUT, 0, 0);
    } else if (!HasStyle(ctl, HES_READONLY)) {
        const EntryScope entry(ctl, DeleteByKey, nullptr);
        DeleteByKey(ctl, nullptr);
    }
}

void OnInsert(HEditCtl* ctl, const KeyState& keys)
{
    if (keys.shift) {
        SendMessageA(ctl->hWnd, WM_PASTE, 0, 0);
    } else if (keys.ctrl) {
        SendMessageA(ctl->hWnd, WM_COPY, 0, 0);
    } else {
        SetOverwriteMode(!GetOverwriteMode());
        RebuildCaret(ctl);
    }
}

// The character that comes with the key must not replace what was copied.
void OnC(HEditCtl* ctl, const KeyState& keys)
{
    if (keys.ctrl) {
        SetFlag(ctl, HEF_SKIPCHAR, true);
        SendMessageA(ctl->hWnd, WM_COPY, 0, 0);
    }
}

void OnV(HEditCtl* ctl, const KeyState& keys)
{
    if (keys.ctrl) {
        SendMessageA(ctl->hWnd, WM_PASTE, 0, 0);
    }
}

void OnX(HEditCtl* ctl, const KeyState& keys)
{
    if (keys.ctrl) {
        SendMessageA(ctl->hWnd, WM_CUT, 0, 0);
    }
}

void RestoreText(HEditCtl* ctl)
{
    RefreshText(ctl, IsFocused(ctl));
    SetSelection(ctl, 0, 0, -1);
}

void OnZ(HEditCtl* ctl, const KeyState& keys)
{
    if (keys.ctrl) {
        RestoreText(ctl);
    }
}

void OnTab(HEditCtl* ctl, const KeyState& keys)
{
    const HWND hwnd = ctl->hWnd;
    SendMessageA(GetParent(hwnd), WM_NEXTDLGCTL, keys.shift, 0);
    if (IsWindow(hwnd)) {
        Tell(ctl, keys.shift ? HEN_BACKTAB : HEN_TAB);
    }
}

void OnReturn(HEditCtl* ctl, const KeyState&)
{
    Tell(ctl, HEN_RETURN);
}

void OnEscape(HEditCtl* ctl, const KeyState&)
{
    Tell(ctl, HEN_ESCAPE);
}

void OnF1(HEditCtl* ctl, const KeyState&)
{
    if (Tell(ctl, HEN_HELP) != Told::Gone) {
        Tell(ctl, HEN_ESCAPE);
    }
}

// The value as it will show, as long as the key is down.
void OnF2(HEditCtl* ctl, const KeyState&)
{
    const HWND hwnd = ctl->hWnd;
    HideCaret(hwnd);
    CommitText(ctl, FieldText(ctl));
    if (IsWindow(hwnd)) {
        BlockOf(ctl)->typedScroll = ctl->nScroll;
        RefreshText(ctl, false);
    }
}

// Where the edit form was scrolled to when the key went down.
void ShowTypedAgain(HEditCtl* ctl)
{
    RefreshText(ctl, IsFocused(ctl));
    if (!HasFlag(ctl, HEF_DISPLAY)) {
        UpdateScroll(ctl, static_cast<int>(BlockOf(ctl)->typedScroll));
    }
}

struct KeyEntry {
    WPARAM vk;
    void (*step)(HEditCtl* ctl, const KeyState& keys);
};

constexpr KeyEntry keyTable[] = {
    { VK_LEFT, OnLeft },     { VK_UP, OnLeft },         { VK_RIGHT, OnRight },   { VK_DOWN, OnRight },
    { VK_HOME, OnHome },     { VK_END, OnEnd },         { VK_DELETE, OnDelete }, { VK_INSERT, OnInsert },
    { 'C', OnC },            { 'V', OnV },              { 'X', OnX },            { 'Z', OnZ },
    { VK_TAB, OnTab },       { VK_RETURN, OnReturn },   { VK_ESCAPE, OnEscape }, { VK_F1, OnF1 },
    { VK_F2, OnF2 },
};

void RunKey(HEditCtl* ctl, WPARAM vk)
{
    const KeyState keys = { IsDown(VK_SHIFT), IsDown(VK_CONTROL) && !IsDown(VK_MENU) };
    for (const KeyEntry& entry : keyTable) {
        if (entry.vk == vk) {
            entry.step(ctl, keys);
            return;
        }
    }
}

// The default, for a window that the key's step has left alive.
LRESULT AskDefaultIfAlive(const MsgArgs& args)
{
    return IsWindow(args.hwnd) ? AskDefault(args) : 0;
}

} // namespace

LRESULT OnKeyDown(HEditCtl* ctl, const MsgArgs& args)
{
    if (!HasFlag(ctl, HEF_DISPLAY) && !HasStyle(ctl, HES_STATIC)) {
        RunKey(ctl, args.wParam);
    }
    return AskDefaultIfAlive(args);
}

LRESULT OnKeyUp(HEditCtl* ctl, const MsgArgs& args)
{
    if (args.wParam == VK_F2 && HasFlag(ctl, HEF_DISPLAY)) {
        ShowTypedAgain(ctl);
        if (!HasStyle(ctl, HES_STATIC)) {
            ShowCaret(ctl->hWnd);
            SetSelection(ctl, 0, ctl->nAnchor, ctl->nCaret);
        }
    }
    return AskDefaultIfAlive(args);
}

LRESULT OnSysKeyDown(HEditCtl* ctl, const MsgArgs& args)
{
    if (args.wParam == VK_BACK && !HasStyle(ctl, HES_STATIC)) {
        RestoreText(ctl);
    }
    return AskDefaultIfAlive(args);
}
