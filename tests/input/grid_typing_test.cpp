// Every class of value typed into a cell by the real keyboard, and the cell left by every key that leaves one.
#include "input/input_grid.h"

#include "input/moment.h"

namespace {

struct TypedCell {
    ColumnKind  column;
    const char* typed;
    const char* text; // as the grid shows it
    std::string value;
};

struct LeavingKey {
    const char* key;
    CellAt      to;
};

constexpr CellAt middle = { 1, 1 };

// From the middle of three columns and rows.
constexpr LeavingKey leavingKeys[] = {
    { "{Tab}", { 2, 1 } }, { "{Enter}", { 2, 1 } }, { "{Down}", { 1, 2 } }, { "{Up}", { 1, 0 } }
};
constexpr LeavingKey moreLeavingKeys[] = {
    { "{Shift+Tab}", { 0, 1 } }, { "{Shift+Enter}", { 0, 1 } }, { "{Ctrl+Tab}", { 2, 1 } },
    { "{PgDn}", { 1, 2 } },      { "{PgUp}", { 1, 0 } },        { "{Ctrl+Home}", { 1, 0 } },
    { "{Ctrl+End}", { 1, 2 } },  { "{Ctrl+Down}", { 1, 2 } },   { "{Shift+Down}", { 1, 2 } },
};

// Texts are padded with zeros to the size of their column.
std::string Padded(std::string text, size_t size)
{
    text.resize(size);
    return text;
}

class GridTyping : public InputGrid {
protected:
    void Run(const TypedCell& test, const LeavingKey& leaving)
    {
        const std::string what = std::string(test.column.type) + " by " + test.typed + leaving.key;
        Make({ test.column, test.column, test.column }, 3);
        Click(middle);
        const std::string before[] = { RowBytes(0), RowBytes(2), Bytes(0, 1), Bytes(2, 1) };
        Clear();
        Type(test.typed);
        EXPECT_TRUE(IsEditing()) << what;
        EXPECT_EQ(middle, Current()) << what;
        EXPECT_EQ(0, parent.Count(HGN_CELLCHANGED)) << what;
        Type(leaving.key);
        EXPECT_EQ(leaving.to, Current()) << what;
        EXPECT_EQ(Hex(test.value), Hex(Bytes(1, 1))) << what;
        EXPECT_EQ(test.text, Text(1, 1)) << what;
        const std::string after[] = { RowBytes(0), RowBytes(2), Bytes(0, 1), Bytes(2, 1) };
        EXPECT_TRUE(std::equal(before, before + 4, after)) << what << " changes another cell";
        EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED)) << what;
        EXPECT_EQ(HGR_DIRTY, RowFlags(1)) << what;
        EXPECT_EQ(0, RowFlags(0) | RowFlags(2)) << what;
        EXPECT_EQ(grid, GetFocus()) << what;
        if (Anchor() == Current()) {
            ExpectEditorStandsBy(what);
        } else {
            ExpectNoEditor();
        }
    }
    void RunAll(const std::vector<TypedCell>& tests)
    {
        for (const TypedCell& test : tests) {
            for (const LeavingKey& leaving : leavingKeys) {
                Run(test, leaving);
            }
        }
    }
};

// clang-format off
TEST_F(GridTyping, TextsAndCharacters)
{
    RunAll({
        { textColumn,               "two words", "two words", Padded("two words", 16) },
        { { "ms", 0, "##-##" },     "1234",      "12-34",     Padded("1234", 6) },
        { { "hh" },                 "x",         "x",         Raw('x') },
        { { "bl", 0, "yes;no" },    "y",         "yes",       Raw(1) },
        { { "bb", 0, "yes;no" },    " ",         "yes",       Raw('\1') },
    });
}

TEST_F(GridTyping, Numbers)
{
    RunAll({
        { numberColumn,              "-1234567",   "-1234567",   Raw(-1234567) },
        { { "ni", 0, "#,##0" },      "4321",       "4,321",      Raw(4321) },
        { { "ns" },                  "-32768",     "-32768",     Raw(Short(-32768)) },
        { { "nw" },                  "65535",      "65535",      Raw(Short(-1)) },
        { { "nb" },                  "200",        "200",        Raw('\xC8') },
        { { "nh" },                  "-5",         "-5",         Raw('\xFB') },
        { { "nu" },                  "4294967295", "4294967295", Raw(-1) },
        { { "nW" },                  "4294967295", "4294967295", Raw(-1) },
        { { "nf", 0, "0.0" },        "2.5",        "2.5",        Raw(2.5f) },
        { { "nd", 0, "#,##0.00" },   "1234.56",    "1,234.56",   Raw(1234.56) },
        { { "cl" },                  "42",         "42",         Raw(42) },
        { { "zd", 0, "0.00" },       "125",        "1.25",       Raw(1.25) },
        { { "zd", 0, "0.00" },       "{F2}{End}7-", "-0.07",     Raw(-0.07) },
    });
}

TEST_F(GridTyping, DatesAndTimes)
{
    constexpr int  day = 46041; // from 1 January 1900
    constexpr int  seconds = (15 * 60 + 30) * 60 + 45;
    const std::tm  moment = Moment(2026, 1, 21, 15, 30, 45);
    constexpr char typed[] = "21.1.2026153045";
    constexpr char format[] = "dd/mm/yyyy hh:mm:ss";
    constexpr char text[] = "21.01.2026 15:30:45";
    RunAll({
        { dateColumn,                       "17052024",  "17.05.2024",  Raw(20240517) },
        { { "da", 0, "yyyy-mm-dd" },        "3.4.1999",  "1999-04-03",  Raw('\3', '\4', Short(1999), Short(0)) },
        { { "dd", 0, "d/m/yyyy" },          "29.2.2000", "29.2.2000",   Raw(Short(2000), Short(2), Short(29)) },
        { { "dA", 0, "d/m/yyyy" },          "5.6.2001",  "5.6.2001",    Raw(Short(21 | (6 << 7) | (5 << 11))) },
        { { "tt", 0, "hh:mm:ss" },          "123907",    "12:39:07",    Raw(Short(12), Short(39), Short(7)) },
        { { "ti", 0, "hh:mm:ss" },          "235958",    "23:59:58",    Raw('\x17', '\x3B', '\x3A', '\0') },
        { { "tI", 0, "hh:mm" },             "1545",      "15:45",       Raw(Short(15 | (45 << 5))) },
        { { "as", 0, format }, typed, text,
          Raw(Short(2026), Short(1), Short(21), Short(15), Short(30), Short(45), Short(0), Short(0)) },
        { { "aD", 0, format }, typed, text, Raw(Short(2026), '\1', '\x15', '\xF', '\x1E', '\x2D', '\0', Short(0)) },
        { { "aQ", 0, format }, typed, text, Raw(day, seconds * 1000) },
        { { "aq", 0, format }, typed, "21.01.2026 15:30:00", Raw(Short(day), Short(seconds / 60)) },
        { { "au", 0, format }, typed, text, Raw(seconds / 86400.0 + (day + 2)) },
        { { "am", 0, format }, typed, text, Raw(moment) },
        { { "aT", 0, format }, typed, text, Raw(ClockOf(moment)) },
        { { "kT", 0, "d/m/yyyy" }, "21.1.2026", "21.1.2026", Raw(ClockOf(Moment(2026, 1, 21, 0, 0, 0))) },
    });
}
// clang-format on

TEST_F(GridTyping, EveryKeyThatLeavesACellTakesItsValue)
{
    for (const LeavingKey& leaving : moreLeavingKeys) {
        Run({ dateColumn, "17052024", "17.05.2024", Raw(20240517) }, leaving);
        Run({ textColumn, "two words", "two words", Padded("two words", 16) }, leaving);
    }
}

// Three records as fast as keys can come, each line by Tab into the next.
TEST_F(GridTyping, RecordsAreTypedAhead)
{
    Make({ dateColumn, textColumn, numberColumn }, 4);
    Click({ 0, 0 });
    TypeAhead("17052024{Tab}first row{Tab}-1{Tab}29.2.2000{Tab}second{Enter}20{Enter}"
              "1.1.1999{Tab}{F2}third{Tab}300{Up}");
    EXPECT_EQ("17.05.2024 29.02.2000 01.01.1999  . .     ", ColumnTexts(0));
    EXPECT_EQ("first row second third  ", ColumnTexts(1));
    EXPECT_EQ("-1 20 300 0 ", ColumnTexts(2));
    EXPECT_EQ(Hex(Raw(20000229)), Hex(Bytes(0, 1)));
    EXPECT_EQ(Hex(Raw(-1)), Hex(Bytes(2, 0)));
    EXPECT_EQ(9, parent.Count(HGN_CELLCHANGED));
    EXPECT_EQ((CellAt{ 2, 1 }), Current());
    ExpectEditorStandsBy("after typing ahead");
}

} // namespace
