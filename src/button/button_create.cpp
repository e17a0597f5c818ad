// How a button's record begins and ends, with the pictures of the null value that all buttons share.
#include "button/button_internal.h"
#include "foundation/memory.h"
#include "foundation/startup.h"

#include <cstring>

NullPictures gNullPictures;

namespace {

int        cButtons; // that live
RecordUse* pUses;    // the innermost

constexpr char   nullPictureName[] = "HC5";
constexpr int    typeTextSize = 256; // of a default description; a caption may go beyond it

void EnterButton()
{
    if (cButtons++ == 0) {
        LoadPic(&gNullPictures.normal, hInstance, nullPictureName);
        LoadPic(&gNullPictures.pressed, hInstance, nullPictureName);
    }
}

void LeaveButton()
{
    if (--cButtons == 0) {
        FreePic(&gNullPictures.normal, 0);
        FreePic(&gNullPictures.pressed, 0);
        gNullPictures = {};
    }
}

// A dialog template may give a number in place of a text.
const char* WindowTextOf(const CREATESTRUCTA& create)
{
    return create.lpszName && !IS_INTRESOURCE(create.lpszName) ? create.lpszName : "";
}

void FillRecord(HButtCtl* ctl, HWND hwnd, CREATESTRUCTA* create)
{
    ctl->hWnd = hwnd;
    ctl->hParent = create->hwndParent;
    ctl->wId = LOWORD(create->hMenu);
    ctl->nGlyph = -1;
    if (create->style & HBS_NOFOCUS) {
        create->style &= ~WS_TABSTOP;
        SetWindowLongA(hwnd, GWL_STYLE, GetWindowLongA(hwnd, GWL_STYLE) & ~WS_TABSTOP);
    }
    ctl->dwStyle = static_cast<DWORD>(create->style);
}

// A caption becomes the default description of its kind around it.
bool ApplyCaption(HButtCtl* ctl, const char* caption)
{
    char* const text = static_cast<char*>(HBlockAlloc(typeTextSize + std::strlen(caption)));
    if (!text) {
        return false;
    }
    // Settled: the caption takes its characters from the pictures, so behind a long one there are fewer.
    bool applied = false;
    if (LoadDefTypeText(static_cast<int>(KindOf(ctl)), text, typeTextSize, caption)) {
        applied = HBApplyType(ctl, text);
    } else {
        // Kinds without a description of their own keep their caption.
        applied = HBApplyType(ctl, "") && HBSetCaption(ctl, caption, '\0', nullptr);
    }
    HBlockFree(text);
    return applied;
}

bool ApplyText(HButtCtl* ctl, const char* text)
{
    return *text >= '0' && *text <= '9' ? HBApplyType(ctl, text) : ApplyCaption(ctl, text);
}

} // namespace

LRESULT HBOnNcCreate(const MsgArgs& args)
{
    CREATESTRUCTA* const create = reinterpret_cast<CREATESTRUCTA*>(args.lParam);
    HButtCtl* const      ctl = HRecordAlloc<HButtCtl>();
    if (!ctl) {
        return 0;
    }
    FillRecord(ctl, args.hwnd, create);
    if (!ApplyText(ctl, WindowTextOf(*create))) {
        HBFreeContent(ctl);
        HBlockFree(ctl);
        return 0;
    }
    SendMessageA(args.hwnd, WWM_SETSTATE, 0, reinterpret_cast<LPARAM>(ctl));
    EnterButton();
    return DefWindowProcA(args.hwnd, args.message, args.wParam, args.lParam);
}

RecordUse::RecordUse(HButtCtl* ctl) : ctl_(ctl), outer_(pUses), frees_(false)
{
    pUses = this;
}

RecordUse::~RecordUse()
{
    pUses = outer_;
    if (frees_) {
        HBlockFree(ctl_);
    }
}

void RecordUse::LetGo(HButtCtl* ctl)
{
    RecordUse* outermost = nullptr;
    for (RecordUse* use = pUses; use; use = use->outer_) {
        outermost = use->ctl_ == ctl ? use : outermost;
    }
    if (outermost) {
        outermost->frees_ = true;
    } else {
        HBlockFree(ctl);
    }
}

void HBFreeRecord(HButtCtl* ctl)
{
    // It is detached first: whoever sees the message may ask for the record.
    SendMessageA(ctl->hWnd, WWM_SETSTATE, 0, 0);
    HBFreeContent(ctl);
    RecordUse::LetGo(ctl);
    LeaveButton();
}
