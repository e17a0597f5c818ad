// The own messages of a button, those of the platform's buttons that it answers, and their tables.
#include "button/button_internal.h"
#include "foundation/memory.h"
#include "foundation/startup.h"
#include "typed/masks.h"

namespace {

int IndexOf(const MsgArgs& args)
{
    return static_cast<int>(args.wParam);
}

template <typename Handle>
LRESULT ResultOf(Handle handle)
{
    return reinterpret_cast<LRESULT>(handle);
}

LRESULT Repainted(HButtCtl* ctl, LRESULT result)
{
    HBRepaint(ctl);
    return result;
}

// The platform's messages

LRESULT OnGetCheck(HButtCtl* ctl, const MsgArgs&)
{
    return ValueOf(ctl);
}

LRESULT OnSetCheck(HButtCtl* ctl, const MsgArgs& args)
{
    HBSetState(ctl, IndexOf(args), LOWORD(args.lParam) != 0);
    return 0;
}

LRESULT OnGetState(HButtCtl* ctl, const MsgArgs&)
{
    return HasFlag(ctl, HBF_PRESSED);
}

LRESULT OnSetState(HButtCtl* ctl, const MsgArgs& args)
{
    if (args.wParam) {
        if (HBPress(ctl)) {
            HBClicked(ctl, false);
        }
        return 1;
    }
    HBSetPressed(ctl, false);
    UpdateWindow(args.hwnd);
    return 1;
}

LRESULT OnSetStyle(HButtCtl* ctl, const MsgArgs& args)
{
    if (HasStyle(ctl, HBS_NOFOCUS)) {
        return 0;
    }
    ctl->dwStyle = (ctl->dwStyle & ~DWORD{ HBS_KINDMASK }) | (static_cast<DWORD>(args.wParam) & HBS_KINDMASK);
    if (args.lParam) {
        HBRepaint(ctl);
    }
    return 0;
}

LRESULT Click(HButtCtl* ctl, bool notify)
{
    if (HBPress(ctl)) {
        HBClicked(ctl, notify);
    }
    return 1;
}

LRESULT OnSilentClick(HButtCtl* ctl, const MsgArgs&)
{
    return Click(ctl, false);
}

LRESULT OnClick(HButtCtl* ctl, const MsgArgs&)
{
    return Click(ctl, true);
}

// Places, colours, counts

LRESULT OnGetPicPos(HButtCtl* ctl, const MsgArgs&)
{
    return ctl->bPicPos;
}

LRESULT OnGetRelPos(HButtCtl* ctl, const MsgArgs&)
{
    return ctl->bRelPos;
}

LRESULT OnGetTextPos(HButtCtl* ctl, const MsgArgs&)
{
    return ctl->bTextPos;
}

LRESULT SetPlace(HButtCtl* ctl, const MsgArgs& args, BYTE HButtCtl::* place)
{
    if (args.wParam > lastPlace) {
        return 0;
    }
    ctl->*place = static_cast<BYTE>(args.wParam);
    return Repainted(ctl, 1);
}

LRESULT OnSetPicPos(HButtCtl* ctl, const MsgArgs& args)
{
    return SetPlace(ctl, args, &HButtCtl::bPicPos);
}

LRESULT OnSetRelPos(HButtCtl* ctl, const MsgArgs& args)
{
    return SetPlace(ctl, args, &HButtCtl::bRelPos);
}

LRESULT OnSetTextPos(HButtCtl* ctl, const MsgArgs& args)
{
    return SetPlace(ctl, args, &HButtCtl::bTextPos);
}

LRESULT OnGetKind(HButtCtl* ctl, const MsgArgs&)
{
    return static_cast<LRESULT>(KindOf(ctl));
}

LRESULT OnGetBkBrush(HButtCtl* ctl, const MsgArgs&)
{
    return ResultOf(+ctl->hBkBrush);
}

LRESULT OnSetBkBrush(HButtCtl* ctl, const MsgArgs& args)
{
    const HBRUSH old = ctl->hBkBrush;
    ctl->hBkBrush = reinterpret_cast<HBRUSH>(args.wParam);
    return Repainted(ctl, ResultOf(old));
}

LRESULT OnGetTextColor(HButtCtl* ctl, const MsgArgs&)
{
    return static_cast<LRESULT>(ctl->crText);
}

LRESULT OnSetTextColor(HButtCtl* ctl, const MsgArgs& args)
{
    ctl->crText = static_cast<COLORREF>(args.lParam);
    return Repainted(ctl, 1);
}

LRESULT OnGetStateCount(HButtCtl* ctl, const MsgArgs&)
{
    return ctl->cStates;
}

LRESULT OnIsGroupEnd(HButtCtl*, const MsgArgs& args)
{
    const HWND next = GetWindow(args.hwnd, GW_HWNDNEXT);
    if (!next || GetNextDlgGroupItem(GetParent(args.hwnd), args.hwnd, FALSE) != next) {
        return 1;
    }
    return (SendMessageA(next, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) ? 0 : 1;
}

// Pictures

const Pic* PicAt(const HButtCtl* ctl, WPARAM index)
{
    return index < ctl->cPics ? &ctl->pPics[index] : nullptr;
}

LRESULT OnGetPic(HButtCtl* ctl, const MsgArgs& args)
{
    const Pic* const pic = PicAt(ctl, args.wParam);
    return pic ? ResultOf(pic->hImage) : 0;
}

LRESULT OnGetPalette(HButtCtl* ctl, const MsgArgs& args)
{
    const Pic* const pic = PicAt(ctl, args.wParam);
    return pic ? ResultOf(pic->hPalette) : 0;
}

LRESULT OnGetPicCount(HButtCtl* ctl, const MsgArgs&)
{
    return ctl->cPics;
}

LRESULT OnSetPicCount(HButtCtl* ctl, const MsgArgs& args)
{
    return HBSetPicCount(ctl, IndexOf(args));
}

LRESULT OnGetPicKey(HButtCtl* ctl, const MsgArgs&)
{
    return static_cast<LRESULT>(ctl->crPicKey);
}

LRESULT OnSetPicKey(HButtCtl* ctl, const MsgArgs& args)
{
    ctl->crPicKey = static_cast<COLORREF>(args.lParam);
    return Repainted(ctl, 1);
}

// Checks and buttons of three states have pictures of the library's in their first places.
void LoadDefaultPic(const HButtCtl* ctl, Pic* pic, int index)
{
    constexpr int lastDefault = 5;
    *pic = {};
    const DWORD kind = KindOf(ctl);
    if ((kind == HBS_CHECK || kind == HBS_THREESTATE) && index <= lastDefault) {
        const char name[] = { 'H', 'C', static_cast<char>('1' + index), 0 };
        LoadPic(pic, hInstance, name);
    }
}

LRESULT OnSetPic(HButtCtl* ctl, const MsgArgs& args)
{
    const int  index = LOWORD(args.wParam);
    const WORD kind = HIWORD(args.wParam);
    if (index >= ctl->cPics) {
        return 0;
    }
    Pic* const   pic = &ctl->pPics[index];
    const HANDLE old = pic->hImage;
    const bool   wasCached = FreePic(pic, 0) != 0;
    if (args.lParam) {
        pic->hImage = reinterpret_cast<HANDLE>(args.lParam);
        pic->hPalette = nullptr; // it went with the picture that it belonged to
        pic->nKind = kind ? kind : pic->nKind;
    } else {
        LoadDefaultPic(ctl, pic, index);
    }
    return Repainted(ctl, wasCached ? 0 : ResultOf(old));
}

// Sounds

LRESULT OnGetSound(HButtCtl* ctl, const MsgArgs& args)
{
    if (ctl->hSound) {
        return ResultOf(+ctl->hSound);
    }
    if (!ctl->pszSound) {
        return AskDefault(args);
    }
    return _fstrnzcpy(reinterpret_cast<char*>(args.lParam), ctl->pszSound, IndexOf(args));
}

LRESULT ReplaceSound(HButtCtl* ctl, HGLOBAL sound)
{
    const HGLOBAL old = ctl->hSound;
    ctl->hSound = sound;
    SetFlag(ctl, HBF_SOUNDLOADED, sound && HasStyle(ctl, HBS_ASYNCSOUND));
    return ResultOf(old);
}

LRESULT OnSetSound(HButtCtl* ctl, const MsgArgs& args)
{
    if (args.wParam || !args.lParam) {
        return ReplaceSound(ctl, reinterpret_cast<HGLOBAL>(args.wParam));
    }
    return HBSetSoundFile(ctl, HBTakeSoundPrefix(ctl, reinterpret_cast<const char*>(args.lParam)));
}

// The value

LRESULT OnGetValue(HButtCtl* ctl, const MsgArgs& args)
{
    constexpr LRESULT failed = -1;
    void* const out = reinterpret_cast<void*>(args.lParam);
    if (!out) {
        return failed;
    }
    if (HasFlag(ctl, CF_NULL)) {
        return 0;
    }
    return SetBoolValue(ctl->chLinkType, out, ValueOf(ctl)) ? GetDataSize('b', ctl->chLinkType) : failed;
}

LRESULT OnSetValue(HButtCtl* ctl, const MsgArgs& args)
{
    HBReadValue(ctl, reinterpret_cast<const void*>(args.lParam));
    return 1;
}

LRESULT OnGetLink(HButtCtl* ctl, const MsgArgs&)
{
    return ResultOf(+ctl->pLink);
}

LRESULT OnSetLink(HButtCtl* ctl, const MsgArgs& args)
{
    ctl->pLink = reinterpret_cast<void*>(args.lParam);
    return OnSetValue(ctl, args);
}

LRESULT OnGetValueSize(HButtCtl* ctl, const MsgArgs&)
{
    return GetDataSize('b', ctl->chLinkType);
}

// clang-format off
constexpr MessageEntry<ButtonHandler> platformEntries[] = {
    { BM_GETCHECK, OnGetCheck },
    { BM_SETCHECK, OnSetCheck },
    { BM_GETSTATE, OnGetState },
    { BM_SETSTATE, OnSetState },
    { BM_SETSTYLE, OnSetStyle },
    { BM_CLICK,    OnSilentClick },
};

constexpr MessageEntry<ButtonHandler> entries[] = {
    { HBM_GETPICPOS,     OnGetPicPos },
    { HBM_GETPIC,        OnGetPic },
    { HBM_GETPICCOUNT,   OnGetPicCount },
    { HBM_GETPICKEY,     OnGetPicKey },
    { HBM_GETRELPOS,     OnGetRelPos },
    { HBM_GETSOUND,      OnGetSound },
    { HBM_GETTEXTPOS,    OnGetTextPos },
    { HBM_GETKIND,       OnGetKind },
    { HBM_SETPICPOS,     OnSetPicPos },
    { HBM_SETPIC,        OnSetPic },
    { HBM_SETPICKEY,     OnSetPicKey },
    { HBM_SETRELPOS,     OnSetRelPos },
    { HBM_SETSOUND,      OnSetSound },
    { HBM_SETTEXTPOS,    OnSetTextPos },
    { HBM_GETVALUE,      OnGetValue },
    { HBM_SETVALUE,      OnSetValue },
    { HBM_GETLINK,       OnGetLink },
    { HBM_SETLINK,       OnSetLink },
    { HBM_GETVALUESIZE,  OnGetValueSize },
    { HBM_GETSTATECOUNT, OnGetStateCount },
    { HBM_ISGROUPEND,    OnIsGroupEnd },
    { HBM_SETPICCOUNT,   OnSetPicCount },
    { HBM_GETPALETTE,    OnGetPalette },
    { HBM_CLICK,         OnClick },
    { HBM_GETBKBRUSH,    OnGetBkBrush },
    { HBM_SETBKBRUSH,    OnSetBkBrush },
    { HBM_GETTEXTCOLOR,  OnGetTextColor },
    { HBM_SETTEXTCOLOR,  OnSetTextColor },
};
// clang-format on

constexpr auto platformHandlers = ByNumber<BM_GETCHECK, BM_CLICK>(platformEntries);
constexpr auto handlers = ByNumber<HBM_GETPICPOS, HBM_SETTEXTCOLOR>(entries);

} // namespace

ButtonHandler FindButtonHandler(UINT message)
{
    const ButtonHandler handler = FindHandler<HBM_GETPICPOS>(handlers, message);
    return handler ? handler : FindHandler<BM_GETCHECK>(platformHandlers, message);
}
