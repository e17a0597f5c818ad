// Where the parts and the buttons of a combo stand.
#include "combo_window.h"

namespace {

constexpr DWORD edits = HCS_DROPDOWN | HCS_EDIT;

int ButtonWidth()
{
    return GetSystemMetrics(SM_CXVSCROLL);
}

class ComboLayout : public ComboWindow {
protected:
    static int FaceHeight() { return HIWORD(GetBaseUnits(nullptr)) + 8; }
    Ints       DropButton() const { return Corners(HCDropButtonRect(Ctl())); }
    Ints       XButton() const { return Corners(HCXButtonRect(Ctl())); }
};

TEST_F(ComboLayout, FaceOfADropComboLeavesRoomForItsButtons)
{
    const int c = ButtonWidth();
    struct Case {
        DWORD style;
        Ints  face;
    };
    const Case cases[] = {
        { edits, { 0, 1, 160 - c, 25 } },
        { edits | HCS_3DBORDER, { 0, 0, 160 - c, 24 } },
        { edits | HCS_XBUTTON | HCS_3DBORDER, { 0, 0, 160 - 2 * c, 24 } },
        { edits | HCS_STACKED | HCS_3DBORDER, { 0, 0, 160 - c, 24 } },
        { edits | HCS_NOBUTTON | HCS_3DBORDER, { 0, 0, 160 - c, 24 } },
        { HCS_DROPDOWN | HCS_3DBORDER, { 0, 0, 160 - c, 24 } },
    };
    for (const Case& line : cases) {
        Make("%120%ss", line.style, 160, 24);
        EXPECT_EQ(line.face, PlaceOf(Face())) << std::hex << line.style;
    }
}

TEST_F(ComboLayout, ListOfASimpleComboLiesBelowTheFace)
{
    const int f = FaceHeight();
    Make("%120%ss", HCS_EDIT, 160, 120);
    EXPECT_EQ((Ints{ 0, 1, 160, f + 1 }), PlaceOf(Face()));
    EXPECT_EQ(120 - f, Send(HCM_GETDROPHEIGHT));
    Ints list = PlaceOf(List());
    EXPECT_EQ((Ints{ 0, f - 1, 160 }), (Ints{ list[0], list[1], list[2] }));
    Make("%120%ss", HCS_EDIT | HCS_3DBORDER | HLS_NOINTEGRAL, 160, 120);
    EXPECT_EQ((Ints{ 0, 0, 160, f }), PlaceOf(Face()));
    EXPECT_EQ((Ints{ 0, f, 160, 120 }), PlaceOf(List()));
    Make("%120%ss", HCS_EDIT | HLS_NOINTEGRAL, 160, 120);
    EXPECT_EQ((Ints{ 0, f - 1, 160, 120 }), PlaceOf(List()));
}

TEST_F(ComboLayout, PartsFollowTheSize)
{
    const int c = ButtonWidth();
    Make("%120%ss", edits | HCS_3DBORDER);
    MoveWindow(combo, 10, 10, 300, 40, TRUE);
    EXPECT_EQ((Ints{ 0, 0, 300 - c, 40 }), PlaceOf(Face()));
    EXPECT_EQ(120, Send(HCM_GETDROPHEIGHT)) << "the list's height stays";
    Make("%120%ss", HCS_EDIT | HCS_3DBORDER | HLS_NOINTEGRAL, 160, 120);
    MoveWindow(combo, 10, 10, 300, 200, TRUE);
    EXPECT_EQ((Ints{ 0, FaceHeight(), 300, 200 }), PlaceOf(List()));
}

TEST_F(ComboLayout, SetHeightGivesTheHeightOfTheFace)
{
    Make("%120%ss", edits);
    EXPECT_EQ(24, HCSetHeight(Ctl(), 90));
    EXPECT_EQ(90, Ctl()->cyDrop);
    EXPECT_EQ(24, HCSetHeight(Ctl(), 1));
    EXPECT_EQ(72, Ctl()->cyDrop);
    Make("%120%ss", HCS_EDIT, 160, 120);
    EXPECT_EQ(FaceHeight(), HCSetHeight(Ctl(), 90));
    EXPECT_EQ(120 - FaceHeight(), Ctl()->cyDrop);
}

TEST_F(ComboLayout, TextStandsOffABorderOfOnePixel)
{
    RECT text = {};
    Make("%120%ss", edits);
    SendPtr(HEM_GETRECT, 0, &text);
    EXPECT_EQ(2, text.left);
    Make("%ss", edits);
    SendPtr(HEM_GETRECT, 0, &text);
    EXPECT_EQ(0, text.left) << "without a list";
    Make("%120%ss", edits | HCS_3DBORDER);
    SendPtr(HEM_GETRECT, 0, &text);
    EXPECT_EQ(3, text.left) << "of the edit's own frame";
}

TEST_F(ComboLayout, ButtonsStandAtTheRight)
{
    const int c = ButtonWidth();
    struct Case {
        const char* text;
        DWORD       style;
        bool        hasDrop;
        bool        hasX;
        Ints        drop;
        Ints        x;
    };
    const Ints right = { 160 - c, 0, 160, 24 };
    const Case cases[] = {
        { "%120%ss", 0, true, false, right, {} },
        { "%ss", 0, false, false, {}, {} },
        { "%120%ss", HCS_XBUTTON, true, true, { 160 - 2 * c, 0, 160 - c, 24 }, right },
        { "%ss", HCS_XBUTTON, false, true, {}, right },
        { "%120%ss", HCS_STACKED, true, true, { 160 - c, 0, 160, 13 }, { 160 - c, 13, 160, 24 } },
        { "%ss", HCS_STACKED, false, true, {}, right },
        { "%120%ss", HCS_NOBUTTON, false, true, {}, right },
        { "%120%ss", HCS_NOBUTTON | HCS_STACKED, false, true, {}, right },
        { "%120%ss", HCS_XBUTTON | HCS_STACKED, true, true, { 160 - 2 * c, 0, 160 - c, 24 }, right },
    };
    for (const Case& line : cases) {
        Make(line.text, edits | line.style, 160, 24);
        EXPECT_EQ(line.hasDrop, HCHasDropButton(Ctl())) << std::hex << line.style;
        EXPECT_EQ(line.hasX, HCHasXButton(Ctl())) << std::hex << line.style;
        if (line.hasDrop) {
            EXPECT_EQ(line.drop, DropButton()) << std::hex << line.style;
        }
        if (line.hasX) {
            EXPECT_EQ(line.x, XButton()) << std::hex << line.style;
        }
    }
}

TEST_F(ComboLayout, HitsAreWithinTheButtonsAlone)
{
    const int c = ButtonWidth();
    Make("%120%ss", edits | HCS_STACKED, 160, 24);
    EXPECT_TRUE(HCDropHit(Ctl(), 160 - c, 0));
    EXPECT_TRUE(HCDropHit(Ctl(), 159, 12));
    EXPECT_FALSE(HCDropHit(Ctl(), 159, 13));
    EXPECT_TRUE(HCXButtonHit(Ctl(), 159, 13));
    EXPECT_FALSE(HCXButtonHit(Ctl(), 159, 24));
    EXPECT_FALSE(HCDropHit(Ctl(), 159 - c, 0));
    EXPECT_FALSE(HCXButtonHit(Ctl(), 160, 20));
    Make("%120%ss", edits, 160, 24);
    EXPECT_FALSE(HCXButtonHit(Ctl(), 159, 20)) << "a button that isn't there";
    Make("%ss", edits, 160, 24);
    EXPECT_FALSE(HCDropHit(Ctl(), 159, 5));
}

TEST_F(ComboLayout, FontGoesToAllParts)
{
    const HFONT font = CreateFontA(-20, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    for (const DWORD style : { edits, static_cast<DWORD>(HCS_DROPDOWN), static_cast<DWORD>(HCS_EDIT) }) {
        Make("%120%ss", style, 160, 120);
        EXPECT_EQ(0, Send(WM_SETFONT, reinterpret_cast<WPARAM>(font), 0));
        EXPECT_EQ(AsParam(font), Send(WM_GETFONT));
        EXPECT_EQ(AsParam(font), ToFace(WM_GETFONT));
        EXPECT_EQ(AsParam(font), SendMessageA(List(), WM_GETFONT, 0, 0));
        EXPECT_EQ(AsParam(font), Send(WM_SETFONT, 0, 0)) << "the old one";
    }
    End();
    DeleteObject(font);
}

TEST_F(ComboLayout, NewFontKeepsTheTextOffTheBorder)
{
    Make("%120%ss", edits);
    RECT text = {};
    SendPtr(HEM_GETRECT, 0, &text);
    text.left = 0;
    SendPtr(HEM_SETRECT, 0, &text);
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(SYSTEM_FONT)), 0);
    SendPtr(HEM_GETRECT, 0, &text);
    EXPECT_EQ(2, text.left);
}

TEST_F(ComboLayout, FaceAboveAListThatLiesThereIsALineOfTheNewFontHigh)
{
    const HFONT font = CreateFontA(-40, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    const int   face = HIWORD(GetBaseUnits(font)) + 8;
    ASSERT_LT(FaceHeight(), face);
    for (const DWORD style : { DWORD{ HCS_EDIT }, DWORD{ 0 } }) {
        Make("%120%ss", style | HLS_NOINTEGRAL, 160, 160);
        Send(WM_SETFONT, reinterpret_cast<WPARAM>(font), 0);
        EXPECT_EQ((Ints{ 0, 1, 160, face + 1 }), PlaceOf(Face())) << style;
        EXPECT_EQ((Ints{ 0, face - 1, 160, 160 }), PlaceOf(List())) << style;
        EXPECT_EQ(160 - face, Send(HCM_GETDROPHEIGHT)) << style;
    }
    End();
    DeleteObject(font);
}

TEST_F(ComboLayout, NewFontKeepsTheTextOfAFaceAboveItsListOffTheBorder)
{
    Make("%120%ss", HCS_EDIT, 160, 120);
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(SYSTEM_FONT)), 0);
    RECT text = {};
    SendPtr(HEM_GETRECT, 0, &text);
    EXPECT_EQ(2, text.left);
}

} // namespace
