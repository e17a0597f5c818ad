// Committing dates and times: bounds, and the way through the double that fills up what a text leaves open.
#include "edit_window.h"
#include "foundation/memory.h"

#include <cstring>

namespace {

using EditCommitDate = EditWindow;

TEST_F(EditCommitDate, DateAboveTheMaximumMovesToIt)
{
    // Texts of bounds have the order of the settings.
    const std::string window = "%dl|" + DateText(1, 1, 2020) + ";" + DateText(31, 12, 2020) + ";|";
    Create(window.c_str());
    Replace(DateText(5, 6, 2024).c_str());
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 1));
    EXPECT_EQ(Codes{ HEN_ABOVEMAX }, Told());
    EXPECT_EQ(20201231, LoadAs<int>(Ctl()->pData));
    seen.Clear();
    Replace(DateText(5, 6, 1999).c_str());
    Send(HEM_COMMIT, 1, 1);
    EXPECT_EQ(Codes{ HEN_BELOWMIN }, Told());
    EXPECT_EQ(20200101, LoadAs<int>(Ctl()->pData));
}

TEST_F(EditCommitDate, DateIsTestedAgainstOneBoundOnly)
{
    Create("%dl");
    Ctl()->dMin = 50000;
    Ctl()->dMax = 100;
    Ctl()->wBounds = 3;
    Replace(DateText(5, 6, 2024).c_str());
    Send(HEM_COMMIT, 1, 1);
    EXPECT_EQ(Codes{ HEN_ABOVEMAX }, Told());
}

TEST_F(EditCommitDate, DateWhoseMaximumIsVetoedIsTestedAgainstTheMinimum)
{
    Create("%dl");
    Ctl()->dMin = 50000;
    Ctl()->dMax = 100;
    Ctl()->wBounds = 3;
    Veto(HEN_ABOVEMAX);
    Replace(DateText(5, 6, 2024).c_str());
    Send(HEM_COMMIT, 1, 1);
    EXPECT_EQ((Codes{ HEN_ABOVEMAX, HEN_BELOWMIN }), Told());
}

struct PartRow {
    const char* window;
    const char* text;
    int         stored;
};

// A date without a year is one of 1992, and the month and day 0 lie before the first ones.
TEST_F(EditCommitDate, PartOfADateIsFilledUp)
{
    constexpr PartRow rows[] = {
        { "%dldd.mm", "28.2", 19920228 },
        { "%dldd.mm", "29.2", 19920229 },
        { "%dlmm|yyyy", "5/1999", 19990501 },
        { "%dlyyyy", "..2026", 20251130 },
        { "%dldd.mm.yyyy", "28.2.2024", 20240228 },
    };
    SetDateSep('.');
    SetDefDateFormat("d/m/yyyy");
    for (const PartRow& row : rows) {
        edit = nullptr;
        Create(row.window);
        Replace(row.text);
        Send(HEM_COMMIT, 1, 0);
        EXPECT_EQ(row.stored, LoadAs<int>(Ctl()->pData)) << row.window << " from " << row.text;
        DestroyWindow(edit);
    }
    GetIntlSettings();
}

struct HundredthsRow {
    const char* window;
    BYTE        hour;
    BYTE        hundredths;
};

// The double of a time holds whole seconds.
TEST_F(EditCommitDate, FractionOfASecondStaysUnlessABoundMovesTheTime)
{
    constexpr HundredthsRow rows[] = {
        { "%tihh:mm:ss.ff", 10, 12 },
        { "%ti|00:00:00;23:59:59;|hh:mm:ss.ff", 10, 12 },
        { "%ti|00:00:00;09:00:00;|hh:mm:ss.ff", 9, 0 },
        { "%ti|11:00:00;23:59:59;|hh:mm:ss.ff", 11, 0 },
    };
    for (const HundredthsRow& row : rows) {
        edit = nullptr;
        Create(row.window);
        Replace("10:20:30.120");
        Send(HEM_COMMIT, 1, 1);
        const BYTE* const time = static_cast<const BYTE*>(Ctl()->pData);
        EXPECT_EQ(row.hour, time[0]) << row.window;
        EXPECT_EQ(row.hundredths, time[3]) << row.window;
    }
}

TEST_F(EditCommitDate, WholeDateComesBackAsItWasRead)
{
    constexpr char text[] = "17.5.2024 10:20:30";
    SetDateSep('.');
    SetTimeSep(':');
    SetDefDateFormat("d/m/yyyy");
    SetDefTimeFormat("h:mm:ss");
    for (const char type : std::string("DQTmqsu")) {
        edit = nullptr;
        Create((std::string("%a") + type).c_str());
        Replace(text);
        EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0)) << type;
        char read[40] = {};
        ParseData(read, 'a', type, "mm/dd/yyyy hh:mm:ss", text, 0);
        EXPECT_EQ(0, std::memcmp(read, Ctl()->pData, static_cast<size_t>(+Ctl()->cbData))) << type;
        DestroyWindow(edit);
    }
    GetIntlSettings();
}

TEST_F(EditCommitDate, HostMayMakeATextOfTheFieldWhenABoundIsTold)
{
    for (const bool veto : { false, true }) {
        edit = nullptr;
        Create(("%dl|" + DateText(1, 1, 2020) + ";" + DateText(31, 12, 2020) + ";|").c_str());
        parent.On(HEN_ABOVEMAX, [this, veto] {
            SendText(WM_SETTEXT, 0, "%ss20abc");
            if (veto) {
                Send(WWM_CANCEL);
            }
        });
        Replace(DateText(5, 6, 2024).c_str());
        Send(HEM_COMMIT, 1, 1);
        EXPECT_EQ("abc", Value()) << veto;
        EXPECT_EQ("abc", Text()) << veto;
    }
}

} // namespace
