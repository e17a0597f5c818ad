// Paints a button: by its parent, by the host's part painter, or face, picture, caption and focus rectangle one by one.
// Opaque buttons are put together off-screen, so that they never flicker.
#include "button/button_internal.h"
#include "button/draw.h"
#include "foundation/gdi_guards.h"
#include "foundation/startup.h"
#include "typed/masks.h"

#include <cstring>

namespace {

constexpr DWORD  unnamedStyle = 0x4000; // reaches DrawPushButton as a bit that it doesn't read
constexpr WORD   unnamedFlag = 0x0040;
constexpr int    editColors = 1; // of FireCtlColorMsg
constexpr int    buttonColors = 3;
constexpr COLORREF white = RGB(255, 255, 255);

// One paint under way. rect is what is left of the face.
struct ButtonPaint {
    HButtCtl* ctl;
    HDC       hdc;
    RECT      rect;
    int       state;
    HBRUSH    brush;  // of the caller's; may be null
    bool      isCell; // of a grid: what the button itself is in the middle of doesn't show
};

bool LooksPressed(const ButtonPaint& paint)
{
    return !paint.isCell && HasFlag(paint.ctl, HBF_PRESSED);
}

bool LooksFocused(const ButtonPaint& paint)
{
    return !paint.isCell && GetFocus() == paint.ctl->hWnd;
}

// Drawing by others

bool IsDrawnByOwner(ButtonPaint& paint)
{
    const HButtCtl* const ctl = paint.ctl;
    if (!HasStyle(ctl, HBS_OWNERDRAW)) {
        return false;
    }
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_BUTTON;
    draw.CtlID = ctl->wId;
    draw.itemAction = ODA_SELECT | ODA_FOCUS;
    draw.itemState = (LooksPressed(paint) ? UINT{ ODS_SELECTED } : 0) | (LooksFocused(paint) ? UINT{ ODS_FOCUS } : 0);
    draw.hwndItem = ctl->hWnd;
    draw.hDC = paint.hdc;
    draw.rcItem = paint.rect;
    draw.itemData = reinterpret_cast<ULONG_PTR>(&paint.state);
    const SelectedObject font(paint.hdc, ctl->hFont);
    return SendMessageA(ctl->hParent, WM_DRAWITEM, ctl->wId, reinterpret_cast<LPARAM>(&draw)) != 0;
}

constexpr DWORD firstPartId = 4188; // the navigator's buttons
constexpr DWORD lastPartId = 4191;
constexpr int   firstPart = 5;
constexpr int   lastPart = 9;

bool IsDrawnAsPart(HButtCtl* ctl, HDC hdc, RECT* rect)
{
    const DWORD id = LOWORD(ctl->wId);
    if (!pfnDrawPart || id < firstPartId || id > lastPartId) {
        return false;
    }
    const int part = id == lastPartId ? lastPart : static_cast<int>(id - firstPartId) + firstPart;
    return pfnDrawPart(part, hdc, rect, IsWindowEnabled(ctl->hWnd), HasFlag(ctl, HBF_PRESSED), 0) != 0;
}

// Face

WORD FaceFlags(const ButtonPaint& paint)
{
    const HButtCtl* const ctl = paint.ctl;
    const bool            down = LooksPressed(paint) || (KindOf(ctl) >= HBS_CHECK && paint.state != 0);
    WORD                  flags = DPB_INNERRECT;
    flags |= HasStyle(ctl, unnamedStyle) ? unnamedFlag : WORD{ 0 };
    flags |= KindOf(ctl) == HBS_DEFPUSH ? WORD{ DPB_DEFAULT } : WORD{ 0 };
    flags |= down ? WORD{ DPB_PRESSED } : WORD{ 0 };
    return flags;
}

HBRUSH BackgroundOf(const ButtonPaint& paint)
{
    const HBRUSH own[] = { paint.ctl->hBkBrush, paint.brush, hFocusBrush };
    for (const HBRUSH brush : own) {
        if (brush) {
            return brush;
        }
    }
    return FireCtlColorMsg(paint.ctl, KindOf(paint.ctl) == HBS_CHECK ? editColors : buttonColors, paint.hdc);
}

// false: the record went while the parent was asked for a brush.
bool FillBackground(const ButtonPaint& paint)
{
    const HBRUSH brush = BackgroundOf(paint);
    if (!IsAlive(paint.ctl)) {
        return false;
    }
    const SelectedObject pen(paint.hdc, GetStockObject(NULL_PEN));
    const SelectedObject selected(paint.hdc, brush);
    const RECT&          rect = paint.rect;
    Rectangle(paint.hdc, rect.left, rect.top, rect.right + 1, rect.bottom + 1);
    return true;
}

bool PaintFace(ButtonPaint& paint)
{
    HButtCtl* const ctl = paint.ctl;
    if (!HasStyle(ctl, HBS_NOFACE)) {
        DrawPushButton(ctl->hWnd, paint.hdc, &paint.rect, HasStyle(ctl, HBS_NOFOCUS) ? 1 : 2, FaceFlags(paint), nullptr,
                       nullptr, ctl->hGlyphBitmap, 0, ctl->nGlyph);
        return true;
    }
    return HasStyle(ctl, HBS_TRANSPARENT) || FillBackground(paint);
}

// Picture and caption

// Bounded: a state that has no picture shows none, also one that the parent has made up when it was asked to draw.
const Pic* PictureOf(const ButtonPaint& paint)
{
    const HButtCtl* const ctl = paint.ctl;
    const bool            pressed = LooksPressed(paint);
    if (ctl->cPics == 0) {
        return nullptr;
    }
    if (HasFlag(ctl, CF_NULL)) {
        return pressed ? &gNullPictures.pressed : &gNullPictures.normal;
    }
    const unsigned wanted = static_cast<unsigned>(paint.state);
    const unsigned index = pressed && HasStyle(ctl, HBS_UPDOWN) ? (wanted + 1) % ctl->cPics : wanted;
    return index < ctl->cPics ? &ctl->pPics[index] : nullptr;
}

SIZE CaptionSize(const HButtCtl* ctl, HDC hdc)
{
    if (!ctl->pszCaption) {
        return {};
    }
    const DWORD size = HMeasureLines(hdc, ctl->pszCaption);
    const int   margin = HasStyle(ctl, HBS_SHADOWTEXT) ? 3 : 2;
    return { LOWORD(size) + margin, HIWORD(size) + margin };
}

SIZE PictureSize(const Pic* pic)
{
    int width = 0;
    int height = 0;
    if (pic) {
        GetPicDimensions(pic, &width, &height);
    }
    return { width, height };
}

UINT HBTextFlags(const HButtCtl* ctl)
{
    const UINT lines = std::strchr(ctl->pszCaption, '\n') ? UINT{ DT_WORDBREAK } : UINT{ DT_SINGLELINE | DT_VCENTER };
    if (HasStyle(ctl, HBS_RIGHTTEXT)) {
        return lines | DT_RIGHT;
    }
    return lines | (HasStyle(ctl, HBS_LEFTTEXT) ? UINT{ DT_LEFT } : UINT{ DT_CENTER });
}

void DrawGreyed(const ButtonPaint& paint, const RECT& rect, int stockBrush)
{
    // A length, a width or a height of 0 would have the record measured as if it were the text.
    if (IsRectEmpty(&rect)) {
        return;
    }
    HButtCtl* const ctl = paint.ctl;
    ctl->rcGray = rect;
    const int length = static_cast<int>(std::strlen(ctl->pszCaption));
    GrayStringA(paint.hdc, static_cast<HBRUSH>(GetStockObject(stockBrush)), HBDrawText, reinterpret_cast<LPARAM>(ctl),
                length, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
}

void DrawPlain(const ButtonPaint& paint, const RECT& rect, COLORREF color)
{
    RECT place = rect;
    SetTextColor(paint.hdc, color);
    DrawTextA(paint.hdc, paint.ctl->pszCaption, -1, &place, HBTextFlags(paint.ctl));
}

void DrawCaption(const ButtonPaint& paint, const RECT& rect)
{
    HButtCtl* const ctl = paint.ctl;
    const bool      enabled = IsWindowEnabled(ctl->hWnd) != 0;
    SetBkMode(paint.hdc, TRANSPARENT);
    if (HasStyle(ctl, HBS_SHADOWTEXT)) {
        RECT shadow = rect;
        OffsetRect(&shadow, 1, 1);
        if (enabled) {
            DrawPlain(paint, shadow, white);
        } else {
            DrawGreyed(paint, shadow, WHITE_BRUSH);
        }
    }
    if (enabled) {
        DrawPlain(paint, rect, ctl->crText);
    } else {
        DrawGreyed(paint, rect, BLACK_BRUSH);
    }
}

void DrawFocus(const ButtonPaint& paint, const ButtonPlaces& places)
{
    HButtCtl* const ctl = paint.ctl;
    if (paint.isCell || HasStyle(ctl, HBS_NOFOCUS)) {
        return;
    }
    RECT rect = ctl->pszCaption ? places.text : places.picture;
    InflateRect(&rect, 1, 0);
    const bool stands = HasStyle(ctl, HBS_TRANSPARENT) && HasFlag(ctl, HBF_FOCUSDRAWN);
    const bool focused = LooksFocused(paint);
    // Where one stands on a transparent button, it is there already, or goes by being drawn once more.
    if (focused != stands) {
        DrawFocusRect(paint.hdc, &rect);
    }
    if (focused) {
        SetFlag(ctl, HBF_FOCUSDRAWN, true);
    }
}

// false: the record went.
bool PaintContent(ButtonPaint& paint)
{
    if (!PaintFace(paint)) {
        return false;
    }
    HButtCtl* const      ctl = paint.ctl;
    const SelectedObject font(paint.hdc, ctl->hFont);
    const Pic* const     pic = PictureOf(paint);
    const ButtonContent  content{ CaptionSize(ctl, paint.hdc), PictureSize(pic), ctl->bTextPos, ctl->bPicPos,
                                  ctl->bRelPos };
    const ButtonPlaces   places = HBLayout(paint.rect, content);
    if (pic && pic->hImage) {
        PaintPic(paint.hdc, pic, static_cast<int>(places.picture.left), static_cast<int>(places.picture.top),
                 ctl->crPicKey);
    }
    if (ctl->pszCaption) {
        DrawCaption(paint, places.text);
    }
    DrawFocus(paint, places);
    return true;
}

bool PaintOffScreen(ButtonPaint& paint)
{
    const RECT to = paint.rect;
    const HDC  screen = paint.hdc;
    const int  width = static_cast<int>(to.right - to.left);
    const int  height = static_cast<int>(to.bottom - to.top);
    if (width <= 0 || height <= 0) {
        return true;
    }
    const OwnedObject<HBITMAP> bits(CreateCompatibleBitmap(screen, width, height));
    const MemoryDC             memory(screen, bits.h);
    paint.hdc = memory.hdc;
    paint.rect = { 0, 0, width, height };
    if (!PaintContent(paint)) {
        return false;
    }
    BitBlt(screen, to.left, to.top, width, height, memory.hdc, 0, 0, SRCCOPY);
    return true;
}

} // namespace

BOOL CALLBACK HBDrawText(HDC dc, LPARAM record, int /*length*/)
{
    const HButtCtl* const ctl = reinterpret_cast<const HButtCtl*>(record);
    if (!ctl) {
        return FALSE;
    }
    RECT rect = ctl->rcGray;
    OffsetRect(&rect, -rect.left, -rect.top);
    // Bounded: a host may hand in the record of a button without a caption.
    if (ctl->pszCaption) {
        DrawTextA(dc, ctl->pszCaption, -1, &rect, HBTextFlags(ctl));
    }
    return TRUE;
}

bool HBPaint(HButtCtl* ctl, HDC hdc, const RECT& rect, int state, HBRUSH brush, bool isCell)
{
    ButtonPaint paint{ ctl, hdc, rect, state, brush, isCell };
    const bool  done = IsDrawnByOwner(paint);
    if (!IsAlive(ctl)) {
        return false;
    }
    if (done) {
        return true;
    }
    return HasStyle(ctl, HBS_TRANSPARENT) ? PaintContent(paint) : PaintOffScreen(paint);
}

bool HBPaintWindow(HButtCtl* ctl, HDC hdc)
{
    RECT client{};
    GetClientRect(ctl->hWnd, &client);
    RECT       part = client; // whatever the painter makes of it, the button paints all
    const bool done = IsDrawnAsPart(ctl, hdc, &part);
    if (!IsAlive(ctl)) {
        return false;
    }
    return done || HBPaint(ctl, hdc, client, ctl->bState, nullptr, false);
}

bool HBDrawValue(HButtCtl* ctl, HDC hdc, const RECT* rect, HBRUSH brush, const void* value)
{
    const RecordUse use(ctl);
    const bool      wasNull = HasFlag(ctl, CF_NULL);
    const int       set = value ? GetBoolValue(ctl->chLinkType, value) * StatesOfValue(ctl) : 0;
    SetFlag(ctl, CF_NULL, !value);
    if (!HBPaint(ctl, hdc, *rect, value ? set % ctl->cStates : ctl->bState, brush, true)) {
        return false;
    }
    SetFlag(ctl, CF_NULL, wasNull);
    return true;
}
