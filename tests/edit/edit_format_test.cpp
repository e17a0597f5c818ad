// Formats with a section for the null value, and numbers that need more room than most.
#include "edit_window.h"
#include "foundation/memory.h"
#include "support/guarded_memory.h"
#include "support/pixels.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>

namespace {

class EditFormat : public EditWindow {
protected:
    EditFormat()
    {
        SetDecimalSep('.');
        SetDateSep('.');
        SetTimeSep(':');
        SetDefDateFormat("d/m/yyyy");
    }
    ~EditFormat() override { GetIntlSettings(); }

    void Make(const char* window, const char* format)
    {
        edit = nullptr;
        Create(window, HES_AUTOHSCROLL);
        EXPECT_EQ(1, SendText(HEM_SETFORMAT, 1, format));
    }
    void Keys(const char* text) const
    {
        for (const char* ch = text; *ch; ++ch) {
            Send(WM_CHAR, static_cast<BYTE>(*ch));
        }
    }
};

struct SectionRow {
    const char* window;
    const char* format;
    const char* text; // that makes the value
    const char* display;
    const char* edited;
    const char* keys;
    const char* typed; // what the keys make of it from the start
};

TEST_F(EditFormat, SectionOfTheEmptyTextIsNoPartOfThePicture)
{
    constexpr SectionRow rows[] = {
        { "%dl", "mm/dd/yyyy;no date", "17.5.2024", "05.17.2024", "17.5.2024", "18", "18.5.2024" },
        { "%dl", "dd.mm;any year", "17.5", "17.05", "17.5.", "18", "18.5." },
        { "%tt", "hh:mm;no seconds, pass", "10:20", "10:20", "10:20", "11", "11:20" },
        { "%aD", "dd.mm.yyyy;at no hour", "17.5.2024", "17.05.2024", "17.5.2024", "18", "18.5.2024" },
        { "%kT", "dd.mm.yyyy;stopped", "17.5.2024", "17.05.2024", "17.5.2024", "18", "18.5.2024" },
        { "%ms", "##-##;nothing", "1234", "12-34", "12-34", "56", "56-34" },
        { "%ms", "##;", "12", "12", "12", "99", "99" },
        { "%bb", "yes;no;perhaps", "x", "no", "no", "y", "yes" },
        { "%bb", "yes;;perhaps", "x", "yes", "yes", "y", "yes" },
        { "%zd", "0.0;none", "2.5", "2.5", "2.5", "1", "12.5" },
        { "%nd", "0.0;(0.0);none", "-2.5", "(2.5)", "-2.5", "1", "1.5" },
        { "%nd", "0.0;;none", "-2.5", "-2.5", "-2.5", "1", "1.5" },
        { "%cl", "0;;none", "-25", "-25", "-25", "", "-25" },
    };
    for (const SectionRow& row : rows) {
        SCOPED_TRACE(std::string(row.window) + row.format);
        Make(row.window, row.format);
        SendText(WM_SETTEXT, 0, row.text);
        EXPECT_EQ(row.display, Text());
        Focus();
        EXPECT_EQ(row.edited, Text());
        Send(EM_SETSEL, 0, 0);
        Keys(row.keys);
        EXPECT_EQ(row.typed, Text());
        char format[64];
        EXPECT_EQ(static_cast<LRESULT>(std::strlen(row.format)), Send(HEM_GETFORMAT, sizeof format, AsParam(format)));
        EXPECT_STREQ(row.format, format);
        EXPECT_STREQ(row.format, reinterpret_cast<const char*>(Send(HEM_GETFORMATPTR)));
        EXPECT_STREQ(row.format, +Ctl()->pszFormat);
        DestroyWindow(edit);
    }
}

TEST_F(EditFormat, TypedValueIsStoredThroughThePictureAlone)
{
    Make("%dl", "dd.mm.yyyy;no date");
    Focus();
    Keys("3.4.2025");
    Blur();
    EXPECT_EQ(20250403, LoadAs<int>(Ctl()->pData));
    EXPECT_EQ("03.04.2025", Text());
}

TEST_F(EditFormat, CellOfAGridIsDrawnThroughThePictureAlone)
{
    const int    date = 20240517;
    const HBRUSH paper = GetSysColorBrush(COLOR_WINDOW);
    HGridData    grid = {};
    Pixels       shots[2];
    for (const bool hasSection : { false, true }) {
        Make("%dl", hasSection ? "mm/dd/yyyy;no date" : "mm/dd/yyyy");
        Canvas canvas(150, 30);
        RECT   rect = { 5, 5, 145, 25 };
        grid.nMinRowHeight = grid.nRowHeight = 20;
        HEDrawValue(Ctl(), canvas.hdc(), &rect, paper, &date, 0, &grid, 0);
        shots[hasSection] = canvas.Shot();
        DestroyWindow(edit);
    }
    EXPECT_TRUE(SamePixels(shots[0], shots[1]));
}

TEST_F(EditFormat, FieldMayGetItsOwnFormatAgain)
{
    Make("%dl", "dd.mm.yyyy;no date");
    Send(HEM_SETFORMAT, 1, Send(HEM_GETFORMATPTR));
    EXPECT_STREQ("dd.mm.yyyy;no date", +Ctl()->pszFormat);
    Send(HEM_SETDATA, 0, 0);
    EXPECT_EQ("no date", Text());
}

TEST_F(EditFormat, ClockGoesByThePictureAlone)
{
    Make("%kThh:mm", "hh:mm;no seconds shown");
    const std::int64_t shown = LoadAs<std::int64_t>(Ctl()->pData);
    Send(WM_TIMER, 1);
    const std::int64_t now = LoadAs<std::int64_t>(Ctl()->pData);
    EXPECT_NE(shown, now);
    StoreAs(Ctl()->pData, now / 60 * 60); // the same minute
    Send(WM_TIMER, 1);
    const std::int64_t later = LoadAs<std::int64_t>(Ctl()->pData);
    EXPECT_TRUE(later == now / 60 * 60 || later / 60 != now / 60) << "a clock without seconds shows the minute";
}

struct ExactRow {
    const char* window;
    double      value;
    const char* text;
};

TEST_F(EditFormat, NumberIsShownInFull)
{
    constexpr ExactRow rows[] = {
        { "%nd", 0.1, "0.1000000000000000055511151231257827021181583404541015625" },
        { "%cd", -0.1, "-0.1000000000000000055511151231257827021181583404541015625" },
        { "%nf", 0.1, "0.100000001490116119384765625" },
        { "%zd", 0.1, "0.1000000000000000055511151231257827021181583404541015625" },
        { "%nd", 1234567890123456789.0, "1234567890123456768.0" },
    };
    for (const ExactRow& row : rows) {
        SCOPED_TRACE(row.window);
        edit = nullptr;
        Create(row.window, HES_AUTOHSCROLL);
        char value[8];
        DoubleToNum(value, Ctl()->cType, row.value);
        Send(HEM_SETDATA, 0, AsParam(value));
        EXPECT_EQ(row.text, Text());
        DestroyWindow(edit);
    }
}

// The digits that were in the field are those of its value, so a key changes no more than one of them.
TEST_F(EditFormat, TypingInALongNumberChangesItAsItDoesAShortOne)
{
    Create("%nd", HES_AUTOHSCROLL);
    const double value = 0.1;
    Send(HEM_SETDATA, 0, AsParam(&value));
    Focus();
    Send(EM_SETSEL, 0, 0);
    Keys("3");
    Blur();
    EXPECT_DOUBLE_EQ(3.1, Number());
}

TEST_F(EditFormat, NumberWithoutMemoryForItsDigitsShowsThatItHasNoRoom)
{
    Create("%nd", HES_AUTOHSCROLL);
    const double value = 0.1;
    FailAllocation(1);
    Send(HEM_SETDATA, 0, AsParam(&value));
    FailAllocation(0);
    EXPECT_EQ(std::string(31, '#'), Text());
    EXPECT_EQ(0.1, Number());
}

// Any bits that are a number, through pictures of all shapes.
TEST_F(EditFormat, NoNumberLacksRoom)
{
    std::mt19937_64 random(77);
    for (const char* const picture :
         { "", "*0", "0.00", "*0.0*", "#,##0.###", "$ *#,##0.00 net;(*#,##0.00) owed", "0000000000.000000000000*" }) {
        edit = nullptr;
        Create((std::string("%nd") + picture).c_str(), HES_AUTOHSCROLL);
        for (int i = 0; i < 300; ++i) {
            const int    exponent = static_cast<int>(random() % 130) - 65;
            const double value = std::ldexp(static_cast<double>(random() >> 11) * (i % 2 ? -1 : 1), exponent);
            for (const bool editForm : { false, true }) {
                HEditSetData(Ctl(), &value);
                RefreshText(Ctl(), editForm);
                EXPECT_EQ(std::string::npos, Text().find('#')) << value << " through " << picture;
            }
        }
        DestroyWindow(edit);
    }
}

} // namespace
