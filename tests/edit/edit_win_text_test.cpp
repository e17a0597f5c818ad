// Reading of window texts into the record of an edit control.
#include "edit_record.h"
#include "support/guarded_memory.h"

#include <gtest/gtest.h>

#include <cstring>
#include <ostream>
#include <string>

namespace {

// What HEFindMinMaxInfo makes of a text.
struct Group {
    std::string text;
    char*       rest;
    double      low = -1;
    double      high = -1;
    double      third = -1;
    int         found;
    explicit Group(const char* from, char dataClass = 'n', char dataType = 'l')
        : text(from), rest(text.data()), found(HEFindMinMaxInfo(&rest, &low, &high, &third, dataClass, dataType))
    {
    }
    std::string Rest() const { return rest; }
    int         Moved() const { return static_cast<int>(rest - text.data()); }
};

double DayNumber(int year, int month, int day)
{
    DateTimeRec rec = {};
    rec.year = static_cast<short>(year);
    rec.month = static_cast<BYTE>(month);
    rec.day = static_cast<BYTE>(day);
    double value = 0;
    DateTimeToData(&rec, &value, 'u');
    return value;
}

TEST(HEFindMinMaxInfo, WithoutABarGivesNothingAndLeavesThePointer)
{
    const Group group("*0");
    EXPECT_EQ(0, group.found);
    EXPECT_EQ(0, group.Moved());
    EXPECT_EQ("*0", group.Rest());
}

TEST(HEFindMinMaxInfo, WithoutAClosingBarGivesNothingAndLeavesTheText)
{
    const Group group("|0;100");
    EXPECT_EQ(0, group.found);
    EXPECT_EQ("|0;100", group.Rest());
}

TEST(HEFindMinMaxInfo, WithNullsGivesNothing)
{
    char* text = nullptr;
    EXPECT_EQ(0, HEFindMinMaxInfo(nullptr, nullptr, nullptr, nullptr, 'n', 'l'));
    EXPECT_EQ(0, HEFindMinMaxInfo(&text, nullptr, nullptr, nullptr, 'n', 'l'));
}

TEST(HEFindMinMaxInfo, ReadsThreeValues)
{
    const Group group("|-5;100;7|*0");
    EXPECT_EQ(7, group.found);
    EXPECT_EQ(-5, group.low);
    EXPECT_EQ(100, group.high);
    EXPECT_EQ(7, group.third);
    EXPECT_EQ("*0", group.Rest());
}

TEST(HEFindMinMaxInfo, EndsEachSectionWithAZero)
{
    const Group group("|1;2;3|x");
    EXPECT_EQ(std::string("|1\0" "2\0" "3\0x", 8), group.text);
}

TEST(HEFindMinMaxInfo, LeavesOutEmptySections)
{
    EXPECT_EQ(2, Group("|;100;|").found);
    EXPECT_EQ(1, Group("|0;;|").found);
    EXPECT_EQ(4, Group("|;;3|").found);
    EXPECT_EQ(-1, Group("|;100;|").low);
}

TEST(HEFindMinMaxInfo, EmptyGroupHasNoBoundsAndIsPassed)
{
    const Group group("||");
    EXPECT_EQ(0, group.found);
    EXPECT_EQ(2, group.Moved());
}

TEST(HEFindMinMaxInfo, DoesNotCountWhatTheCallerDoesNotWant)
{
    std::string text = "|1;2;3|";
    char*       rest = text.data();
    double      high = 0;
    EXPECT_EQ(2, HEFindMinMaxInfo(&rest, nullptr, &high, nullptr, 'n', 'l'));
    EXPECT_EQ(2, high);
}

TEST(HEFindMinMaxInfo, GroupWithBothSemicolonsLeavesTheFormatWhole)
{
    EXPECT_EQ("#,##0;(#,##0)", Group("|0;100;|#,##0;(#,##0)").Rest());
}

TEST(HEFindMinMaxInfo, GroupWithOneSemicolonCutsTheFormatAtItsFirst)
{
    EXPECT_EQ("#,##0", Group("|0;100|#,##0;(#,##0)").Rest());
}

TEST(HEFindMinMaxInfo, GroupWithoutSemicolonCutsTheFormatAtItsFirst)
{
    EXPECT_EQ("#,##0", Group("|5|#,##0;(#,##0)").Rest());
    EXPECT_EQ("0", Group("||0;1;2").Rest());
}

TEST(HEFindMinMaxInfo, DoesNotTakeTheFormatBehindAShortGroupForABound)
{
    const Group group("|5|10;20");
    EXPECT_EQ(1, group.found);
    EXPECT_EQ(5, group.low);
    EXPECT_EQ(-1, group.high);
    EXPECT_EQ(-1, group.third);
}

TEST(HEFindMinMaxInfo, ReadsDatesInMonthDayYearOrderAsDayNumbers)
{
    char date[16];
    std::snprintf(date, sizeof date, "|02%c03%c2024|", WWGetIntlInfo()->chDateSep, WWGetIntlInfo()->chDateSep);
    // The default order is that of the settings, which start with the day.
    const Group group(date, 'd', 'd');
    EXPECT_EQ(1, group.found);
    EXPECT_EQ(DayNumber(2024, 3, 2), group.low);
}

TEST(HEFindMinMaxInfo, CountsABoundOfClassCButStoresNothing)
{
    const Group group("|3;9;|", 'c', 'l');
    EXPECT_EQ(3, group.found);
    EXPECT_EQ(-1, group.low);
    EXPECT_EQ(-1, group.high);
}

TEST(HEFindMinMaxInfo, StoresNothingForAClassWithoutBounds)
{
    const std::string longText = "|" + std::string(500, 'x') + "|";
    EXPECT_EQ(-1, Group(longText.c_str(), 's', 's').low);
    EXPECT_EQ(-1, Group(longText.c_str(), 'm', 's').low);
    EXPECT_EQ(-1, Group("|TRUE;|", 'b', 'b').low);
}

TEST(HEParseWinText, ReadsBoundsAndFormatOfANumber)
{
    const EditRecord edit("%nl|0;100|*0");
    ASSERT_TRUE(edit.ok);
    EXPECT_EQ('n', +edit.ctl.cClass);
    EXPECT_EQ('l', +edit.ctl.cType);
    EXPECT_EQ(3, +edit.ctl.wBounds);
    EXPECT_EQ(0, +edit.ctl.dMin);
    EXPECT_EQ(100, +edit.ctl.dMax);
    EXPECT_EQ("*0", edit.Format());
    EXPECT_EQ(4, +edit.ctl.cbData);
}

TEST(HEParseWinText, ReadsLengthAndInitialTextOfATextField)
{
    const EditRecord edit("%ss20abc");
    ASSERT_TRUE(edit.ok);
    EXPECT_EQ(20, +edit.ctl.cchMax);
    EXPECT_TRUE(HasFlag(&edit.ctl, HEF_LIMITED));
    EXPECT_EQ("abc", edit.Text());
    EXPECT_EQ(nullptr, +edit.ctl.pszFormat);
    EXPECT_EQ(3 + 32, +edit.ctl.cbText);
}

TEST(HEParseWinText, EmptyGroupGivesNoBoundsAndTheDefaultFormat)
{
    const EditRecord edit("%nl||");
    EXPECT_EQ(0, +edit.ctl.wBounds);
    EXPECT_EQ("*0", edit.Format());
}

TEST(HEParseWinText, TextWithoutADescriptorIsPlainTextWithItsDigits)
{
    const EditRecord edit("20abc");
    EXPECT_EQ('s', +edit.ctl.cClass);
    EXPECT_EQ('s', +edit.ctl.cType);
    EXPECT_EQ("20abc", edit.Text());
    EXPECT_FALSE(HasFlag(&edit.ctl, HEF_LIMITED));
    EXPECT_EQ(5 + 32 - 1, +edit.ctl.cchMax);
}

TEST(HEParseWinText, TextFieldWithoutDigitsMayGrow)
{
    const EditRecord edit("%ssabc");
    EXPECT_FALSE(HasFlag(&edit.ctl, HEF_LIMITED));
    EXPECT_EQ(edit.ctl.cbText - 1, +edit.ctl.cchMax);
    EXPECT_EQ(+edit.ctl.cbText, +edit.ctl.cbData);
}

TEST(HEParseWinText, LimitCutsTheInitialText)
{
    const EditRecord edit("%ss3abcdef");
    EXPECT_EQ("abc", edit.Text());
    EXPECT_EQ(3, +edit.ctl.cchMax);
}

TEST(HEParseWinText, LimitMakesRoomForItself)
{
    const EditRecord edit("%ss200abc");
    EXPECT_EQ(201, +edit.ctl.cbText);
    EXPECT_EQ(201, +edit.ctl.cbData);
}

TEST(HEParseWinText, RoomIsTheRestOfTheTextAndThirtyTwo)
{
    EXPECT_EQ(10 + 32, +EditRecord("%dlmm/dd/yyyy").ctl.cbText);
    EXPECT_EQ(32, +EditRecord("%dl").ctl.cbText);
}

struct FormatCase {
    const char* text;
    const char* format;
};
void PrintTo(const FormatCase& row, std::ostream* out)
{
    *out << row.text;
}

class DefaultFormats : public testing::TestWithParam<FormatCase> {};

TEST_P(DefaultFormats, StandWhereTheTextGivesNone)
{
    EXPECT_EQ(GetParam().format, EditRecord(GetParam().text).Format()) << GetParam().text;
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(EachClass, DefaultFormats, testing::Values(
    FormatCase{ "%dl", "mm/dd/yyyy" },
    FormatCase{ "%dA", "mm/dd/yyyy" },
    FormatCase{ "%tI", "hh:mm:ss" },
    FormatCase{ "%tt", "hh:mm:ss" },
    FormatCase{ "%aQ", "mm/dd/yyyy hh:mm:ss" },
    FormatCase{ "%nd", "*0.0*" },
    FormatCase{ "%nf", "*0.0*" },
    FormatCase{ "%cd", "*0.0*" },
    FormatCase{ "%cf", "*0.0*" },
    FormatCase{ "%nW", "*0" },
    FormatCase{ "%nb", "*0" },
    FormatCase{ "%nh", "*0" },
    FormatCase{ "%ni", "*0" },
    FormatCase{ "%nl", "*0" },
    FormatCase{ "%ns", "*0" },
    FormatCase{ "%nu", "*0" },
    FormatCase{ "%nw", "*0" },
    FormatCase{ "%cl", "*0" },
    FormatCase{ "%nM", "" },
    FormatCase{ "%zd", "" },
    FormatCase{ "%bb", "" },
    FormatCase{ "%kT", "" },
    FormatCase{ "%ms", "" },
    FormatCase{ "%hh", "" }));
// clang-format on

TEST(HEParseWinText, TakesColoursOutOfTheFormat)
{
    const EditRecord edit("%nd[blue]0.00;[red]-0.00");
    EXPECT_EQ("0.00;-0.00", edit.Format());
    EXPECT_EQ(0xFF0000u, +edit.ctl.clrText);
    EXPECT_EQ(0x0000FFu, +edit.ctl.clrNegative);
}

TEST(HEParseWinText, ColoursStandBehindTheBounds)
{
    const EditRecord edit("%nd|1;2;|[blue]0.0");
    EXPECT_EQ(3, +edit.ctl.wBounds);
    EXPECT_EQ(0xFF0000u, +edit.ctl.clrText);
    EXPECT_EQ("0.0", edit.Format());
}

TEST(HEParseWinText, ColoursStandBeforeTheLengthOfATextField)
{
    const EditRecord edit("%ss[red]12abc");
    EXPECT_EQ(0x0000FFu, +edit.ctl.clrText);
    EXPECT_EQ(12, +edit.ctl.cchMax);
    EXPECT_EQ("abc", edit.Text());
}

TEST(HEParseWinText, ValueOfAMaskHasRoomForTheMask)
{
    EXPECT_EQ(6, +EditRecord("%ms##-##").ctl.cbData);
}

TEST(HEParseWinText, ZeroMovesToALowerBoundAboveZero)
{
    EXPECT_EQ(5, EditRecord("%nl|5;9;|").Number());
}

TEST(HEParseWinText, ZeroMovesToAnUpperBoundBelowZero)
{
    EXPECT_EQ(-5, EditRecord("%nl|-9;-5;|").Number());
}

TEST(HEParseWinText, BoundsOfClassCReadAsZero)
{
    EditRecord edit("%cl|5;100;|");
    EXPECT_EQ(3, +edit.ctl.wBounds);
    EXPECT_EQ(0.0, +edit.ctl.dMin);
    EXPECT_EQ(0.0, +edit.ctl.dMax);
    EXPECT_EQ(0.0, edit.Number());
}

TEST(HEParseWinText, SecondDescriptorIsPassed)
{
    EXPECT_EQ("0.0", EditRecord("%nd%nl0.0").Format());
}

TEST(HEParseWinText, ReadingAgainAddsBoundsAndKeepsThoseThatStand)
{
    EditRecord edit("%nl|3;;|");
    ReadWinText(&edit.ctl, "%nl|;8;|");
    EXPECT_EQ(3, +edit.ctl.wBounds);
    EXPECT_EQ(3, +edit.ctl.dMin);
    EXPECT_EQ(8, +edit.ctl.dMax);
}

TEST(HEParseWinText, ReadingAgainClearsTheChangedBitAndThePositions)
{
    EditRecord edit("abc");
    edit.ctl.wFlags |= CF_CHANGED | CF_NULL;
    edit.ctl.nScroll = 1;
    edit.ctl.nAnchor = 2;
    edit.ctl.nCaret = 3;
    ReadWinText(&edit.ctl, "%nl");
    EXPECT_FALSE(HasFlag(&edit.ctl, CF_CHANGED));
    EXPECT_TRUE(HasFlag(&edit.ctl, CF_NULL));
    EXPECT_EQ(0, +edit.ctl.nScroll);
    EXPECT_EQ(0, +edit.ctl.nAnchor);
    EXPECT_EQ(0, +edit.ctl.nCaret);
}

TEST(HEParseWinText, ReadingAgainFreesTheOldBuffers)
{
    const int before = LiveBlocks();
    {
        EditRecord edit("%nd0.0");
        const int live = LiveBlocks();
        ReadWinText(&edit.ctl, "%nd0.00");
        EXPECT_EQ(live, LiveBlocks());
    }
    EXPECT_EQ(before, LiveBlocks());
}

TEST(HEParseWinText, TextOfAnyLengthIsSafe)
{
    for (const size_t length : { size_t{ 255 }, size_t{ 256 }, size_t{ 257 }, size_t{ 70000 } }) {
        const std::string text(length, 'x');
        const EditRecord  edit(text.c_str());
        EXPECT_EQ(text, edit.Text()) << length;
        const EditRecord mask(("%ms" + std::string(length, '#')).c_str());
        EXPECT_EQ(static_cast<int>(length) + 1, +mask.ctl.cbData);
    }
}

TEST(HEParseWinText, LimitWithTooManyDigitsIsHeld)
{
    EditRecord edit("%ss99999999999999999999");
    EXPECT_EQ(0xFFFFFF, +edit.ctl.cchMax);
}

TEST(HEParseWinText, FailedAllocationIsToldAndLeavesNothingBehind)
{
    const int before = LiveBlocks();
    for (FailEachAllocation each; each.Next();) {
        EditRecord edit("%nd|1;2;|0.0");
        EXPECT_EQ(edit.ok, edit.ctl.pData && edit.ctl.pszText) << "allocation " << each.Number();
    }
    EXPECT_EQ(before, LiveBlocks());
}

TEST(HEParseWinText, FailedAllocationOfATextFieldIsTold)
{
    for (int n = 1; n <= 3; ++n) {
        FailAllocation(n);
        EXPECT_FALSE(EditRecord("%ss20abc").ok) << "allocation " << n;
    }
    FailAllocation(0);
}

TEST(HEParseWinText, ThirdValueIsNoBound)
{
    EditRecord edit("%nl|1;2;3|");
    EXPECT_EQ(3, +edit.ctl.wBounds) << "the bits of the two bounds";
    EXPECT_EQ(1, +edit.ctl.dMin);
    EXPECT_EQ(2, +edit.ctl.dMax);
}

TEST(HEParseWinText, TextOfNoCharactersHasNoInitialText)
{
    EditRecord edit("%ss0abc");
    EXPECT_EQ(0, +edit.ctl.cchMax);
    EXPECT_EQ("", edit.Text());
    EXPECT_TRUE(HasFlag(&edit.ctl, HEF_LIMITED));
}

} // namespace
