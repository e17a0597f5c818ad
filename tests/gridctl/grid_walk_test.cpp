// Edits of a cell that are disturbed at every step: the rows are as before or as committed, never between.
#include "gridctl/grid_walk.h"

#include "support/window_test.h"

#include <cctype>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ostream>

// For the framework.
void PrintTo(const WalkEdit& edit, std::ostream* out)
{
    *out << edit.name;
}

namespace {

constexpr char pasted[] = "mn";

HGField* Text()
{
    return HGFieldCreate("Text", 0, 60, 0, 's', 's', 0, 0, 12, 'e', 0, "", 0);
}
HGField* Number()
{
    return HGFieldCreate("Number", 0, 60, 0, 'n', 'l', 0, 0, 0, 'e', HES_RIGHT, "", 0);
}
HGField* CleanNumber()
{
    return HGFieldCreate("Number", 0, 60, 0, 'n', 'l', 0, 0, 0, 'e', HES_CLEARALL, "", 0);
}
HGField* Date()
{
    return HGFieldCreate("Date", 0, 60, 0, 'd', 'l', 0, 0, 0, 'e', 0, "mm/dd/yy", 0);
}
HGField* Mask()
{
    return HGFieldCreate("Mask", 0, 60, 0, 'm', 's', 0, 0, 16, 'e', 0, "(#) #", 0);
}

// clang-format off
const WalkEdit edits[] = {
    { "text, Tab",           Text,      "ab{Tab}",         inAllWays,                     { "xyz", "a", "ab" } },
    { "text, Down",          Text,      "a{Down}",         walkedBefore,                 { "x", "a" } },
    { "text, press",         Text,      "a{Press}",        walkedBefore | inLongRuns,                 { "x", "a" } },
    { "text, away",          Text,      "a{Away}",         walkedBefore,                 { "x", "a" } },
    { "text, close",         Text,      "a{Close}",        walkedBefore,                 { "x", "a" } },
    { "text, delete row",    Text,      "a{PressHeader}{DelRow}", walkedBefore | deletesRow, { "x", "a" } },
    { "F2, text, Esc",       Text,      "{F2}a{Esc}",      takesBack,                    { "x", "a" } },
    { "Delete, Tab",         Text,      "{F2}{Del}{Tab}",  inLongRuns,                            { "xy", "{null}" } },
    { "paste, Tab",          Text,      "{F2}{Paste}{Tab}", 0,                           { "x", pasted } },
    { "kept, away",          Text,      "a{Away}",         keepsSelection | inLongRuns,               { "x", "a" } },
    { "number, Tab",         Number,    "4{Tab}",          inLongRuns,                            { "78", "4" } },
    { "cleared, Tab",        CleanNumber, "{F2}{Del}{Tab}", inLongRuns,                           { "78", "{null}" } },
    { "bounded, Tab",        Number,    "5{Tab}",          isBounded,                    { "2", "5", "3" } },
    { "refused, Tab",        Number,    "5{Tab}",          isValidated | takesBack,      { "8", "5" } },
    { "date, Tab",           Date,      "110699{Tab}",     inLongRuns,                            { "{null}", "1 /  /  ",
                                               "11/  /  ", "11/0 /  ", "11/06/  ", "11/06/9 ", "11/06/99" } },
    { "day, Tab",            Date,      "1{Tab}",          0,                            { "{null}", "1 /  /  " } },
    { "mask, Tab",           Mask,      "5{Tab}",          inLongRuns,                  { "(1) 2", "(5) _" } },
    { "entry row, Tab",      Text,      "a{Tab}",          hasEntryRow | inEntryRow,     { "{null}", "a" } },
    { "record, Tab",         Text,      "a{Tab}",          onRecords,                    { "x", "a" } },
    { "record, Down",        Text,      "a{Down}",         onRecords | walkedBefore | inLongRuns,     { "x", "a" } },
    { "new record, Tab",     Text,      "a{Tab}",          onRecords | hasEntryRow | inEntryRow | inAllWays, { "{null}", "a" } },
    { "refused record, Tab", Text, "a{Tab}",  onRecords | refusesRows | takesBack | walkedBefore | inLongRuns,  { "x", "a" } },
    { "refused cell, Tab",   Text, "a{Tab}",  onRecords | refusesCells | takesBack | walkedBefore, { "x", "a" } },
};
// clang-format on

// When a disturbance is tried.

bool Always(const WalkEdit&, const WalkStep&)
{
    return true;
}
bool BetweenMessages(const WalkEdit&, const WalkStep& step)
{
    return step.border == WalkBorder::Message;
}
bool WhenTold(const WalkEdit&, const WalkStep& step)
{
    return step.border == WalkBorder::GridTells || step.border == WalkBorder::EditorTells;
}
bool WhenGridTells(const WalkEdit&, const WalkStep& step)
{
    return step.border == WalkBorder::GridTells;
}
bool WhenMoving(const WalkEdit&, const WalkStep& step)
{
    return step.border == WalkBorder::GridTells && (step.code == HGN_MOVING || step.code == HGN_EXTENDING);
}
bool OnRecords(const WalkEdit& edit, const WalkStep& step)
{
    return (edit.traits & onRecords) && step.border != WalkBorder::EditorTells;
}

void Destroy(HWND hwnd)
{
    if (IsWindow(hwnd)) {
        DestroyWindow(hwnd);
    }
}

void GoTo(const GridWalk* walk, int col, int row)
{
    walk->SendGrid(HGM_SETCURSOR, 0, static_cast<LPARAM>(PackCell(col, row)));
}

void StayOnCell(GridWalk* walk)
{
    walk->SendGrid(HGM_SETPROPOSED, 0, walk->SendGrid(HGM_GETCURSOR));
}

void PressEscape(GridWalk* walk)
{
    if (const HWND target = walk->KeyTarget()) {
        SendMessageA(target, WM_KEYDOWN, VK_ESCAPE, 1);
    }
}

// clang-format off
constexpr Disturbance disturbances[] = {
    { "destroy the grid",      false, true,  Always,          [](GridWalk* w) { Destroy(w->Grid()); } },
    { "destroy the parent",    false, false, Always,          [](GridWalk* w) { Destroy(w->Host()); } },
    { "destroy the editor",    true,  true,  Always,          [](GridWalk* w) { Destroy(w->Editor()); } },
    { "close the grid",        false, false, BetweenMessages, [](GridWalk* w) { w->SendGrid(WM_CLOSE); } },
    { "focus elsewhere",       false, true,  Always,          [](GridWalk* w) { SetFocus(w->Other()); } },
    { "focus nowhere",         false, false, BetweenMessages, [](GridWalk*)   { SetFocus(nullptr); } },
    { "focus to the grid",     false, true,  Always,          [](GridWalk* w) { SetFocus(w->Grid()); } },
    { "disable",               false, false, Always,          [](GridWalk* w) { EnableWindow(w->Grid(), FALSE); } },
    { "hide",                  false, false, Always,          [](GridWalk* w) { ShowWindow(w->Grid(), SW_HIDE); } },
    { "cancel",                true,  true,  WhenTold,        [](GridWalk* w) { SendMessageA(w->Teller(), WWM_CANCEL, 0, 0); } },
    { "cancel the mode",       true,  false, WhenGridTells,        [](GridWalk* w) { w->SendGrid(WM_CANCELMODE); } },
    { "veto all writes",       true,  true,  BetweenMessages, [](GridWalk* w) { w->VetoWrites(); } },
    { "stay on the cell",      false, false, WhenMoving,      StayOnCell },
    { "Esc",                   true,  true,  Always,          PressEscape },
    { "go to another cell",    false, true,  Always,          [](GridWalk* w) { GoTo(w, WalkRows::noteCol, 0); } },
    { "go to the first row",   false, true,  Always,          [](GridWalk* w) { GoTo(w, WalkRows::editedCol, 0); } },
    { "delete the row",        true,  true,  Always,          [](GridWalk* w) { w->DeleteRow(true); } },
    { "delete the first row",  false, false, Always,          [](GridWalk* w) { w->DeleteRow(false); } },
    { "other data",            true,  true,  Always,          [](GridWalk* w) { w->ReplaceData(); } },
    { "no data",               false, false, BetweenMessages, [](GridWalk* w) { w->SendGrid(HGM_SETDATA, 1, 0); } },
    { "reset",                 true,  false, Always,          [](GridWalk* w) { w->Empty(HGM_RESET); } },
    { "no source",             true,  false, OnRecords,       [](GridWalk* w) { w->Empty(HGM_SETROWSOURCE); } },
    { "source refuses all",    true,  true,  OnRecords,       [](GridWalk* w) { w->RefuseAll(); } },
};
// clang-format on

// A play that ends the program tells which one it was.
char gPlay[256];

LONG WINAPI TellCrash(EXCEPTION_POINTERS*)
{
    std::fprintf(stderr, "crashed in %s\n", gPlay);
    return EXCEPTION_CONTINUE_SEARCH;
}

void TellAbort(int)
{
    std::fprintf(stderr, "aborted in %s\n", gPlay);
}

void SetClipboardText(HWND owner, const char* text)
{
    const size_t  size = std::strlen(text) + 1;
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
    std::memcpy(GlobalLock(block), text, size);
    GlobalUnlock(block);
    OpenClipboard(owner);
    EmptyClipboard();
    SetClipboardData(CF_TEXT, block);
    CloseClipboard();
}

class GridEditWalk : public WindowTest, public testing::WithParamInterface<WalkEdit> {
protected:
    static void SetUpTestSuite()
    {
        SetUnhandledExceptionFilter(TellCrash);
        std::signal(SIGABRT, TellAbort);
    }
    GridEditWalk() : walk(parent.hwnd(), GetParam())
    {
        if (std::strstr(GetParam().events, "{Paste}")) {
            SetClipboardText(parent.hwnd(), pasted);
        }
    }
    void Disturb(const std::vector<WalkStep>& steps, size_t at, const Disturbance& disturbance)
    {
        std::snprintf(gPlay, sizeof gPlay, "\"%s\", step %u of %u (%s): %s", GetParam().name, static_cast<unsigned>(at),
                      static_cast<unsigned>(steps.size()), steps[at - 1].Name().c_str(), disturbance.name);
        walk.Run(steps, at, disturbance);
        if (!walk.Complaints().empty()) {
            ADD_FAILURE() << gPlay << "\n" << walk.Complaints();
            ++failures;
        }
    }

    GridWalk walk;
    int      failures = 0;
};

TEST_P(GridEditWalk, LeavesEachRowAsBeforeOrAsCommitted)
{
    constexpr int               enough = 200;
    const std::vector<WalkStep> steps = walk.FindSteps();
    ASSERT_EQ("", walk.Complaints()) << "undisturbed";
    for (size_t at = walk.FirstStep(); at <= steps.size(); ++at) {
        for (const Disturbance& disturbance : disturbances) {
            if (walk.Tries(disturbance, steps[at - 1])) {
                Disturb(steps, at, disturbance);
            }
            ASSERT_LT(failures, enough) << "the rest isn't walked";
        }
    }
}

// What the walk sends stands for real keys and a real mouse: the library tells the same in the same order.
TEST_P(GridEditWalk, PlaysWhatRealInputDoes)
{
    std::vector<WalkStep> sent = walk.FindSteps();
    std::erase_if(sent, [](const WalkStep& step) { return step.border == WalkBorder::Message; });
    std::vector<WalkStep> real = walk.FindSteps(true);
    EXPECT_EQ("", walk.Complaints());
    std::erase_if(real, [](const WalkStep& step) { return step.border == WalkBorder::Message; });
    ASSERT_EQ(sent.size(), real.size());
    for (size_t i = 0; i < sent.size(); ++i) {
        EXPECT_EQ(sent[i].Name(), real[i].Name()) << "line " << i;
    }
}

std::string NameOf(const testing::TestParamInfo<WalkEdit>& info)
{
    std::string name;
    for (const char* p = info.param.name; *p; ++p) {
        if (std::isalnum(static_cast<unsigned char>(*p))) {
            name += *p;
        }
    }
    return name;
}

std::vector<WalkEdit> EditsOfThisRun()
{
    std::vector<WalkEdit> walked(std::begin(edits), std::end(edits));
    if (!std::getenv("WIDGETS_LONG_TESTS")) {
        std::erase_if(walked, [](const WalkEdit& edit) { return (edit.traits & inLongRuns) != 0; });
    }
    return walked;
}

INSTANTIATE_TEST_SUITE_P(Edits, GridEditWalk, testing::ValuesIn(EditsOfThisRun()), NameOf);

} // namespace
