// Messages that a combo hands on to its parts, and those that it keeps.
#include "combo_window.h"

namespace {

constexpr DWORD edits = HCS_DROPDOWN | HCS_EDIT;
constexpr DWORD fields = HCS_DROPDOWN;

class ComboMessages : public ComboWindow {
protected:
    void MakeThree(DWORD style, int height = 24)
    {
        Make("%120%ss%ni", style, 160, height);
        Add({ "apple", "pear", "plum" });
    }
    LRESULT AskList(UINT message, WPARAM wParam = 0) const { return SendMessageA(List(), message, wParam, 0); }
};

// Counts what comes to a window of the tests, past every table.
struct Arrival {
    UINT   message;
    WPARAM wParam;
    LPARAM lParam;
};
std::vector<Arrival> gArrived;
WNDPROC              gListProc;
UINT                 gAwaited;

LRESULT CALLBACK CountingProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == gAwaited) {
        gArrived.push_back({ message, wParam, lParam });
        return 4711;
    }
    return CallWindowProcA(gListProc, hwnd, message, wParam, lParam);
}

TEST_F(ComboMessages, NumbersFrom1174OnGoToTheList)
{
    MakeThree(edits);
    gListProc =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrA(List(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountingProc)));
    for (const UINT message : { 1174u, 1186u, 1187u, 1190u, 1203u, 1236u, 1239u, 1246u, 1261u, 1268u, 1296u, 1301u,
                                1304u, 1324u, 1326u, 2000u, 0x8000u }) {
        gAwaited = message;
        gArrived.clear();
        EXPECT_EQ(4711, Send(message, 11, 22)) << message;
        ASSERT_EQ(1u, gArrived.size()) << message;
        EXPECT_EQ(11u, gArrived[0].wParam) << message;
        EXPECT_EQ(22, gArrived[0].lParam) << message;
    }
    for (const UINT message : { 1024u, 1065u, 1100u, 1173u, 1325u }) {
        gAwaited = message;
        gArrived.clear();
        Send(message, 0, 0);
        EXPECT_TRUE(gArrived.empty()) << message;
    }
    SetWindowLongPtrA(List(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(gListProc));
}

TEST_F(ComboMessages, NumbersBelow1174GoToTheFaceItself)
{
    MakeThree(edits);
    EXPECT_EQ(1, Send(HEM_SETPASSWORDCHAR, '#'));
    EXPECT_EQ('#', ToFace(HEM_GETPASSWORDCHAR));
    EXPECT_EQ('s', Send(HEM_GETTYPE));
    EXPECT_NE(0, Send(HEM_GETTEXTPTR));
    MakeThree(fields);
    EXPECT_EQ(0, Send(HEM_GETPASSWORDCHAR)) << "a field doesn't know it";
    EXPECT_EQ('s', Send(HLM_GETDATATYPE));
    // Past a procedure that a host puts in front of the face.
    gListProc =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrA(Face(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountingProc)));
    gAwaited = HLM_GETDATATYPE;
    gArrived.clear();
    EXPECT_EQ('s', Send(HLM_GETDATATYPE));
    EXPECT_TRUE(gArrived.empty());
    SetWindowLongPtrA(Face(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(gListProc));
}

TEST_F(ComboMessages, FrameAnswersItsOwn)
{
    MakeThree(edits);
    EXPECT_EQ(reinterpret_cast<LRESULT>(Ctl()), Send(WWM_GETSTATE));
    EXPECT_EQ(AsParam(parent.hwnd()), Send(WWM_GETPARENT));
    EXPECT_EQ(static_cast<LRESULT>(Ctl()->dwStyle), Send(WWM_GETSTYLE));
    EXPECT_EQ(1, Send(WWM_SETUPDATING, 1));
    EXPECT_EQ(1, Send(WWM_GETUPDATING));
    EXPECT_EQ(1, Send(WWM_SETCHANGED, 1));
    EXPECT_EQ(1, Send(WWM_GETCHANGED)) << "the parts are told, since they are asked";
    EXPECT_EQ(1, Send(WWM_SETCHANGED, 0));
    EXPECT_EQ(0, Send(WWM_GETCHANGED));
    EXPECT_EQ(1, Send(WWM_CANCEL));
    EXPECT_EQ(0, Send(WWM_ISNULL));
    EXPECT_EQ(1, Send(WWM_SETSTYLE, 0, static_cast<LPARAM>(Ctl()->dwStyle)));
    EXPECT_EQ(AsParam(parent.hwnd()), Send(WWM_SETPARENT, 0));
    EXPECT_EQ(0, Send(WWM_SETPARENT, reinterpret_cast<WPARAM>(parent.hwnd())));
}

TEST_F(ComboMessages, EditIsMadeReadOnly)
{
    MakeThree(edits);
    EXPECT_EQ(1, Send(HEM_SETREADONLY, 2));
    EXPECT_EQ(HES_READONLY | HES_STATIC, ToFace(WWM_GETSTYLE) & (HES_READONLY | HES_STATIC));
    Send(HEM_SETREADONLY, 0);
    EXPECT_EQ(0, ToFace(WWM_GETSTYLE) & (HES_READONLY | HES_STATIC));
}

TEST_F(ComboMessages, BrushAndColorGoToBothParts)
{
    for (const DWORD style : { edits, fields }) {
        MakeThree(style);
        const HBRUSH brush = static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH));
        EXPECT_EQ(0, Send(HLM_SETBKBRUSH, reinterpret_cast<WPARAM>(brush), 0));
        EXPECT_EQ(AsParam(brush), AskList(HLM_GETBKBRUSH));
        EXPECT_EQ(AsParam(brush), ToFace(HLM_GETBKBRUSH));
        EXPECT_EQ(AsParam(brush), Send(HLM_SETBKBRUSH, 0, 0)) << "the face's old one";
        Send(HLM_SETCOLOR, 1, 0x123456);
        EXPECT_EQ(0x123456, AskList(HLM_GETCOLOR, 1));
        EXPECT_EQ(0x123456, ToFace(HLM_GETCOLOR, 1));
    }
}

TEST_F(ComboMessages, FocusBrushIsTheBackgroundOfADroppedList)
{
    const HBRUSH brush = static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH));
    MakeThree(edits | HCS_FOCUSBRUSH);
    Send(HLM_SETFOCUSBRUSH, reinterpret_cast<WPARAM>(brush), 0);
    EXPECT_EQ(AsParam(brush), ToFace(HLM_GETFOCUSBRUSH));
    EXPECT_EQ(AsParam(brush), AskList(HLM_GETBKBRUSH));
    MakeThree(edits);
    Send(HLM_SETFOCUSBRUSH, reinterpret_cast<WPARAM>(brush), 0);
    EXPECT_EQ(0, AskList(HLM_GETBKBRUSH));
    MakeThree(HCS_EDIT | HCS_FOCUSBRUSH, 120);
    Send(HLM_SETFOCUSBRUSH, reinterpret_cast<WPARAM>(brush), 0);
    EXPECT_EQ(0, AskList(HLM_GETBKBRUSH));
    EXPECT_EQ(AsParam(brush), ToFace(HLM_GETFOCUSBRUSH));
}

TEST_F(ComboMessages, ChangesOfItemsRepaintAField)
{
    MakeThree(fields);
    const int stop = 40;
    struct Change {
        UINT        message;
        WPARAM      wParam;
        const void* data;
        LRESULT     result;
    };
    const Change changes[] = {
        { HLM_ADDITEM, 0, "fig", 3 }, { HLM_INSERTITEM, 0, "date", 0 }, { HLM_DELETEITEM, 0, nullptr, 1 },
        { HLM_SETTABS, 2, &stop, 1 }, { HLM_EMPTY, 0, nullptr, 1 },
    };
    const int stops[] = { 10, 20 };
    for (const Change& change : changes) {
        PumpPending();
        ValidateRect(Face(), nullptr);
        EXPECT_EQ(change.result,
                  SendPtr(change.message, change.wParam, change.message == HLM_SETTABS ? stops : change.data))
            << change.message;
        EXPECT_TRUE(GetUpdateRect(Face(), nullptr, FALSE)) << change.message;
    }
}

TEST_F(ComboMessages, ModeOfASelectionIsAlwaysSet)
{
    Make("%120%ss%ni", edits | HLS_SORTDATA);
    const int codes[] = { 2, 1 };
    HCAddItemEx(combo, "pear", &codes[0]);
    HCAddItemEx(combo, "apple", &codes[1]);
    EXPECT_EQ(1, SendPtr(HLM_SELECTDATA, HLSEL_TOGGLE, "pear"));
    EXPECT_EQ("pear", Text());
    gListProc =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrA(List(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountingProc)));
    for (const UINT message : { static_cast<UINT>(HLM_SELECTDATA), static_cast<UINT>(HLM_SELECTCODE) }) {
        gAwaited = message;
        gArrived.clear();
        Send(message, HLSEL_CLEAR, 0);
        ASSERT_EQ(1u, gArrived.size());
        EXPECT_EQ(static_cast<WPARAM>(HLSEL_SET), gArrived[0].wParam);
    }
    SetWindowLongPtrA(List(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(gListProc));
}

TEST_F(ComboMessages, ListMessagesWithoutAListGiveZero)
{
    Make("%ss", edits);
    for (const UINT message : { HLM_GETCOUNT, HLM_EMPTY, HLM_GETCURRENT, HLM_SETCURRENT, HLM_GETTOP, CB_GETCOUNT,
                                CB_GETCURSEL, CB_SETCURSEL, CB_RESETCONTENT, CB_GETLBTEXTLEN }) {
        EXPECT_EQ(0, Send(message)) << message;
    }
    EXPECT_EQ(1, SendPtr(HEM_SETDATA, 0, "x")) << "the face is there";
    EXPECT_EQ(0, Send(WWM_GETCHANGED));
}

TEST_F(ComboMessages, EnablingRepaints)
{
    MakeThree(edits);
    PumpPending();
    ValidateRect(combo, nullptr);
    EnableWindow(combo, FALSE);
    EXPECT_TRUE(GetUpdateRect(combo, nullptr, FALSE));
    EnableWindow(combo, TRUE);
}

TEST_F(ComboMessages, UnknownMessagesOfTheSystemAreTheDefaults)
{
    MakeThree(edits);
    EXPECT_EQ(HTCLIENT, Send(WM_NCHITTEST, 0, [&] {
                  POINT at = { 5, 5 };
                  ClientToScreen(combo, &at);
                  return MAKELPARAM(at.x, at.y);
              }()));
    EXPECT_EQ(0, Send(CB_DIR));
}

} // namespace
