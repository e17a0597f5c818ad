// Stored values of every class and type to text and back.
#include "typed/typed_test_support.h"

#include "typed/date_time.h"

#include <cstdint>
#include <limits>

namespace {

template <typename T>
std::string Value(T value)
{
    return std::string(reinterpret_cast<const char*>(&value), sizeof value);
}

std::string Words(std::initializer_list<int> values)
{
    std::string bytes;
    for (const int value : values) {
        bytes += Value(static_cast<uint16_t>(value));
    }
    return bytes;
}

std::string Bytes(std::initializer_list<int> values)
{
    std::string bytes;
    for (const int value : values) {
        bytes += static_cast<char>(value);
    }
    return bytes;
}

std::string Text(const char* text)
{
    return std::string(text, std::strlen(text) + 1);
}

// The stored form that the conversion of a moment gives; what it doesn't write reads as '~'.
std::string Moment(char dataType, DateTimeRec rec)
{
    ExactBuffer data(static_cast<size_t>(GetDataSize('a', dataType)));
    EXPECT_EQ(1, DateTimeToData(&rec, data.Get(), dataType));
    return data.Bytes();
}

struct Row {
    char        dataClass;
    char        dataType;
    const char* format;
    std::string data; // stored
    const char* text; // shown, and read back
};

const DateTimeRec afternoon = { 2024, 2, 29, 13, 14, 15, 0, 0 };
const DateTimeRec minute = { 2024, 2, 29, 13, 14, 0, 0, 0 };

// Separators are "." for dates, ":" for times, "," for thousands, "." for decimals.
const Row rows[] = {
    { 'a', 'D', "dd/mm/yyyy hh:mm:ss", Moment('D', afternoon), "29.02.2024 13:14:15" },
    { 'a', 'Q', "dd/mm/yyyy hh:mm:ss", Moment('Q', afternoon), "29.02.2024 13:14:15" },
    { 'a', 'T', "dd/mm/yyyy hh:mm:ss", Moment('T', afternoon), "29.02.2024 13:14:15" },
    { 'a', 'm', "dd/mm/yyyy hh:mm:ss", Moment('m', afternoon), "29.02.2024 13:14:15" },
    { 'a', 'q', "dd/mm/yyyy hh:mm", Moment('q', minute), "29.02.2024 13:14" },
    { 'a', 's', "dd/mm/yyyy hh:mm:ss", Moment('s', afternoon), "29.02.2024 13:14:15" },
    { 'a', 'u', "dd/mm/yyyy hh:mm:ss", Moment('u', afternoon), "29.02.2024 13:14:15" },
    { 'k', 'T', "dd/mm/yyyy hh:mm:ss", Moment('T', afternoon), "29.02.2024 13:14:15" },

    { 'd', 'A', "dd/mm/yyyy", Words({ 44 | 2 << 7 | 29 << 11 }), "29.02.2024" },
    { 'd', 'a', "dd/mm/yyyy", Bytes({ 29, 2, 0xE8, 7, '~', '~' }), "29.02.2024" },
    { 'd', 'd', "dd/mm/yyyy", Words({ 2024, 2, 29 }), "29.02.2024" },
    { 'd', 'l', "dd/mm/yyyy", Value<int32_t>(20240229), "29.02.2024" },
    { 'd', 'l', nullptr, Value<int32_t>(20240229), "29.2.2024" },

    { 't', 'I', "hh:mm:ss", Words({ 13 | 14 << 5 | 8 << 11 }), "13:14:16" },
    { 't', 'i', "hh:mm:ss", Bytes({ 13, 14, 15, 0 }), "13:14:15" },
    { 't', 't', "hh:mm:ss", Words({ 13, 14, 15 }), "13:14:15" },

    { 'b', 'W', "Yes;No", Value<uint32_t>(1), "Yes" },
    { 'b', 'b', "Yes;No", Value<uint8_t>(1), "Yes" },
    { 'b', 'h', "Yes;No", Value<int8_t>(0), "No" },
    { 'b', 'i', "Yes;No", Value<int32_t>(1), "Yes" },
    { 'b', 'l', "Yes;No", Value<int32_t>(0), "No" },
    { 'b', 's', "Yes;No", Value<int16_t>(1), "Yes" },
    { 'b', 'u', "Yes;No", Value<uint32_t>(0), "No" },
    { 'b', 'w', nullptr, Value<uint16_t>(0), "FALSE" },

    { 'h', 'h', nullptr, Bytes({ 'x' }), "x" },
    { 'm', 's', "##-##", Text("1234"), "12-34" },
    { 's', 's', nullptr, Text("any text"), "any text" },

    { 'n', 'W', "#,##0", Value<uint32_t>(4294967295u), "4,294,967,295" },
    { 'n', 'b', "0", Value<uint8_t>(255), "255" },
    { 'n', 'd', "#,##0.00", Value(-12345.25), "-12,345.25" },
    { 'n', 'f', "0.00", Value(2.5f), "2.50" },
    { 'n', 'h', "0", Value<int8_t>(-128), "-128" },
    { 'n', 'i', "#,##0", Value<int32_t>(-2147483647 - 1), "-2,147,483,648" },
    { 'n', 'l', nullptr, Value<int32_t>(42), "42" },
    { 'n', 's', "0", Value<int16_t>(-32768), "-32768" },
    { 'n', 'u', "0", Value<uint32_t>(3000000000u), "3000000000" },
    { 'n', 'w', "0", Value<uint16_t>(65535), "65535" },
    { 'c', 'W', "0", Value<uint32_t>(7), "7" },
    { 'c', 'b', "0", Value<uint8_t>(7), "7" },
    { 'c', 'd', "0.0", Value(0.5), "0.5" },
    { 'c', 'f', "0.0", Value(0.5f), "0.5" },
    { 'c', 'h', "0", Value<int8_t>(-7), "-7" },
    { 'c', 'i', "0", Value<int32_t>(-7), "-7" },
    { 'c', 'l', "0", Value<int32_t>(-7), "-7" },
    { 'c', 's', "0", Value<int16_t>(-7), "-7" },
    { 'c', 'u', "0", Value<uint32_t>(7), "7" },
    { 'c', 'w', "0", Value<uint16_t>(7), "7" },
    { 'z', 'd', "0.00", Value(1.25), "1.25" },
    { 'z', 'f', "0.00", Value(1.25f), "1.25" },
};

constexpr size_t outSize = 64;

std::string Named(const Row& row)
{
    return std::string() + row.dataClass + row.dataType + " " + row.text;
}

class DataFormat : public NumberTest {};
class DataParse : public NumberTest {};

DateTimeRec ParseMoment(char dataClass, const char* format, const char* text, int noCheck, int* outResult)
{
    DateTimeRec rec = { -1, 99, 99, 99, 99, 99, 99, 999 };
    *outResult = ParseData(&rec, dataClass, 'D', format, text, noCheck);
    return rec;
}

} // namespace

TEST_F(DataFormat, WritesTheTextOfEveryClassAndType)
{
    for (const Row& row : rows) {
        ExactBuffer out(outSize), data(row.data.size());
        std::memcpy(data.Get(), row.data.data(), row.data.size());
        EXPECT_EQ(static_cast<int>(std::strlen(row.text)),
                  FormatData(data.Get(), row.dataClass, row.dataType, row.format, out.Get(), outSize, nullptr, 0))
            << Named(row);
        EXPECT_EQ(row.text, out.Text()) << Named(row);
    }
}

TEST_F(DataParse, ReadsTheTextOfEveryClassAndTypeBack)
{
    for (const Row& row : rows) {
        ExactBuffer data(row.dataClass == 'm' ? std::strlen(row.text) + 1 : row.data.size());
        EXPECT_EQ(0, ParseData(data.Get(), row.dataClass, row.dataType, row.format, row.text, 0)) << Named(row);
        EXPECT_EQ(row.data, data.Bytes().substr(0, row.data.size())) << Named(row);
    }
}

TEST_F(DataFormat, GivesNothingForMissingArguments)
{
    const int value = 5;
    char      out[8] = "keep";
    EXPECT_EQ(0, FormatData(nullptr, 'n', 'i', "0", out, sizeof out, nullptr, 0));
    EXPECT_EQ(0, FormatData(&value, 'n', 'i', "0", nullptr, sizeof out, nullptr, 0));
    EXPECT_STREQ("keep", out);
}

TEST_F(DataFormat, LeavesABufferOfOneByteUntouched)
{
    for (const Row& row : rows) {
        char      out[] = "?";
        int       negative = 7;
        const int length = FormatData(row.data.data(), row.dataClass, row.dataType, row.format, out, 1, &negative, 0);
        EXPECT_EQ(0, length) << Named(row);
        EXPECT_STREQ("?", out) << Named(row);
        EXPECT_EQ(7, negative) << Named(row);
    }
}

TEST_F(DataFormat, StaysInsideABufferOfAnySize)
{
    for (const Row& row : rows) {
        for (size_t size = 2; size < 24; ++size) {
            ExactBuffer out(size);
            FormatData(row.data.data(), row.dataClass, row.dataType, row.format, out.Get(), static_cast<int>(size),
                       nullptr, 0);
            EXPECT_NE(std::string::npos, out.Bytes().find('\0')) << Named(row) << " in " << size;
        }
    }
}

TEST_F(DataFormat, CutsATextToItsBuffer)
{
    ExactBuffer out(4);
    EXPECT_EQ(3, FormatData("abcdef", 's', 's', nullptr, out.Get(), 4, nullptr, 0));
    EXPECT_EQ("abc", out.Text());
}

TEST_F(DataFormat, ShowsFalseInTheNegativeColour)
{
    char         out[16];
    int          negative = 7;
    const int8_t no = 0, yes = 3;
    FormatData(&no, 'b', 'h', nullptr, out, sizeof out, &negative, 0);
    EXPECT_EQ(1, negative);
    FormatData(&yes, 'b', 'h', nullptr, out, sizeof out, &negative, 0);
    EXPECT_EQ(0, negative);
    EXPECT_STREQ("TRUE", out);
}

TEST_F(DataFormat, TakesABooleanInAFloatForFalse)
{
    char        out[16];
    int         negative = 0;
    const float one = 1.0f;
    EXPECT_EQ(5, FormatData(&one, 'b', 'f', nullptr, out, sizeof out, &negative, 0));
    EXPECT_STREQ("FALSE", out);
    EXPECT_EQ(1, negative);
}

TEST_F(DataFormat, ShowsNumbersBelowZeroInTheNegativeColour)
{
    const struct {
        double value;
        int    negative;
    } cases[] = { { -0.001, 1 }, { -5.0, 1 }, { 0.0, 0 }, { -0.0, 0 }, { 5.0, 0 } };
    for (const auto& row : cases) {
        for (const char dataClass : { 'c', 'n', 'z' }) {
            char out[16];
            int  negative = 7;
            FormatData(&row.value, dataClass, 'd', "0.00", out, sizeof out, &negative, 0);
            EXPECT_EQ(row.negative, negative) << dataClass << row.value;
        }
    }
}

TEST_F(DataFormat, ClearsTheNegativeColourForOtherClasses)
{
    char              out[32];
    const DateTimeRec rec = afternoon;
    const struct {
        char        dataClass;
        char        dataType;
        const void* data;
    } cases[] = { { 's', 's', "x" }, { 'm', 's', "x" }, { 'h', 'h', "x" }, { 'a', 'D', &rec }, { '?', 's', "x" } };
    for (const auto& row : cases) {
        int negative = 7;
        FormatData(row.data, row.dataClass, row.dataType, nullptr, out, sizeof out, &negative, 0);
        EXPECT_EQ(0, negative) << row.dataClass;
    }
}

TEST_F(DataFormat, WritesACharacterEvenIfItIsZero)
{
    char out[4] = "???";
    EXPECT_EQ(1, FormatData("", 'h', 'h', nullptr, out, sizeof out, nullptr, 0));
    EXPECT_EQ(0, out[0]);
    EXPECT_EQ(0, out[1]);
}

TEST_F(DataFormat, GivesARowOfMarksForANumberThatDoesNotFit)
{
    char      out[5];
    const int value = 123456;
    EXPECT_EQ(0, FormatData(&value, 'n', 'i', "0", out, sizeof out, nullptr, 0));
    EXPECT_STREQ("####", out);
}

TEST_F(DataFormat, HandsTheEditFormToDatesAndNumbers)
{
    char         out[32];
    const double value = -1234.5;
    FormatData(&value, 'n', 'd', "#,##0.0;(#,##0.0)", out, sizeof out, nullptr, 0);
    EXPECT_STREQ("(1,234.5)", out);
    FormatData(&value, 'n', 'd', "#,##0.0;(#,##0.0)", out, sizeof out, nullptr, 1);
    EXPECT_STREQ("-1234.5", out);
    FormatData(&afternoon, 'd', 'D', "yyyy-mm-dd", out, sizeof out, nullptr, 0);
    EXPECT_STREQ("2024-02-29", out);
    FormatData(&afternoon, 'd', 'D', "yyyy-mm-dd", out, sizeof out, nullptr, 1);
    EXPECT_STREQ("29.2.2024", out);
}

TEST_F(DataFormat, PrintsOnlyTheHalvesOfAMomentThatTheClassHas)
{
    char out[32];
    FormatData(&afternoon, 'd', 'D', nullptr, out, sizeof out, nullptr, 0);
    EXPECT_STREQ("29.2.2024", out);
    FormatData(&afternoon, 't', 'D', nullptr, out, sizeof out, nullptr, 0);
    EXPECT_STREQ("13:14:15", out);
    FormatData(&afternoon, 'a', 'D', nullptr, out, sizeof out, nullptr, 0);
    EXPECT_STREQ("29.2.2024 13:14:15", out);
    FormatData(&afternoon, 'k', 'D', nullptr, out, sizeof out, nullptr, 0);
    EXPECT_STREQ("29.2.2024 13:14:15", out);
}

TEST_F(DataFormat, GivesNothingForADateThatCannotBeConverted)
{
    char          out[32] = "keep";
    const int64_t before = -1;
    EXPECT_EQ(0, FormatData(&before, 'k', 'T', nullptr, out, sizeof out, nullptr, 0));
    EXPECT_EQ(0, FormatData(&before, 'a', 'x', nullptr, out, sizeof out, nullptr, 0));
    EXPECT_STREQ("keep", out);
}

TEST_F(DataFormat, LeavesMoneyAlone)
{
    const int64_t money = 12345;
    for (const char dataClass : { 'c', 'n', 'z' }) {
        char out[32] = "keep";
        EXPECT_EQ(0, FormatData(&money, dataClass, 'M', "0.00", out, sizeof out, nullptr, 0)) << dataClass;
        EXPECT_STREQ("keep", out) << dataClass;
    }
}

TEST_F(DataFormat, GivesNothingForAnUnknownClass)
{
    char out[32] = "keep";
    for (const char dataClass : std::string("xDNe%") + '\0') {
        EXPECT_EQ(0, FormatData("data", dataClass, 's', nullptr, out, sizeof out, nullptr, 0)) << dataClass;
        EXPECT_STREQ("keep", out) << dataClass;
    }
}

TEST_F(DataParse, StoresNothingForMissingArguments)
{
    int value = 5;
    EXPECT_EQ(0, ParseData(nullptr, 'n', 'i', "0", "7", 0));
    EXPECT_EQ(0, ParseData(&value, 'n', 'i', "0", nullptr, 0));
    EXPECT_EQ(0, ParseData(&value, '?', 'i', "0", nullptr, 0));
    EXPECT_EQ(5, value);
}

TEST_F(DataParse, GivesOneForAnUnknownClass)
{
    int value = 5;
    for (const char dataClass : std::string("xDNe%") + '\0') {
        EXPECT_EQ(1, ParseData(&value, dataClass, 'i', nullptr, "7", 0)) << dataClass;
    }
    EXPECT_EQ(5, value);
}

TEST_F(DataParse, LeavesMoneyAloneAndReportsSuccess)
{
    for (const char dataClass : { 'c', 'n', 'z' }) {
        int64_t money = 12345;
        EXPECT_EQ(0, ParseData(&money, dataClass, 'M', nullptr, "7", 0)) << dataClass;
        EXPECT_EQ(12345, money) << dataClass;
    }
}

TEST_F(DataParse, FailsForANumberOfAnUnknownType)
{
    int value = 5;
    EXPECT_EQ(1, ParseData(&value, 'n', 'x', nullptr, "7", 0));
    EXPECT_EQ(5, value);
}

TEST_F(DataParse, CopiesATextWithoutALimit)
{
    const std::string text(1000, 'x');
    ExactBuffer       data(text.size() + 1);
    EXPECT_EQ(0, ParseData(data.Get(), 's', 's', nullptr, text.c_str(), 0));
    EXPECT_EQ(text, data.Text());
}

TEST_F(DataParse, KeepsOnlyTheBareCharactersOfAMaskedText)
{
    ExactBuffer data(std::strlen("(12) 34") + 1);
    EXPECT_EQ(0, ParseData(data.Get(), 'm', 's', "(##) ##", "(12) 34", 0));
    EXPECT_EQ("1234", data.Text());
}

TEST_F(DataParse, CopiesAMaskedTextWithoutAMask)
{
    ExactBuffer data(std::strlen("12-34") + 1);
    EXPECT_EQ(0, ParseData(data.Get(), 'm', 's', "", "12-34", 0));
    EXPECT_EQ("12-34", data.Text());
}

TEST_F(DataParse, NeedsNoMoreRoomForAMaskedTextThanForTheText)
{
    ExactBuffer data(std::strlen("1") + 1);
    EXPECT_EQ(0, ParseData(data.Get(), 'm', 's', "##########", "1", 0));
    EXPECT_EQ("1", data.Text());
}

TEST_F(DataParse, StoresZeroOrOneForABoolean)
{
    const struct {
        const char* text;
        int         value;
    } cases[] = { { "yes", 1 }, { "NO", 0 }, { "", 1 }, { "y", 1 }, { "never", 0 }, { "yesterday", 1 } };
    for (const auto& row : cases) {
        int value = 0x55555555;
        EXPECT_EQ(0, ParseData(&value, 'b', 'i', "Yes;No", row.text, 0)) << row.text;
        EXPECT_EQ(row.value, value) << row.text;
    }
}

TEST_F(DataParse, LeavesABooleanOfAnotherTypeAlone)
{
    float value = 5.0f;
    EXPECT_EQ(0, ParseData(&value, 'b', 'f', nullptr, "TRUE", 0));
    EXPECT_EQ(5.0f, value);
}

TEST_F(DataParse, StoresTheFirstByteOfACharacterText)
{
    char value[] = "??";
    EXPECT_EQ(0, ParseData(value, 'h', 'h', nullptr, "xyz", 0));
    EXPECT_EQ('x', value[0]);
    EXPECT_EQ('?', value[1]);
    EXPECT_EQ(0, ParseData(value, 'h', 'h', nullptr, "", 0));
    EXPECT_EQ(0, value[0]);
}

TEST_F(DataParse, StoresARepairedDateAndReportsFailure)
{
    int32_t value = 0;
    EXPECT_NE(0, ParseData(&value, 'd', 'l', "dd/mm/yyyy", "31.04.2024", 0));
    EXPECT_EQ(20240430, value);
    int               result;
    const DateTimeRec rec = ParseMoment('a', "dd/mm/yyyy hh:mm:ss", "31.04.2024 25:14:15", 0, &result);
    EXPECT_NE(0, result);
    EXPECT_EQ(30, rec.day);
    EXPECT_EQ(23, rec.hour);
}

TEST_F(DataParse, RepairsBothHalvesOfAMomentThatIsWrongInEither)
{
    int         result;
    DateTimeRec rec = ParseMoment('a', "dd/mm/yyyy hh:mm:ss", "31.04.2024 12:14:75", 0, &result);
    EXPECT_NE(0, result);
    EXPECT_EQ(59, rec.second);
    rec = ParseMoment('a', "dd/mm/yyyy hh:mm:ss", "30.04.2024 12:14:75", 0, &result);
    EXPECT_NE(0, result);
    rec = ParseMoment('a', "dd/mm/yyyy hh:mm:ss", "31.04.2024 12:14:15", 0, &result);
    EXPECT_NE(0, result);
    EXPECT_EQ(30, rec.day);
    ParseMoment('a', "dd/mm/yyyy hh:mm:ss", "30.04.2024 12:14:15", 0, &result);
    EXPECT_EQ(0, result);
}

TEST_F(DataParse, TakesADateAsItStandsWithoutTheCheck)
{
    int32_t value = 0;
    EXPECT_EQ(0, ParseData(&value, 'd', 'l', "dd/mm/yyyy", "31.04.2024", 1));
    EXPECT_EQ(20240431, value);
}

TEST_F(DataParse, ExpandsATwoDigitYearOnlyWithTheCheck)
{
    int32_t value = 0;
    EXPECT_EQ(0, ParseData(&value, 'd', 'l', "dd/mm/yyyy", "01.04.50", 0));
    EXPECT_EQ(19500401, value);
    EXPECT_EQ(0, ParseData(&value, 'd', 'l', "dd/mm/yyyy", "01.04.50", 1));
    EXPECT_EQ(500401, value);
}

TEST_F(DataParse, ChecksTheFieldsThatTheFormatHoldsInEitherCase)
{
    int32_t value = 0;
    EXPECT_NE(0, ParseData(&value, 'd', 'l', "DD/MM/YYYY", "31.04.2024", 0));
    EXPECT_EQ(20240430, value);
    // Without a day field the date means the first of the month.
    EXPECT_EQ(0, ParseData(&value, 'd', 'l', "mm/yyyy", "04.2024", 0));
    EXPECT_EQ(20240401, value);
    // Without a year field the year isn't expanded, and stays none.
    EXPECT_EQ(0, ParseData(&value, 'd', 'l', "dd/mm", "30.04", 0));
    EXPECT_EQ(430, value);
}

TEST_F(DataParse, WantsATwelveHourClockExactlyWithoutAFormat)
{
    int         result;
    DateTimeRec rec = ParseMoment('t', nullptr, "13:14:15", 0, &result);
    EXPECT_NE(0, result);
    EXPECT_EQ(12, rec.hour);
    rec = ParseMoment('t', "", "13:14:15", 0, &result);
    EXPECT_NE(0, result);
    EXPECT_EQ(12, rec.hour);
    rec = ParseMoment('t', "hh:mm:ss", "13:14:15", 0, &result);
    EXPECT_EQ(0, result);
    EXPECT_EQ(13, rec.hour);
    rec = ParseMoment('t', nullptr, "0:14:15", 0, &result);
    EXPECT_NE(0, result);
    EXPECT_EQ(1, rec.hour);
}

TEST_F(DataParse, ChecksNoClockForDatesAndNoCalendarForTimes)
{
    int result;
    ParseMoment('d', "dd/mm/yyyy", "01.04.2024", 0, &result);
    EXPECT_EQ(0, result);
    ParseMoment('t', "hh:mm:ss", "13:14:15", 0, &result);
    EXPECT_EQ(0, result);
}

TEST_F(DataParse, FailsForADateOfAnUnknownType)
{
    int32_t value = 7;
    EXPECT_NE(0, ParseData(&value, 'd', 'x', "dd/mm/yyyy", "01.04.2024", 0));
    EXPECT_NE(0, ParseData(&value, 'd', 'x', "dd/mm/yyyy", "01.04.2024", 1));
    EXPECT_EQ(7, value);
}

TEST_F(DataParse, ClearsANumberThatItsTypeCannotHold)
{
    int32_t value = 7;
    EXPECT_EQ(0, ParseData(&value, 'n', 'l', nullptr, "99999999999", 0));
    EXPECT_EQ(0, value);
}
