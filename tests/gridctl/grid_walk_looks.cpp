// What a walk notes at its steps and looks for, what it hears from the library, and what its disturbances do.
#include "gridctl/grid_walk.h"

#include "support/gdi_leaks.h"
#include "support/guarded_memory.h"
#include "support/message_names.h"

namespace {

HWND CaretWindow()
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    return info.hwndCaret;
}

// The value is on its way from the editor to its owner: who ends the edit there finds the row as it was.
bool IsUndecided(const WalkEdit& edit, const WalkStep& step)
{
    const bool asks = step.code == HEN_BADINPUT || step.code == HEN_BELOWMIN || step.code == HEN_ABOVEMAX;
    const bool appends = (edit.traits & onRecords) && (edit.traits & inEntryRow) && step.code == HGN_CELLCHANGED;
    switch (step.border) {
    case WalkBorder::EditorTells: return asks;
    case WalkBorder::GridTells:   return appends;
    case WalkBorder::SourceAsked: return step.code == HGSRC_CELL;
    case WalkBorder::Message:     return false;
    default:                      return true;
    }
}

} // namespace

std::string WalkStep::Name() const
{
    static constexpr const char* operations[] = { "FETCH",  "WRITEBACK", "INSERT", "DELETE",
                                                  "UPDATE", "CELL",      "APPEND", "COUNT" };
    switch (border) {
    case WalkBorder::Message:     return "after " + MessageName(code);
    case WalkBorder::GridTells:   return "grid tells " + NotificationName(code);
    case WalkBorder::EditorTells: return "editor tells " + NotificationName(code, "HEdit");
    case WalkBorder::SourceAsked: return std::string("source is asked HGSRC_") + operations[code];
    default:                      return "validator is asked";
    }
}

void GridWalk::Step(WalkBorder border, UINT code, HWND teller)
{
    if (!ready_) {
        return;
    }
    const WalkStep step = { border, code };
    Look(step.Name());
    if (!playing_) {
        return;
    }
    ++step_;
    if (found_) {
        found_->push_back(step);
    }
    if (!disturbance_ || disturbed_ || step_ != at_) {
        return;
    }
    if (!(step == *expected_)) {
        rows_.Complain("another step: " + step.Name());
    }
    disturbed_ = true;
    teller_ = teller;
    disturbance_->run(this);
    Look("after the disturbance");
}

// Looks

void GridWalk::Look(const std::string& when)
{
    const HGridCtl* const ctl = Grid() ? HGFromWindow(grid_) : nullptr;
    if (ctl && ctl->pData && !rows_.HasLast()) {
        rows_.Look(ctl, when);
    }
}

// Nothing stands on the screen that has no business there.
void GridWalk::LookAtWindows()
{
    if (CaretWindow() && CaretWindow() != GetFocus()) {
        rows_.Complain("the caret stays behind");
    }
    HGridCtl* const ctl = Grid() ? HGFromWindow(grid_) : nullptr;
    const bool      mayShow = ctl && (KeyTarget() || Is(keepsSelection) || (ctl->wFlags & HGC_INEDIT));
    for (int col = 0; ctl && col < HGColCount(ctl->pData); ++col) {
        const HGField* const field = HGGetField(ctl->pData, col);
        const HWND           child = field->pCtl ? field->pCtl->hWnd : nullptr;
        const bool           visible = child && (GetWindowLongA(child, GWL_STYLE) & WS_VISIBLE);
        if (visible && !(mayShow && child == ctl->hEditor && (ctl->wFlags & HGC_EDITORSHOWN))) {
            rows_.Complain("an editor stays on the screen");
        }
    }
}

void GridWalk::LookForLeaks(int blocks, int gdiObjects)
{
    if (!rows_.HasLast()) {
        rows_.Complain("the grid didn't tell of its end");
    }
    if (LiveBlocks() != blocks) {
        rows_.Complain(std::to_string(LiveBlocks() - blocks) + " blocks are left");
    }
    if (LiveGdiObjects() != gdiObjects) {
        rows_.Complain(std::to_string(LiveGdiObjects() - gdiObjects) + " GDI objects are left: " + DescribeGdiObjects());
    }
    if (CaretWindow() || GetCapture()) {
        rows_.Complain("caret or capture is left");
    }
    if (IsWindow(host_) && GetWindow(host_, GW_CHILD)) {
        rows_.Complain("a window is left");
    }
}

void GridWalk::LookForLoss()
{
    const bool taken = rows_.emptied || rows_.replaced || rows_.gone.contains(rows_.EditedId());
    const bool mayLose = Is(takesBack) || vetoes_ || (disturbance_ && disturbance_->loses) ||
                         (disturbance_ && IsUndecided(edit_, *expected_));
    if (!taken && !mayLose && rows_.FinalValue() < entered_) {
        rows_.Complain("what was entered is lost: " + std::to_string(rows_.FinalValue()) + " of " +
                       std::to_string(entered_));
    }
}

// What comes from the library

void GridWalk::OnNotification(HWND sender, int code)
{
    if (sender != grid_ || !ready_) {
        return;
    }
    if (code == HGN_DESTROY) {
        Look("at its end");
        rows_.KeepLast(HGFromWindow(grid_));
    }
    if (code == HGN_ROWDELETING) {
        const HGridCtl* const ctl = HGFromWindow(grid_);
        rows_.gone.insert(rows_.IdAt(ctl, ctl->nPropRow));
    }
    Step(WalkBorder::GridTells, static_cast<UINT>(code), sender);
    if (vetoes_ && code == HGN_CELLCHANGED && IsWindow(sender)) {
        SendMessageA(sender, WWM_CANCEL, 0, 0);
    }
}

void GridWalk::OnEditorCommand(HWND editor, int code)
{
    Step(WalkBorder::EditorTells, static_cast<UINT>(code), editor);
}

int GridWalk::OnValidate(const void* value)
{
    const LONG number = LoadAs<LONG>(value);
    Step(WalkBorder::ValidatorAsked, 0);
    return number & 1;
}

// Records are fetched and counted at any time; that is no step of the edit.
int GridWalk::OnSource(int operation, int record, void* buffer)
{
    // The row may go with the step, so the source does its work before.
    const int answer = rows_.AnswerSource(operation, record, buffer);
    if (operation != HGSRC_FETCH && operation != HGSRC_COUNT) {
        Step(WalkBorder::SourceAsked, static_cast<UINT>(operation));
    }
    return answer;
}

// Disturbances that change what may be seen

void GridWalk::DeleteRow(bool edited)
{
    const LONG id = edited ? rows_.EditedId() : 1;
    const int  row = Grid() ? rows_.PlaceOf(HGFromWindow(grid_), id) : -1;
    if (row < 0) {
        return;
    }
    rows_.gone.insert(id);
    if (!SendGrid(HGM_DELETEROW, static_cast<WPARAM>(row))) {
        rows_.gone.erase(id);
    }
}

void GridWalk::ReplaceData()
{
    if (!Grid()) {
        return;
    }
    HGridData* const data = Is(onRecords) ? rows_.MakeData(false) : rows_.MakeOtherData();
    rows_.attaching = true;
    if (!SendGrid(HGM_SETDATA, 1, reinterpret_cast<LPARAM>(data)) && Grid()) {
        rows_.Complain("the other data weren't taken");
    }
    rows_.attaching = false;
}

void GridWalk::Empty(UINT message)
{
    rows_.emptied = rows_.emptied || Grid() != nullptr;
    SendGrid(message, 1);
}
