// The messages that all controls answer alike, on a record without a window.
#include "dialog/control_frame.h"

#include <gtest/gtest.h>

namespace {

HWND FakeWindow(INT_PTR value)
{
    return reinterpret_cast<HWND>(value);
}

HFONT FakeFont(INT_PTR value)
{
    return reinterpret_cast<HFONT>(value);
}

LRESULT Ask(ControlHeader* header, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    LRESULT result = -99;
    EXPECT_EQ(1, IsStdMessage(header, message, wParam, lParam, &result)) << message;
    return result;
}

struct FlagMessage {
    UINT message;
    WORD bit;
};

TEST(IsStdMessage, TellsOfFlags)
{
    constexpr FlagMessage rows[] = {
        { WWM_GETCHANGED, CF_CHANGED },
        { WWM_GETUPDATING, CF_UPDATING },
        { WWM_ISNULL, CF_NULL },
    };
    for (const FlagMessage& row : rows) {
        ControlHeader header = {};
        header.wFlags = static_cast<WORD>(~row.bit);
        EXPECT_EQ(0, Ask(&header, row.message)) << row.message;
        header.wFlags = row.bit;
        EXPECT_EQ(1, Ask(&header, row.message)) << row.message;
    }
}

TEST(IsStdMessage, SetsAndClearsFlagsAlone)
{
    constexpr FlagMessage rows[] = { { WWM_SETCHANGED, CF_CHANGED }, { WWM_SETUPDATING, CF_UPDATING } };
    for (const FlagMessage& row : rows) {
        ControlHeader header = {};
        header.wFlags = 0x0421;
        EXPECT_EQ(1, Ask(&header, row.message, 7)) << row.message;
        EXPECT_EQ(0x0421 | row.bit, header.wFlags) << row.message;
        EXPECT_EQ(1, Ask(&header, row.message, 0)) << row.message;
        EXPECT_EQ(0x0421, header.wFlags) << row.message;
    }
}

TEST(IsStdMessage, CancelSetsTheVeto)
{
    ControlHeader header = {};
    EXPECT_EQ(1, Ask(&header, WWM_CANCEL));
    EXPECT_EQ(CF_CANCEL, header.wFlags);
}

TEST(IsStdMessage, GivesAndChangesTheParent)
{
    ControlHeader header = {};
    header.hParent = FakeWindow(0x1234);
    EXPECT_EQ(0x1234, Ask(&header, WWM_GETPARENT));
    EXPECT_EQ(0x1234, Ask(&header, WWM_SETPARENT, 0x5678));
    EXPECT_EQ(0x5678, Ask(&header, WWM_GETPARENT));
}

TEST(IsStdMessage, GivesAndChangesTheStyle)
{
    ControlHeader header = {};
    header.dwStyle = 0x50000001;
    EXPECT_EQ(0x50000001, Ask(&header, WWM_GETSTYLE));
    EXPECT_EQ(1, Ask(&header, WWM_SETSTYLE, 0, 0x40000080));
    EXPECT_EQ(0x40000080, Ask(&header, WWM_GETSTYLE));
}

TEST(IsStdMessage, GivesAndChangesTheFont)
{
    ControlHeader header = {};
    header.hFont = FakeFont(0x11);
    EXPECT_EQ(0x11, Ask(&header, WM_GETFONT));
    EXPECT_EQ(0x11, Ask(&header, WM_SETFONT, 0x22));
    EXPECT_EQ(0x22, Ask(&header, WM_GETFONT));
}

TEST(IsStdMessage, AnswersZeroWithoutARecord)
{
    constexpr UINT messages[] = { WWM_GETCHANGED, WWM_SETCHANGED, WWM_SETUPDATING, WWM_GETUPDATING,
                                  WWM_GETPARENT,  WWM_SETPARENT,  WWM_GETSTYLE,    WWM_SETSTYLE,
                                  WWM_CANCEL,     WWM_ISNULL,     WM_SETFONT,      WM_GETFONT };
    for (const UINT message : messages) {
        EXPECT_EQ(0, Ask(nullptr, message, 1, 1)) << message;
    }
}

TEST(IsStdMessage, LeavesAllOthersAlone)
{
    constexpr UINT others[] = { WM_NULL,
                                WM_SETTEXT,
                                WM_SIZE,
                                WM_NCDESTROY,
                                WM_SETFONT - 1,
                                WM_GETFONT + 1,
                                WWM_GETCHANGED - 1,
                                WWM_SETCHANGED + 1,
                                WWM_CHILDFOCUS,
                                WWM_CHILDBLUR,
                                WWM_GETSTATE,
                                WWM_SETSTATE,
                                1153,
                                1154,
                                WWM_ISNULL + 1,
                                0xFFFF };
    for (const UINT message : others) {
        ControlHeader header = {};
        LRESULT       result = -99;
        EXPECT_EQ(0, IsStdMessage(&header, message, 1, 1, &result)) << message;
        EXPECT_EQ(-99, result) << message;
    }
}

TEST(Notify, GivesZeroWithoutAParentAndKeepsTheVeto)
{
    ControlHeader header = {};
    header.wFlags = CF_CANCEL;
    EXPECT_EQ(0, Notify(&header, 5));
    EXPECT_EQ(CF_CANCEL, header.wFlags);
}

TEST(Notify, GivesZeroWithoutARecord)
{
    EXPECT_EQ(0, Notify(nullptr, 5));
}

TEST(FireCtlColorMsg, GivesTheWhiteBrushWithoutARecord)
{
    EXPECT_EQ(GetStockObject(WHITE_BRUSH), FireCtlColorMsg(nullptr, 1, nullptr));
}

TEST(FireCtlColorMsg, GivesTheWhiteBrushForAnUnknownKind)
{
    ControlHeader header = {};
    for (const int kind : { 0, 4, 5, 7, 20, 22, -1 }) {
        EXPECT_EQ(GetStockObject(WHITE_BRUSH), FireCtlColorMsg(&header, kind, nullptr)) << kind;
    }
}

TEST(SetOverwriteMode, GivesTheOldMode)
{
    EXPECT_EQ(0, GetOverwriteMode());
    EXPECT_EQ(0, SetOverwriteMode(1));
    EXPECT_EQ(1, GetOverwriteMode());
    EXPECT_EQ(1, SetOverwriteMode(0));
    EXPECT_EQ(0, GetOverwriteMode());
}

} // namespace
