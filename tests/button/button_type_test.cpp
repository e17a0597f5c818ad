// What a button makes of its text: places, type, colours, caption, pictures, states.
#include "button_window.h"

#include "foundation/startup.h"
#include "support/guarded_memory.h"

#include <string>

namespace {

class ButtonType : public ButtonWindow {
protected:
    int Pictures() const { return static_cast<int>(Send(HBM_GETPICCOUNT)); }
    int States() const { return static_cast<int>(Send(HBM_GETSTATECOUNT)); }
    LRESULT Pic(int index) const { return Send(HBM_GETPIC, static_cast<WPARAM>(index)); }
};

TEST_F(ButtonType, RegistersItsClassWithTwoWords)
{
    WNDCLASSA info = {};
    ASSERT_NE(0, GetClassInfoA(GetModuleHandleA(nullptr), "HButt", &info));
    EXPECT_EQ(0x408Bu, info.style);
    EXPECT_EQ(static_cast<int>(2 * sizeof(LONG_PTR)), info.cbWndExtra);
    EXPECT_EQ(reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), info.hbrBackground);
    EXPECT_EQ(hCurArrow, info.hCursor);
    EXPECT_EQ(HButtWnd, info.lpfnWndProc);
    Make("x");
    EXPECT_EQ(reinterpret_cast<LONG_PTR>(Ctl()), GetWindowLongPtrA(button, sizeof(LONG_PTR)));
}

struct DefaultRow {
    DWORD kind;
    int   text;
    int   pic;
    int   relation;
    int   pictures;
    int   states;
};

// clang-format off
constexpr DefaultRow defaults[] = {
    { HBS_PUSH,                     4, 4, 1, 0, 1 },
    { HBS_DEFPUSH,                  4, 4, 1, 0, 1 },
    { HBS_CHECK,                    3, 3, 3, 4, 4 },
    { HBS_THREESTATE,               3, 3, 3, 4, 4 },
    { HBS_PUSH | HBS_UPDOWN,        4, 4, 1, 0, 2 },
    { HBS_CHECK | HBS_UPDOWN,       3, 3, 3, 4, 4 },
    { 3,                            0, 0, 0, 0, 2 },
    { 3 | HBS_UPDOWN,               0, 0, 0, 0, 4 },
};
// clang-format on

TEST_F(ButtonType, CaptionGetsTheDescriptionOfItsKind)
{
    for (const DefaultRow& row : defaults) {
        SCOPED_TRACE(row.kind);
        Make("Some caption", row.kind);
        EXPECT_EQ("Some caption", Caption());
        EXPECT_EQ(row.text, Send(HBM_GETTEXTPOS));
        EXPECT_EQ(row.pic, Send(HBM_GETPICPOS));
        EXPECT_EQ(row.relation, Send(HBM_GETRELPOS));
        EXPECT_EQ(row.pictures, Pictures());
        EXPECT_EQ(row.states, States());
        EXPECT_EQ(static_cast<LRESULT>(row.kind & HBS_KINDMASK), Send(HBM_GETKIND));
        EXPECT_EQ('w', Ctl()->chLinkType);
    }
}

TEST_F(ButtonType, ThreeStatesHaveThePicturesThatExist)
{
    Make("x", HBS_THREESTATE);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(DWORD{ PIC_DIB }, Ctl()->pPics[i].nKind) << i;
    }
    EXPECT_EQ(reinterpret_cast<LRESULT>(gNullPictures.normal.hImage), Pic(3)) << "the fourth that exists is HC5";
}

TEST_F(ButtonType, CheckHasImagesOfTheStrip)
{
    Make("x", HBS_CHECK);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(DWORD{ PIC_STRIP }, Ctl()->pPics[i].nKind) << i;
        EXPECT_EQ(i, Ctl()->pPics[i].nImage);
        EXPECT_EQ(-1, Pic(i));
    }
}

TEST_F(ButtonType, EmptyTextIsNoCaption)
{
    Make("");
    EXPECT_EQ(nullptr, Ctl()->pszCaption);
    EXPECT_EQ(0, Send(WM_GETTEXTLENGTH));
    Make(nullptr);
    EXPECT_EQ(nullptr, Ctl()->pszCaption);
    EXPECT_EQ("", Caption());
}

TEST_F(ButtonType, NumberInPlaceOfATextIsNoCaption)
{
    Make("x");
    Send(WM_DESTROY); // the record goes, and the window gets another one
    CREATESTRUCTA create = {};
    create.lpszClass = "HButt";
    create.lpszName = MAKEINTRESOURCEA(17);
    create.hwndParent = parent.hwnd();
    ASSERT_TRUE(SendPtr(WM_NCCREATE, 0, &create));
    EXPECT_EQ(nullptr, Ctl()->pszCaption);
}

TEST_F(ButtonType, DigitsGivePlacesAndALetterTheType)
{
    Make("012l;Ready;IM5:IM6", HBS_CHECK);
    EXPECT_EQ(0, Send(HBM_GETTEXTPOS));
    EXPECT_EQ(1, Send(HBM_GETPICPOS));
    EXPECT_EQ(2, Send(HBM_GETRELPOS));
    EXPECT_EQ('l', Ctl()->chLinkType);
    EXPECT_EQ(4, Send(HBM_GETVALUESIZE));
    EXPECT_EQ("Ready", Caption());
    EXPECT_EQ(2, Pictures());
    EXPECT_EQ(2, States());
}

TEST_F(ButtonType, SingleDigitLeavesTheOtherPlaces)
{
    Make("3");
    EXPECT_EQ(3, Send(HBM_GETTEXTPOS));
    EXPECT_EQ(0, Send(HBM_GETPICPOS));
    EXPECT_EQ(0, Send(HBM_GETRELPOS));
    EXPECT_EQ(nullptr, Ctl()->pszCaption);
    Send(HBM_SETPICPOS, 5);
    SendPtr(WM_SETTEXT, 0, "7;x");
    EXPECT_EQ(7, Send(HBM_GETTEXTPOS));
    EXPECT_EQ(5, Send(HBM_GETPICPOS));
}

TEST_F(ButtonType, DigitAboveEightIsTheFirstPlace)
{
    Make("998;x");
    EXPECT_EQ(0, Send(HBM_GETTEXTPOS));
    EXPECT_EQ(0, Send(HBM_GETPICPOS));
    EXPECT_EQ(8, Send(HBM_GETRELPOS));
}

struct LetterRow {
    const char* text;
    DWORD       kind;
    char        type;
};

constexpr LetterRow letters[] = {
    { "333b;x", HBS_CHECK, 'b' }, { "333i;x", HBS_CHECK, 'i' },      { "333?;x", HBS_CHECK, 'w' },
    { "333;x", HBS_CHECK, 'w' },  { "333l;x", HBS_THREESTATE, 'w' }, { "333l;x", HBS_PUSH, 'w' },
};

TEST_F(ButtonType, OnlyChecksReadATypeLetter)
{
    for (const LetterRow& row : letters) {
        Make(row.text, row.kind);
        EXPECT_EQ(row.type, Ctl()->chLinkType) << row.text << " kind " << row.kind;
        EXPECT_EQ("x", Caption());
    }
}

TEST_F(ButtonType, WhatStandsBeforeTheFirstSemicolonIsPassedOver)
{
    Make("441 anything [red] at all;Caption");
    EXPECT_EQ("Caption", Caption());
    EXPECT_EQ(0, Send(HBM_GETTEXTCOLOR));
}

TEST_F(ButtonType, ColourGroupsColourTheCaptionAndTheKey)
{
    Make("441;[red]Caption;[blue]IM1");
    EXPECT_EQ(0x0000FF, Send(HBM_GETTEXTCOLOR));
    EXPECT_EQ(0xFF0000, Send(HBM_GETPICKEY));
    EXPECT_EQ("Caption", Caption());
    EXPECT_EQ(1, Pictures());
    SendPtr(WM_SETTEXT, 0, "441;Other;IM1");
    EXPECT_EQ(0x0000FF, Send(HBM_GETTEXTCOLOR));
    EXPECT_EQ(0x00FF00, Send(HBM_GETPICKEY));
}

TEST_F(ButtonType, SecondColourMayBeGivenTwice)
{
    for (const char* const groups : { "[red][blue]", "[red][green][blue]", "[nothing][blue]", "[blue][nothing]" }) {
        Make((std::string("441;a;") + groups + "IM1").c_str());
        EXPECT_EQ(0xFF0000, Send(HBM_GETPICKEY)) << groups;
        EXPECT_EQ(1, Pictures()) << groups;
    }
    Make("441;a;[nothing]IM1");
    EXPECT_EQ(0x00FF00, Send(HBM_GETPICKEY));
}

TEST_F(ButtonType, KeyIsPureGreenWithoutAGroup)
{
    Make("x");
    EXPECT_EQ(0x00FF00, Send(HBM_GETPICKEY));
    EXPECT_EQ(0, Send(HBM_GETTEXTCOLOR));
}

TEST_F(ButtonType, CaptionHasLinesAndEscapes)
{
    Make("441;one^two\\^;IM1");
    EXPECT_EQ("one\ntwo^", Caption());
    Make("441;a\\\\b;IM1");
    EXPECT_EQ("a\\b", Caption());
    // The colour step takes the escape, so the field ends all the same.
    Make("441;a\\;b;IM1");
    EXPECT_EQ("a", Caption());
}

TEST_F(ButtonType, NamesThatLeadNowhereDoNotCount)
{
    Make("333;x;IM1:no such picture::IM2:", HBS_THREESTATE);
    EXPECT_EQ(2, Pictures());
    EXPECT_EQ(2, Ctl()->pPics[1].nImage);
    EXPECT_EQ(2, States());
}

TEST_F(ButtonType, ArrayOfPicturesGrowsByFour)
{
    struct Row {
        const char* names;
        int         count;
        size_t      capacity;
    };
    const Row rows[] = {
        { "IM1", 1, 4 },
        { "IM1:IM1", 2, 4 },
        { "IM1:IM1:IM1", 3, 8 },
        { "IM1:IM1:IM1:IM1:IM1:IM1", 6, 8 },
        { "IM1:IM1:IM1:IM1:IM1:IM1:IM1", 7, 12 },
    };
    for (const Row& row : rows) {
        Make((std::string("333;x;") + row.names).c_str());
        EXPECT_EQ(row.count, Pictures());
        EXPECT_EQ(row.capacity * sizeof(::Pic), BlockSize(Ctl()->pPics)) << row.names;
    }
}

struct LongRow {
    size_t length; // of the caption
    int    pictures;
    int    lastImage;
};

// clang-format off
constexpr LongRow longRows[] = {
    { 234, 4, 3 }, { 235, 4, 0 }, // the last name has lost its number
    { 236, 3, 2 }, { 238, 3, 2 }, { 239, 3, 0 },
    { 240, 2, 1 }, { 242, 2, 1 }, { 243, 2, 0 },
    { 244, 1, 0 }, { 247, 1, 0 },
    { 248, 0, 0 }, { 250, 0, 0 }, { 251, 0, 0 }, { 255, 0, 0 },
};
// clang-format on

TEST_F(ButtonType, LongCaptionTakesTheRoomOfTheDefaultPictures)
{
    for (const LongRow& row : longRows) {
        SCOPED_TRACE(row.length);
        Make(std::string(row.length, 'c').c_str(), HBS_CHECK);
        EXPECT_EQ(static_cast<LRESULT>(row.length), Send(WM_GETTEXTLENGTH));
        ASSERT_EQ(row.pictures, Pictures());
        EXPECT_EQ(row.pictures > 2 ? row.pictures : 2, States());
        if (row.pictures > 0) {
            EXPECT_EQ(row.lastImage, Ctl()->pPics[row.pictures - 1].nImage);
        }
    }
}

TEST_F(ButtonType, LongTextsAreCutNotOverrun)
{
    const std::string caption(1000, 'c');
    Make(caption.c_str(), HBS_CHECK);
    EXPECT_EQ(255, Send(WM_GETTEXTLENGTH));
    EXPECT_EQ(0, Pictures());
    std::string many = "333;x;";
    for (int i = 0; i < 300; ++i) {
        many += "IM1:";
    }
    Make(many.c_str());
    EXPECT_EQ(64, Pictures());
}

TEST_F(ButtonType, TextWithoutADigitReplacesTheCaptionAlone)
{
    Make("012;Old;IM5:IM6");
    EXPECT_EQ(1, SendPtr(WM_SETTEXT, 0, "New; one^two"));
    EXPECT_EQ("New; one\ntwo", Caption());
    EXPECT_EQ(2, Pictures());
    EXPECT_EQ(0, Send(HBM_GETTEXTPOS));
    EXPECT_EQ(1, SendPtr(WM_SETTEXT, 0, ""));
    EXPECT_EQ(nullptr, Ctl()->pszCaption);
    EXPECT_EQ(0, Send(WM_SETTEXT));
}

TEST_F(ButtonType, TypeTextReplacesAll)
{
    Make("012;Old;IM5:IM6:IM7:IM8");
    Send(BM_SETCHECK, 3);
    EXPECT_EQ(1, SendPtr(WM_SETTEXT, 0, "345;New;IM1"));
    EXPECT_EQ("New", Caption());
    EXPECT_EQ(1, Pictures());
    EXPECT_EQ(0, State()) << "a state that is no more isn't kept";
}

TEST_F(ButtonType, NewTextOfEitherKindRepaints)
{
    Make("441;Old");
    for (const char* const text : { "plain", "345;New;IM1" }) {
        Validate();
        EXPECT_EQ(1, SendPtr(WM_SETTEXT, 0, text));
        EXPECT_TRUE(IsInvalid()) << text;
    }
}

TEST_F(ButtonType, CaptionMayBeSetFromItself)
{
    Make("441;7own caption");
    EXPECT_EQ(1, SendPtr(WM_SETTEXT, 0, Ctl()->pszCaption));
    EXPECT_EQ(7, Send(HBM_GETTEXTPOS));
    SendPtr(WM_SETTEXT, 0, "plain");
    EXPECT_EQ(1, SendPtr(WM_SETTEXT, 0, Ctl()->pszCaption));
    EXPECT_EQ("plain", Caption());
}

TEST_F(ButtonType, TextIsCopiedAsFarAsThereIsRoom)
{
    Make("Caption");
    char buffer[16] = "###############";
    EXPECT_EQ(3, SendPtr(WM_GETTEXT, 4, buffer));
    EXPECT_STREQ("Cap", buffer);
    EXPECT_EQ('#', buffer[4]);
    EXPECT_EQ(0, SendPtr(WM_GETTEXT, 0, buffer));
    EXPECT_EQ(7, Send(WM_GETTEXTLENGTH));
}

TEST_F(ButtonType, CreationWithoutMemoryFailsOrIsWhole)
{
    for (FailEachAllocation each; each.Next();) {
        const HWND made = CreateWindowExA(0, "HButt", "333;Caption;IM1:IM2:IM3:HC1", WS_CHILD | HBS_CHECK, 0, 0, 10, 10,
                                          parent.hwnd(), nullptr, GetModuleHandleA(nullptr), nullptr);
        if (made) {
            EXPECT_STREQ("Caption", RecordOf<HButtCtl>(made)->pszCaption) << each.Number();
            DestroyWindow(made);
        }
    }
}

TEST_F(ButtonType, TypeTextWithoutMemoryLeavesAButtonThatWorks)
{
    Make("012;Old;IM5:IM6:IM7:IM8", HBS_CHECK);
    for (FailEachAllocation each; each.Next();) {
        SendPtr(WM_SETTEXT, 0, "333;Caption;IM1:IM2:IM3:HC1");
        EXPECT_LE(1, States());
        Send(BM_SETCHECK, 1);
        UpdateWindow(button);
    }
}

TEST_F(ButtonType, NoFocusTakesTheTabStop)
{
    Make("x", HBS_NOFOCUS | WS_TABSTOP);
    EXPECT_EQ(0u, Ctl()->dwStyle & WS_TABSTOP);
    EXPECT_EQ(0, GetWindowLongA(button, GWL_STYLE) & WS_TABSTOP);
    Make("x", WS_TABSTOP);
    EXPECT_EQ(DWORD{ WS_TABSTOP }, Ctl()->dwStyle & WS_TABSTOP);
}

// The life of the record and what all buttons share

TEST_F(ButtonType, FirstButtonLoadsTheNullPicturesAndTheLastFreesThem)
{
    EXPECT_EQ(nullptr, gNullPictures.normal.hImage);
    const HWND first = Make("one");
    const HWND second = Create("HButt", "two");
    ASSERT_NE(nullptr, gNullPictures.normal.hImage);
    EXPECT_EQ(gNullPictures.normal.hImage, gNullPictures.pressed.hImage);
    DestroyWindow(first);
    EXPECT_NE(nullptr, gNullPictures.normal.hImage);
    DestroyWindow(second);
    EXPECT_EQ(nullptr, gNullPictures.normal.hImage);
}

struct RecordAtEnd {
    HWND     button;
    LONG_PTR atDestroy;
};
RecordAtEnd gAtEnd;

LRESULT CALLBACK SeeRecord(int code, WPARAM wParam, LPARAM lParam)
{
    const CWPRETSTRUCT& call = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (code >= 0 && call.hwnd == gAtEnd.button && call.message == WM_DESTROY) {
        gAtEnd.atDestroy = GetWindowLongPtrA(call.hwnd, sizeof(LONG_PTR));
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

TEST_F(ButtonType, RecordGoesWithTheFirstMessageOfTheEnd)
{
    const int live = LiveBlocks();
    gAtEnd = { Make("x", HBS_CHECK), -1 };
    const HHOOK hook = SetWindowsHookExA(WH_CALLWNDPROCRET, SeeRecord, nullptr, GetCurrentThreadId());
    DestroyButton();
    UnhookWindowsHookEx(hook);
    EXPECT_EQ(0, gAtEnd.atDestroy);
    EXPECT_EQ(live, LiveBlocks());
}

int gRecordsSeen;

// Reads the record on every message that asks for none itself, as a host's procedure may.
LRESULT CALLBACK ReadRecord(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT state = message == WWM_GETSTATE ? 0 : HButtWnd(hwnd, WWM_GETSTATE, 0, 0);
    if (const HButtCtl* const ctl = reinterpret_cast<const HButtCtl*>(state)) {
        EXPECT_EQ(hwnd, +ctl->hWnd) << message;
        EXPECT_STREQ("Caption", ctl->pszCaption) << message;
        ++gRecordsSeen;
    }
    return HButtWnd(hwnd, message, wParam, lParam);
}

TEST_F(ButtonType, RecordIsWholeAsLongAsItIsAttached)
{
    Make("441;Caption;IM1");
    SetWindowLongPtrA(button, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ReadRecord));
    gRecordsSeen = 0;
    DestroyButton();
    EXPECT_GT(gRecordsSeen, 0);
}

TEST_F(ButtonType, MessagesWithoutARecordGoToTheDefault)
{
    Make("x");
    Send(WM_DESTROY);
    EXPECT_EQ(nullptr, Ctl());
    EXPECT_EQ(0, Send(HBM_GETKIND));
    EXPECT_EQ(0, Send(HBM_CLICK));
    Send(WM_NCDESTROY);
    DestroyButton();
}

TEST_F(ButtonType, GlyphBitmapGoesWithTheWindow)
{
    Make("x");
    Ctl()->hGlyphBitmap = CreateBitmap(4, 4, 1, 1, nullptr);
    const HBITMAP glyph = Ctl()->hGlyphBitmap;
    DestroyButton();
    EXPECT_EQ(0u, GetObjectType(glyph));
}

} // namespace
