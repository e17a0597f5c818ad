// Messages that read and change one column.
#include "gridctl/grid_window.h"

#include "foundation/screen.h"
#include "foundation/startup.h"

namespace {

class GridFieldMessages : public GridWindow {};

TEST_F(GridFieldMessages, ColumnTellsWhatItWasMadeOf)
{
    HGField* const field = HGFieldCreate("Price", HFF_READONLY | 0x100, 90, 40, 'n', 'd', 'd', 'l', 0, 'e', 0x12, "0.00", 0);
    MakeGrid(GridOf({ Text(10), field }), 1);
    struct Case {
        UINT    message;
        LRESULT expected;
    };
    const Case cases[] = {
        { HGM_GETFIELDBAND, 0 },         { HGM_GETFIELDKIND, 'e' },      { HGM_GETFIELDCLASS, 'n' },
        { HGM_GETFIELDTYPE, 'd' },       { HGM_GETFIELDCLASS2, 'd' },    { HGM_GETFIELDTYPE2, 'l' },
        { HGM_GETFIELDSIZE, 8 },         { HGM_GETFIELDFORMATLEN, 4 },   { HGM_GETFIELDTITLELEN, 5 },
        { HGM_GETFIELDNAMELEN, 5 },      { HGM_GETFIELDWIDTH, 90 },      { HGM_GETFIELDDROP, 40 },
        { HGM_GETFIELDFLAGS, 0x104 },    { HGM_GETFIELDOFFSET, 10 },     { HGM_GETFIELDRESERVED, 0 },
        { HGM_GETFIELDSTYLE, 0x12 | HES_EDITRIGHT },
    };
    for (const Case& each : cases) {
        EXPECT_EQ(each.expected, Send(grid, each.message, 1)) << each.message;
    }
}

TEST_F(GridFieldMessages, TextsAreCopiedOut)
{
    MakeGrid(GridOf({ Number("Total", 0, "#,##0") }), 1);
    char text[32] = {};
    EXPECT_EQ(1, SendPtr(grid, HGM_GETFIELDFORMAT, 0, text));
    EXPECT_STREQ("#,##0", text);
    EXPECT_EQ(1, SendPtr(grid, HGM_GETFIELDTITLE, 0, text));
    EXPECT_STREQ("Total", text);
    EXPECT_EQ(1, SendPtr(grid, HGM_GETFIELDNAME, 0, text));
    EXPECT_STREQ("Total", text);
}

TEST_F(GridFieldMessages, WithoutSuchAColumnTheAnswerIsZero)
{
    MakeGrid(GridOf({ Text() }), 1);
    char text[8] = "kept";
    for (UINT message = HGM_GETFIELDCHILD; message <= HGM_GETFIELDRESERVED; ++message) {
        EXPECT_EQ(0, SendPtr(grid, message, 1, text)) << message;
        EXPECT_EQ(0, SendPtr(grid, message, static_cast<WPARAM>(-1), text)) << message;
    }
    EXPECT_STREQ("kept", text);
    EXPECT_EQ(0, Send(grid, HGM_GETFIELDBAND, 1));
    EXPECT_EQ(0, Send(grid, HGM_SETFIELDBAND, 1, 0));
    EXPECT_EQ(0, Send(grid, HGM_SETFIELDBOLD, 1));
    EXPECT_EQ(0, SendPtr(grid, HGM_GETFIELDNAME, 1, text));
    EXPECT_EQ(0, Send(grid, HGM_GETFIELDNAMELEN, 1));
}

TEST_F(GridFieldMessages, FormatRepaintsTheCellsOfItsColumn)
{
    MakeGrid(GridOf({ Text(), Number(), Text() }), 3);
    UpdateWindow(grid);
    ValidateRect(grid, nullptr);
    SendPtr(grid, HGM_SETFIELDFORMAT, 1, "###");
    RECT update = {};
    RECT first = {};
    RECT last = {};
    GetUpdateRect(grid, &update, FALSE);
    HGCellRect(ctl, &first, 1, 0, false);
    HGCellRect(ctl, &last, 1, 2, false);
    const RECT expected = { first.left, first.top, last.right, last.bottom };
    EXPECT_TRUE(EqualRect(&expected, &update));
}

TEST_F(GridFieldMessages, BandAtTheCountIsRefused)
{
    MakeGrid(GridOf({ Text() }), 1);
    Send(grid, HGM_SETBANDS, 0, 2);
    EXPECT_EQ(0, Send(grid, HGM_SETFIELDBAND, 0, 2));
    EXPECT_EQ(0, Send(grid, HGM_GETFIELDBAND, 0));
    EXPECT_EQ(1, Send(grid, HGM_SETFIELDBAND, 0, 1));
    EXPECT_EQ(1, Send(grid, HGM_GETFIELDBAND, 0));
}

TEST_F(GridFieldMessages, NewFormatReachesCellsAndControl)
{
    MakeGrid(GridOf({ Number("N", 0, "0") }), 1);
    SetText(0, 0, "5");
    EXPECT_EQ(1, SendPtr(grid, HGM_SETFIELDFORMAT, 0, "0.00"));
    EXPECT_EQ("5.00", CellText(0, 0));
    const HWND child = reinterpret_cast<HWND>(Send(grid, HGM_GETFIELDCHILD, 0));
    char format[16] = {};
    SendPtr(child, HEM_GETFORMAT, sizeof format, format);
    EXPECT_STREQ("0.00", format);
    EXPECT_EQ(1, Send(grid, HGM_SETFIELDFORMAT, 0, 0));
    EXPECT_EQ("5.00", CellText(0, 0));
}

TEST_F(GridFieldMessages, NewTitleInvalidatesTheHeader)
{
    MakeGrid(GridOf({ Text() }), 1);
    UpdateWindow(grid);
    ValidateRect(grid, nullptr);
    EXPECT_EQ(1, SendPtr(grid, HGM_SETFIELDTITLE, 0, "New"));
    RECT invalid = {};
    GetUpdateRect(grid, &invalid, FALSE);
    EXPECT_EQ(40, invalid.left);
    EXPECT_LE(invalid.bottom, 20);
    char text[16] = {};
    SendPtr(grid, HGM_GETFIELDTITLE, 0, text);
    EXPECT_STREQ("New", text);
    SendPtr(grid, HGM_GETFIELDNAME, 0, text);
    EXPECT_STREQ("Text", text);
}

TEST_F(GridFieldMessages, WidthIsBoundedAndPassesTheResolution)
{
    MakeGrid(GridOf({ Text(), Text() }), 1);
    EXPECT_EQ(1, Send(grid, HGM_SETFIELDWIDTH, 0, 1));
    EXPECT_EQ(2, Send(grid, HGM_GETFIELDWIDTH, 0));
    Send(grid, HGM_SETFIELDWIDTH, 0, 5000);
    EXPECT_EQ(2000, Send(grid, HGM_GETFIELDWIDTH, 0));
    const int kept = nDpiX;
    nDpiX = 144;
    Send(grid, HGM_SETFIELDWIDTH, 0, 100);
    EXPECT_EQ(150, HGGetField(ctl->pData, 0)->nWidth);
    EXPECT_EQ(100, Send(grid, HGM_GETFIELDWIDTH, 0));
    SetGridAppDPIScaling(0);
    EXPECT_EQ(150, Send(grid, HGM_GETFIELDWIDTH, 0));
    SetGridAppDPIScaling(1);
    nDpiX = kept;
}

TEST_F(GridFieldMessages, WidthInvalidatesFromTheColumnOn)
{
    MakeGrid(GridOf({ Text(), Text(), Text() }), 1);
    UpdateWindow(grid);
    ValidateRect(grid, nullptr);
    Send(grid, HGM_SETFIELDWIDTH, 1, 60);
    RECT invalid = {};
    GetUpdateRect(grid, &invalid, FALSE);
    EXPECT_EQ(40 + 80, invalid.left);
    EXPECT_LE(40 + 80 + 60 + 80, invalid.right);
}

TEST_F(GridFieldMessages, DropHeightIsKept)
{
    MakeGrid(GridOf({ Text() }), 1);
    EXPECT_EQ(1, Send(grid, HGM_SETFIELDDROP, 0, 77));
    EXPECT_EQ(77, Send(grid, HGM_GETFIELDDROP, 0));
}

TEST_F(GridFieldMessages, FlagsAreSetAndClearedByMask)
{
    MakeGrid(GridOf({ Text() }), 1);
    EXPECT_EQ(1, Send(grid, HGM_SETFIELDFLAGS, 0, MAKELPARAM(1, HFF_HIDDEN | 0x4000)));
    EXPECT_EQ(HFF_HIDDEN | 0x4000, Send(grid, HGM_GETFIELDFLAGS, 0));
    EXPECT_EQ(1, Send(grid, HGM_SETFIELDFLAGS, 0, MAKELPARAM(0, HFF_HIDDEN)));
    EXPECT_EQ(0x4000, Send(grid, HGM_GETFIELDFLAGS, 0));
}

TEST_F(GridFieldMessages, ReadOnlyChangeShowsAndHidesTheEditorOfTheCurrentColumn)
{
    MakeGrid(GridOf({ Text(16, "A", HFF_READONLY), Text() }), 2);
    SetText(0, 0, "shown");
    SetFocus(grid);
    MoveTo(0, 0);
    EXPECT_EQ(nullptr, ctl->hEditor);
    Send(grid, HGM_SETFIELDFLAGS, 0, MAKELPARAM(0, HFF_READONLY));
    ASSERT_NE(nullptr, ctl->hEditor);
    EXPECT_TRUE(IsWindowVisible(ctl->hEditor));
    EXPECT_EQ("shown", TextOf(ctl->hEditor));
    Send(grid, HGM_SETFIELDFLAGS, 0, MAKELPARAM(1, HFF_READONLY));
    EXPECT_NE(nullptr, ctl->hEditor);
    EXPECT_FALSE(IsWindowVisible(ctl->hEditor));
}

TEST_F(GridFieldMessages, BoldNeedsABoldFont)
{
    MakeGrid(GridOf({ Text() }), 1);
    EXPECT_EQ(1, Send(grid, HGM_SETFIELDBOLD, 0));
    EXPECT_EQ(1, HGGetField(ctl->pData, 0)->fBold);
    const HWND child = reinterpret_cast<HWND>(Send(grid, HGM_GETFIELDCHILD, 0));
    EXPECT_EQ(reinterpret_cast<LRESULT>(ctl->hBoldFont), Send(child, WM_GETFONT));
    const HFONT bold = ctl->hBoldFont;
    ctl->hBoldFont = nullptr;
    EXPECT_EQ(0, Send(grid, HGM_SETFIELDBOLD, 0));
    ctl->hBoldFont = bold;
}


TEST_F(GridFieldMessages, StoredTextsMayBeGivenBack)
{
    MakeGrid(GridOf({ Number("Amount", 0, "*0.0"), Text() }), 1);
    const HGField* const field = HGGetField(ctl->pData, 0);
    const std::string format = field->pszFormat;
    EXPECT_EQ(1, SendPtr(grid, HGM_SETFIELDFORMAT, 0, field->pszFormat));
    EXPECT_EQ(format, field->pszFormat);
    char shown[16] = {};
    SendPtr(field->pCtl->hWnd, HEM_GETFORMAT, sizeof shown, shown);
    EXPECT_EQ(format, shown);
    EXPECT_EQ(1, SendPtr(grid, HGM_SETFIELDTITLE, 0, field->pszTitle));
    EXPECT_STREQ("Amount", field->pszTitle);
}

TEST_F(GridFieldMessages, HidingAColumnInvalidatesAllBehindIt)
{
    MakeGrid(GridOf({ Text(), Text(), Text() }), 3);
    for (const int set : { 1, 0 }) {
        UpdateWindow(grid);
        ASSERT_FALSE(IsInvalid());
        Send(grid, HGM_SETFIELDFLAGS, 1, MAKELPARAM(set, HFF_HIDDEN));
        RECT update{};
        RECT client{};
        GetUpdateRect(grid, &update, FALSE);
        GetClientRect(grid, &client);
        EXPECT_EQ(120, update.left) << set;
        EXPECT_EQ(client.right, update.right) << set;
    }
}

} // namespace
