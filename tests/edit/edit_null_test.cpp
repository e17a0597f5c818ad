// Dates and times without a value: emptied, left, entered and typed into again.
#include "edit_window.h"
#include "typed/date_time.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr char wholeDate[] = "17.5.2024";

class EditNull : public EditWindow {
protected:
    EditNull()
    {
        SetDateSep('.');
        SetTimeSep(':');
        SetDefDateFormat("d/m/yyyy");
        SetDefTimeFormat("h:mm:ss");
    }
    ~EditNull() override { GetIntlSettings(); }

    // A field with the focus and a value that a host has stored.
    void Make(const std::string& window, const char* text = wholeDate)
    {
        edit = nullptr;
        Create(window.c_str(), HES_CLEARALL | HES_AUTOHSCROLL);
        SendText(WM_SETTEXT, 0, text);
        Send(WWM_SETCHANGED, 0);
        Focus();
    }
    void Empty() const
    {
        Send(EM_SETSEL, 0, -1);
        Send(WM_KEYDOWN, VK_DELETE);
    }
    bool IsNull() const { return Send(WWM_ISNULL) != 0; }
    bool IsStoredZero() const
    {
        const BYTE* const bytes = static_cast<const BYTE*>(Ctl()->pData);
        return std::all_of(bytes, bytes + Ctl()->cbData, [](BYTE byte) { return byte == 0; });
    }
    static bool IsZero(const char* bytes, size_t count)
    {
        return std::all_of(bytes, bytes + count, [](char byte) { return byte == 0; });
    }
    void Keys(const char* text) const
    {
        for (const char* ch = text; *ch; ++ch) {
            Send(WM_CHAR, static_cast<BYTE>(*ch));
        }
    }
    std::string Shown() const { return Text().insert(static_cast<size_t>(+Ctl()->nCaret), 1, '|'); }
};

struct NullRow {
    const char* window;
    const char* blank; // what the field shows when it is entered
};
constexpr NullRow nullRows[] = {
    { "%dl", " . .    " },
    { "%dd", " . .    " },
    { "%da", " . .    " },
    { "%dA", " . .    " },
    { "%dldd.mm", " . ." },
    { "%dl|1.1.2020;31.12.2020;|", " . .    " },
    { "%dl|1.1.1900;1.1.1901;|", " . .    " },
    { "%aD", " . .     0:00:00" },
    { "%aQ", " . .     0:00:00" },
    { "%aT", " . .     0:00:00" },
    { "%am", " . .     0:00:00" },
    { "%aq", " . .     0:00:00" },
    { "%as", " . .     0:00:00" },
    { "%au|1.1.2020;31.12.2020;|", " . .     0:00:00" },
};

TEST_F(EditNull, EmptiedDateStaysNullThroughLeavingAndEntering)
{
    for (const NullRow& row : nullRows) {
        SCOPED_TRACE(row.window);
        Make(row.window);
        char linked[40] = "must go";
        Send(HEM_LINKDATA, 0, AsParam(linked));
        EXPECT_FALSE(IsNull());
        Empty();
        EXPECT_EQ("", Text());
        EXPECT_TRUE(IsNull());
        seen.Clear();
        for (int round = 1; round <= 2; ++round) {
            Blur();
            EXPECT_EQ("", Text()) << "left, round " << round;
            EXPECT_TRUE(IsNull());
            EXPECT_EQ(1, Send(WWM_GETCHANGED));
            EXPECT_TRUE(IsStoredZero());
            EXPECT_TRUE(IsZero(linked, static_cast<size_t>(+Ctl()->cbData)));
            Focus();
            EXPECT_EQ(row.blank, Text()) << "entered, round " << round;
        }
        EXPECT_EQ((Codes{ HEN_KILLFOCUS, HEN_SETFOCUS, HEN_KILLFOCUS, HEN_SETFOCUS }), Told());
        char value[40] = {};
        EXPECT_EQ(0, Send(HEM_GETDATA, sizeof value, AsParam(value)));
        DestroyWindow(edit);
    }
}

TEST_F(EditNull, EmptyTextOfANullDateCommitsWithSuccess)
{
    for (const NullRow& row : nullRows) {
        SCOPED_TRACE(row.window);
        edit = nullptr;
        seen.Clear();
        Create(row.window);
        Send(HEM_SETDATA, 0, 0);
        Replace("");
        EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
        EXPECT_TRUE(IsNull());
        EXPECT_TRUE(IsStoredZero());
        EXPECT_EQ(Codes(), Told());
        DestroyWindow(edit);
    }
}

TEST_F(EditNull, NullOfAHostIsEnteredAsBlanks)
{
    for (const NullRow& row : nullRows) {
        SCOPED_TRACE(row.window);
        edit = nullptr;
        Create(row.window);
        Send(HEM_SETDATA, 0, 0);
        Focus();
        EXPECT_EQ(row.blank, Text());
        Blur();
        EXPECT_TRUE(IsNull());
        EXPECT_EQ(0, Send(WWM_GETCHANGED));
        DestroyWindow(edit);
    }
}

TEST_F(EditNull, LinkedBufferIsTheMasterOfANullDateToo)
{
    Make("%aQ");
    Empty();
    Blur();
    DWORD linked[2] = { 1, 1 };
    Send(HEM_LINKDATA, 0, AsParam(linked));
    EXPECT_EQ(0u, linked[0]);
    linked[0] = 45427;
    Focus();
    EXPECT_EQ("17.5.2024 0:00:00", Text());
}

struct AnewRow {
    const char* window;
    const char* start;
    const char* keys;
    const char* shown;
};

TEST_F(EditNull, EmptiedFieldIsTypedAnew)
{
    constexpr AnewRow rows[] = {
        { "%dldd/mm/yyyy", wholeDate, "1", "1|. .    " },
        { "%dldd/mm/yyyy", wholeDate, "17.5.2024", "17.5.2024|" },
        { "%dldd/mm/yyyy", wholeDate, "17052024", "17.05.2024|" },
        { "%dldd.mm", wholeDate, "28.2", "28.2|." },
        { "%dlmm|yyyy", "5/1999", "12/2024", "12/2024|" },
        { "%aD", "17.5.2024 10:20:30", "3.4.2025 7", "3.4.2025 7|:00:00" },
        { "%aTdd.mm.yyyy hh:mm", "17.5.2024 10:20", "3.4.2025 17:45", "3.4.2025 17:45|" },
        { "%tt", "10:20:30", "123456", "12:34:56|" },
        { "%tIh:mm", "10:20", "7:45", "7:45|" },
        { "%tihh:mm ap", "10:20 am", "0930 p", "09:30 p|m" },
        { "%kTdd.mm.yyyy hh:mm", "17.5.2024 10:20", "3.4.2025 17:45", "3.4.2025 17:45|" },
        { "%ms##-##", "1234", "56", "56|-__" },
        { "%nl", "1234", "56", "56|" },
        { "%zd0.00", "1234", "56", "56|" },
        { "%ss", "abc", "de", "de|" },
    };
    for (const AnewRow& row : rows) {
        SCOPED_TRACE(std::string(row.window) + " by " + row.keys);
        Make(row.window, row.start);
        Empty();
        EXPECT_EQ("|", Shown());
        Keys(row.keys);
        EXPECT_EQ(row.shown, Shown());
        DestroyWindow(edit);
    }
}

TEST_F(EditNull, TypedDateTakesTheNullAway)
{
    Make("%dldd/mm/yyyy");
    Empty();
    Blur();
    Focus();
    Keys("3.4.2025");
    Blur();
    EXPECT_FALSE(IsNull());
    int value = 0;
    Send(HEM_GETDATA, sizeof value, AsParam(&value));
    EXPECT_EQ(20250403, value);
    EXPECT_EQ("03.04.2025", Text());
}

TEST_F(EditNull, RefusedCharacterLeavesAnEmptiedFieldEmpty)
{
    for (const char* const window : { "%dl", "%aQ", "%tt", "%kTdd.mm.yyyy", "%ms##" }) {
        SCOPED_TRACE(window);
        Make(window, "12");
        Empty();
        Keys("x");
        EXPECT_EQ("|", Shown());
        Send(WM_KEYDOWN, VK_DELETE);
        Send(WM_CHAR, VK_BACK);
        EXPECT_EQ("|", Shown());
        EXPECT_TRUE(IsNull());
        DestroyWindow(edit);
    }
}

TEST_F(EditNull, UndoBringsTheDateBackBeforeTheFieldIsLeft)
{
    Make("%dldd/mm/yyyy");
    Empty();
    TypeKey('Z', withCtrl);
    EXPECT_EQ("17.5.2024", Text());
    Blur();
    EXPECT_FALSE(IsNull());
}

int CALLBACK Refuse(HWND, int, void*)
{
    return 1;
}

TEST_F(EditNull, EmptiedDateThatTheValidatorRefusesKeepsItsValue)
{
    Make("%dl");
    const int before = 20240517;
    Send(HEM_SETVALIDATOR, 0, reinterpret_cast<LPARAM>(Refuse));
    Empty();
    EXPECT_EQ(1, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ(0, std::memcmp(&before, Ctl()->pData, sizeof before));
}

} // namespace
