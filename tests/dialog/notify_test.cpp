// Notifications, colour messages, and the vetoes of parents.
#include "dialog/test_control.h"

namespace {

class NotifyTest : public TestControl {};

TEST_F(NotifyTest, TellsTheParentIdCodeAndWindow)
{
    const HWND hwnd = CreateWithRecord(321);
    seen.Clear();
    EXPECT_EQ(0, Notify(&record, HGN_MOVED));
    const Seen expected[] = { { 0, ToParent, HGN_MOVED, 321, reinterpret_cast<LPARAM>(hwnd) } };
    EXPECT_SEEN(expected);
}

TEST_F(NotifyTest, CutsTheCodeTo16BitsAndTheIdToo)
{
    CreateWithRecord();
    record.wId = 0xABCD0064;
    seen.Clear();
    EXPECT_EQ(0, Notify(&record, 0x70005));
    constexpr Seen expected[] = { { 0, ToParent, 5, 0x64 } };
    EXPECT_SEEN(expected);
}

TEST_F(NotifyTest, GoesToTheParentOfTheRecordNotOfTheWindow)
{
    Recorder     otherSeen;
    ParentWindow other(&otherSeen);
    CreateWithRecord();
    record.hParent = other.hwnd();
    seen.Clear();
    Notify(&record, 7);
    EXPECT_EQ(1, other.Count(7));
    EXPECT_EQ(0, parent.Count(7));
}

TEST_F(NotifyTest, GivesOneForAVetoAndForgetsIt)
{
    const HWND hwnd = CreateWithRecord();
    parent.On(HGN_CELLCHANGED, [&] { EXPECT_EQ(1, Send(hwnd, WWM_CANCEL)); });
    seen.Clear();
    seen.Watch(hwnd);
    EXPECT_EQ(1, Notify(&record, HGN_CELLCHANGED));
    EXPECT_EQ(0, record.wFlags);
    constexpr Seen vetoed[] = { { 0, ToParent, HGN_CELLCHANGED }, { 1, ToControl, WWM_CANCEL } };
    EXPECT_SEEN(vetoed);
}

TEST_F(NotifyTest, AnOldVetoDoesNotCount)
{
    CreateWithRecord();
    record.wFlags = CF_CANCEL | CF_CHANGED;
    EXPECT_EQ(0, Notify(&record, 5));
    EXPECT_EQ(CF_CHANGED, record.wFlags);
}

TEST_F(NotifyTest, GivesTheCodeWhenTheParentHasDestroyedTheControl)
{
    const HWND hwnd = CreateWithRecord();
    parent.On(HGN_DBLCLK, [&] {
        DestroyWindow(hwnd);
        record.wFlags = CF_CANCEL;
    });
    EXPECT_EQ(HGN_DBLCLK, Notify(&record, HGN_DBLCLK));
    EXPECT_EQ(CF_CANCEL, record.wFlags) << "the record isn't touched";
}

TEST_F(NotifyTest, NotifyParentNeedsNoRecord)
{
    const HWND hwnd = Create("STATIC", "", 0, 0x54321);
    parent.On(9, [] {});
    seen.Clear();
    EXPECT_EQ(0, NotifyParent(hwnd, 9));
    const Seen expected[] = { { 0, ToParent, 9, 0x4321, reinterpret_cast<LPARAM>(hwnd) } };
    EXPECT_SEEN(expected);
}

TEST_F(NotifyTest, NotifyParentGivesTheAnswerOfTheParent)
{
    const HWND owner = CreateWithRecord();
    const HWND hwnd = CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 5, 5, owner, nullptr, nullptr, nullptr);
    handler = [](UINT message, WPARAM, LPARAM, int* pDefault) -> LRESULT {
        *pDefault = message != WM_COMMAND;
        return 77;
    };
    EXPECT_EQ(77, NotifyParent(hwnd, 9));
}

struct ColorRow {
    int  kind;
    UINT message;
};

TEST_F(NotifyTest, AsksTheParentForTheBrushOfAKind)
{
    constexpr ColorRow rows[] = {
        { 1, WM_CTLCOLOREDIT },   { 2, WM_CTLCOLORLISTBOX }, { 3, WM_CTLCOLORBTN },
        { 6, WM_CTLCOLORSTATIC }, { 21, HGM_CTLCOLOR },
    };
    const HWND   hwnd = CreateWithRecord();
    const HDC    hdc = reinterpret_cast<HDC>(INT_PTR{ 0x1230 });
    const HBRUSH brush = static_cast<HBRUSH>(GetStockObject(LTGRAY_BRUSH));
    for (const ColorRow& row : rows) {
        int asked = 0;
        parent.OnMessage(row.message, [&](WPARAM wParam, LPARAM lParam) {
            ++asked;
            EXPECT_EQ(reinterpret_cast<WPARAM>(hdc), wParam);
            EXPECT_EQ(reinterpret_cast<LPARAM>(hwnd), lParam);
            return reinterpret_cast<LRESULT>(brush);
        });
        EXPECT_EQ(brush, FireCtlColorMsg(&record, row.kind, hdc)) << row.kind;
        EXPECT_EQ(1, asked) << row.kind;
        parent.OnMessage(row.message, nullptr);
    }
}

TEST_F(NotifyTest, AnUnknownKindAsksNobody)
{
    CreateWithRecord();
    int asked = 0;
    for (UINT message = WM_CTLCOLORMSGBOX; message <= WM_CTLCOLORSTATIC; ++message) {
        parent.OnMessage(message, [&](WPARAM, LPARAM) { return LRESULT{ ++asked }; });
    }
    EXPECT_EQ(GetStockObject(WHITE_BRUSH), FireCtlColorMsg(&record, 4, nullptr));
    EXPECT_EQ(0, asked);
}

} // namespace
