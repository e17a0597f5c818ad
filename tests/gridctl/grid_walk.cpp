// Plays an edit of a cell, alone or with one disturbance, in windows that live for one play.
#include "gridctl/grid_walk.h"

#include "support/gdi_leaks.h"
#include "support/guarded_memory.h"
#include "support/input.h"
#include "support/message_names.h"
#include "support/pump.h"

#include <cstring>

namespace {

constexpr char windowClass[] = "WalkWindow";

struct NamedKey {
    const char* name;
    WORD        vk;
    char        ch;
    bool        enters;
};

// clang-format off
constexpr NamedKey namedKeys[] = {
    { "{Tab}",   VK_TAB,    '\t', false },
    { "{Enter}", VK_RETURN, '\r', false },
    { "{Esc}",   VK_ESCAPE, 27,   false },
    { "{Down}",  VK_DOWN,   0,    false },
    { "{F2}",    VK_F2,     0,    false },
    { "{F4}",    VK_F4,     0,    false },
    { "{Del}",   VK_DELETE, 0,    true },
    { "{DelRow}", VK_DELETE, 0,   false },
};
// clang-format on

GridWalk* gWalk;
WNDPROC   gGridProc;

LRESULT CALLBACK HostProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND && gWalk) {
        gWalk->OnNotification(reinterpret_cast<HWND>(lParam), HIWORD(wParam));
        return 0;
    }
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

// A host that looks over the grid's shoulder: editors tell the grid, not its parent.
LRESULT CALLBACK GridProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND && lParam && gWalk) {
        gWalk->OnEditorCommand(reinterpret_cast<HWND>(lParam), HIWORD(wParam));
        if (!IsWindow(hwnd)) {
            return 0;
        }
    }
    return CallWindowProcA(gGridProc, hwnd, message, wParam, lParam);
}

int CALLBACK Source(HWND, int operation, int record, void* buffer)
{
    return gWalk ? gWalk->OnSource(operation, record, buffer) : 0;
}

int CALLBACK Validator(HWND, int, void* value)
{
    return gWalk ? gWalk->OnValidate(value) : 0;
}

HWND MakeWindow(HWND parent, int x)
{
    WNDCLASSA info = {};
    info.lpfnWndProc = HostProc;
    info.hInstance = GetModuleHandleA(nullptr);
    info.lpszClassName = windowClass;
    RegisterClassA(&info);
    return CreateWindowExA(0, windowClass, "", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, x, 0, 200, 120, parent, nullptr,
                           info.hInstance, nullptr);
}

// Painting takes most of the time of a play and concerns no row, so it is left out.
void PumpPosted()
{
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE | PM_QS_POSTMESSAGE)) {
        DispatchMessageA(&message);
    }
}

} // namespace

GridWalk::GridWalk(HWND top, const WalkEdit& edit) : edit_(edit), rows_(edit), top_(top), other_(MakeWindow(top, 300))
{
    gWalk = this;
}

GridWalk::~GridWalk()
{
    if (IsWindow(host_)) {
        DestroyWindow(host_);
    }
    DestroyWindow(other_);
    gWalk = nullptr;
}

// Windows

void GridWalk::MakeGrid()
{
    // An entry row comes with the attachment, the others go in front of it.
    const bool       rowsFollow = Is(hasEntryRow) && !Is(onRecords);
    HGridData* const data = rows_.MakeData(!rowsFollow && !Is(onRecords));
    host_ = IsWindow(host_) ? host_ : MakeWindow(top_, 0);
    grid_ = CreateWindowExA(0, "HGrid", nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 200, 120, host_, nullptr,
                            GetModuleHandleA(nullptr), nullptr);
    gGridProc =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrA(grid_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(GridProc)));
    SendGrid(HGM_SETDATA, 1, reinterpret_cast<LPARAM>(data));
    if (rowsFollow) {
        rows_.InsertRows(data);
        SendGrid(HGM_REFRESH, 1);
    } else if (Is(onRecords)) {
        SendGrid(HGM_SETROWSOURCE, 0, reinterpret_cast<LPARAM>(Source));
    }
    if (Is(isValidated)) {
        SendMessageA(Editor(), HEM_SETVALIDATOR, 0, reinterpret_cast<LPARAM>(Validator));
    } else if (Is(isBounded)) {
        constexpr LONG highest = 3;
        SendMessageA(Editor(), HEM_SETMAX, 0, reinterpret_cast<LPARAM>(&highest));
    }
    const int row = rows_.PlaceOf(HGFromWindow(grid_), rows_.EditedId());
    SendGrid(HGM_SETCURSOR, 0, static_cast<LPARAM>(PackCell(WalkRows::editedCol, row)));
    SetFocus(grid_);
    PumpPosted();
    rows_.takesCells = !Is(refusesCells);
    rows_.takesRows = !Is(refusesRows);
    ready_ = true;
}

void GridWalk::EndGrid()
{
    if (Grid()) {
        DestroyWindow(grid_);
    }
    PumpPosted();
    ready_ = false;
    grid_ = nullptr;
    if (Is(onRecords)) {
        rows_.LookAtRecords("at the end");
    }
}

LRESULT GridWalk::SendGrid(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return Grid() ? SendMessageA(grid_, message, wParam, lParam) : 0;
}

HWND GridWalk::Editor() const
{
    const HGridCtl* const ctl = Grid() ? HGFromWindow(grid_) : nullptr;
    const HGField* const  field = ctl ? HGGetField(ctl->pData, WalkRows::editedCol) : nullptr;
    return field && field->pCtl ? field->pCtl->hWnd : nullptr;
}

HWND GridWalk::KeyTarget() const
{
    const HWND focus = GetFocus();
    return Grid() && focus && (focus == grid_ || IsChild(grid_, focus)) ? focus : nullptr;
}

// Plays

std::vector<WalkStep> GridWalk::FindSteps(bool realInput)
{
    std::vector<WalkStep> steps;
    found_ = &steps;
    disturbance_ = nullptr;
    realInput_ = realInput;
    PlayEdit();
    found_ = nullptr;
    realInput_ = false;
    if (!Is(takesBack | deletesRow) && rows_.FinalValue() != rows_.LastValue()) {
        rows_.Complain("the edit ends with value " + std::to_string(rows_.FinalValue()));
    }
    return steps;
}

size_t GridWalk::FirstStep() const
{
    return Is(walkedBefore) ? enteredSteps_ + 1 : 1;
}

bool GridWalk::Tries(const Disturbance& disturbance, const WalkStep& step) const
{
    return (disturbance.own || Is(inAllWays)) && disturbance.applies(edit_, step);
}

void GridWalk::Run(const std::vector<WalkStep>& steps, size_t at, const Disturbance& disturbance)
{
    at_ = at;
    expected_ = &steps[at - 1];
    disturbance_ = &disturbance;
    PlayEdit();
    if (!disturbed_) {
        rows_.Complain("the step didn't come");
    }
}

void GridWalk::PlayEdit()
{
    const int blocks = LiveBlocks();
    const int gdiObjects = LiveGdiObjects();
    rows_.Begin();
    step_ = 0;
    entered_ = 0;
    disturbed_ = vetoes_ = false;
    MakeGrid();
    playing_ = true;
    for (const char* p = edit_.events; *p;) {
        const size_t length = *p == '{' ? std::strcspn(p, "}") + 1 : 1;
        PlayEvent(std::string(p, length));
        PumpPosted();
        p += length;
    }
    playing_ = false;
    LookAtWindows();
    ComeBack();
    EndGrid();
    LookForLeaks(blocks, gdiObjects);
    LookForLoss();
}

void GridWalk::PlayEvent(const std::string& event)
{
    for (const NamedKey& key : namedKeys) {
        if (event == key.name) {
            PlayKey(key.vk, key.ch, key.enters);
            return;
        }
    }
    if (event.size() == 1) {
        PlayKey(LOBYTE(VkKeyScanA(event[0])), event[0], true);
    } else if (event == "{Paste}") {
        PlayPaste();
    } else if (event == "{Press}" || event == "{PressHeader}") {
        PlayPress(event == "{PressHeader}");
    } else if (event == "{Away}") {
        SetFocus(other_);
        Step(WalkBorder::Message, WM_KILLFOCUS);
    } else if (event == "{Close}" && Grid()) {
        SendGrid(WM_CLOSE);
        Step(WalkBorder::Message, WM_CLOSE);
    }
}

// Who was disturbed enters nothing more, but leaves the cell as he meant to.
void GridWalk::PlayKey(WORD vk, char ch, bool enters)
{
    const HWND target = KeyTarget();
    if (!target || (enters && disturbed_)) {
        return;
    }
    if (realInput_) {
        TypeKey(vk);
    } else {
        SendMessageA(target, WM_KEYDOWN, vk, 1);
        Step(WalkBorder::Message, WM_KEYDOWN);
        // The character was posted to the window that got the key.
        if (ch && IsWindow(target)) {
            SendMessageA(target, WM_CHAR, static_cast<WPARAM>(ch), 1);
            Step(WalkBorder::Message, WM_CHAR);
        }
        SendMessageA(KeyTarget(), WM_KEYUP, vk, static_cast<LPARAM>(0xC0000001));
    }
    Entered(enters);
}

void GridWalk::PlayPaste()
{
    if (disturbed_ || !KeyTarget()) {
        return;
    }
    if (realInput_) {
        TypeKey('V', withCtrl);
    } else {
        SendMessageA(KeyTarget(), WM_PASTE, 0, 0);
        Step(WalkBorder::Message, WM_PASTE);
    }
    Entered(true);
}

void GridWalk::Entered(bool enters)
{
    if (enters && !disturbed_) {
        ++entered_;
        enteredSteps_ = step_;
    }
}

void GridWalk::PlayPress(bool header)
{
    if (!Grid() || !IsWindowVisible(grid_) || !IsWindowEnabled(grid_)) {
        return;
    }
    HGridCtl* const ctl = HGFromWindow(grid_);
    RECT            rect;
    HGCellRect(ctl, &rect, WalkRows::noteCol, header ? rows_.PlaceOf(ctl, rows_.EditedId()) : 0, true);
    const int x = header ? 10 : (rect.left + rect.right) / 2;
    const int y = (rect.top + rect.bottom) / 2;
    if (realInput_) {
        ClickAt(grid_, x, y);
        return;
    }
    SendGrid(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    Step(WalkBorder::Message, WM_LBUTTONDOWN);
    SendGrid(WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    Step(WalkBorder::Message, WM_LBUTTONUP);
}

// The user returns and goes to another row: nothing that was left in an editor reaches a foreign one.
void GridWalk::ComeBack()
{
    if (!Grid()) {
        return;
    }
    if (!IsWindowEnabled(grid_)) {
        EnableWindow(grid_, TRUE);
    }
    if (!IsWindowVisible(grid_)) {
        ShowWindow(grid_, SW_SHOWNA);
    }
    SetFocus(grid_);
    SendGrid(HGM_SETCURSOR, 0, static_cast<LPARAM>(PackCell(WalkRows::editedCol, 0)));
    PumpPosted();
    Look("back again");
}
