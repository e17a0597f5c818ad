// Typed values and international settings through the DLL.
#include <widgets/widgets.h>

#include <gtest/gtest.h>

#include <cstring>

namespace {

TEST(DllTyped, ReadsDescriptors)
{
    char              dataClass = 0;
    char              dataType = 0;
    char              dataClass2 = 0;
    char              dataType2 = 0;
    const char* const text = "%dl%nbrest";
    EXPECT_EQ(text + 6, GetDataTypes(text, &dataClass, &dataType, &dataClass2, &dataType2));
    EXPECT_EQ('d', dataClass);
    EXPECT_EQ('l', dataType);
    EXPECT_EQ('n', dataClass2);
    EXPECT_EQ('b', dataType2);
    EXPECT_EQ(1, ValidClass('d'));
    EXPECT_EQ(0, ValidClass('x'));
    EXPECT_EQ(1, ValidType('d', 'l'));
    EXPECT_EQ(0, ValidType('d', 'f'));
    EXPECT_EQ(4, GetDataSize('d', 'l'));
    EXPECT_EQ(-1, GetDataSize('s', 's'));
}

TEST(DllTyped, WritesAndReadsANumber)
{
    LONG value = 0;
    char text[20];
    int  negative = -1;
    EXPECT_EQ(0, ParseData(&value, 'n', 'l', nullptr, "-1234", 0));
    EXPECT_EQ(-1234, value);
    EXPECT_EQ(5, FormatData(&value, 'n', 'l', "0000", text, sizeof text, &negative, 0));
    EXPECT_STREQ("-1234", text);
    EXPECT_EQ(1, negative);
    EXPECT_EQ(1, DoubleToNum(&value, 'l', 7.9));
    EXPECT_EQ(7, value);
    EXPECT_DOUBLE_EQ(7.0, NumToDouble(&value, 'l'));
    EXPECT_EQ(4, DoubleToString(2.5, "0.00", text, sizeof text, 0));
    EXPECT_DOUBLE_EQ(-12.0, StringToDouble("-12"));
}

TEST(DllTyped, WritesAndReadsADate)
{
    LONG        stored = 20240229;
    DateTimeRec rec = {};
    EXPECT_EQ(1, DataToDateTime(&rec, &stored, 'l'));
    EXPECT_EQ(2024, rec.year);
    EXPECT_EQ(2, rec.month);
    EXPECT_EQ(29, rec.day);
    EXPECT_EQ(1, ValidDate(&rec, 0, 1, 1, 1));
    rec.year = 2023;
    EXPECT_EQ(0, ValidDate(&rec, 1, 1, 1, 1)) << "there is no such day";
    EXPECT_EQ(1, DateTimeToData(&rec, &stored, 'l'));
    EXPECT_EQ(20230228, stored);
    rec.hour = 24;
    EXPECT_EQ(0, ValidTime(&rec, 0, 0, 1, 1, 1));
}

TEST(DllTyped, LaysTextsOverMasks)
{
    char text[20];
    EXPECT_EQ(5, MaskToString("123", "##-##", text, sizeof text, 0));
    EXPECT_STREQ("12-3_", text);
}

TEST(DllTyped, ConvertsBooleansAndColours)
{
    char     text[20];
    COLORREF color = 0;
    EXPECT_EQ(2, BoolToString(0, "yes;no", text, sizeof text));
    EXPECT_STREQ("no", text);
    EXPECT_EQ(1, StringToColor("[255,0,10]", &color));
    EXPECT_EQ(0x0A00FFu, color);
    EXPECT_EQ(0, StringToColor("rouge", &color));
}

TEST(DllTyped, SplitsFields)
{
    char* next = nullptr;
    EXPECT_STREQ("a\nb", StringParse("a^b;c", ';', '\\', '^', '\n', &next));
    EXPECT_STREQ("c", next);
}

TEST(DllTyped, LoadsTheTextsOfButtonsFromItsOwnResources)
{
    char text[64];
    EXPECT_EQ(10, LoadDefTypeText(1, text, sizeof text, nullptr));
    EXPECT_STREQ("441;HBPush", text);
    EXPECT_EQ(0, LoadDefTypeText(7, text, sizeof text, nullptr));
}

// Each test sets the settings back.
class DllSettings : public testing::Test {
protected:
    ~DllSettings() override { GetIntlSettings(); }
};

TEST_F(DllSettings, AreReadOnceAndSetByTheHost)
{
    IntlSettings* const settings = WWGetIntlInfo();
    ASSERT_NE(nullptr, settings);
    EXPECT_STREQ("d/m/yyyy", settings->szDateFormat);
    EXPECT_EQ(1, SetDateSep('-'));
    EXPECT_EQ(0, SetDateSep('x'));
    EXPECT_EQ('-', settings->chDateSep);
    EXPECT_EQ(1, SetTimeSep(';'));
    EXPECT_EQ(1, SetDecimalSep('!'));
    EXPECT_EQ(1, SetThousandsSep(' '));
    EXPECT_EQ(1, SetDefDateFormat("DD.MM.YYYY"));
    EXPECT_STREQ("dd.mm.yyyy", settings->szDateFormat);
    EXPECT_EQ(0, SetDefTimeFormat("hh"));
    EXPECT_EQ(1, SetDefTimeFormat("hh:mm"));
    EXPECT_EQ(';', settings->chTimeSep);
    EXPECT_EQ('!', settings->chDecimalSep);
    EXPECT_EQ(' ', settings->chThousandSep);
}

TEST_F(DllSettings, GoBackToTheStartValues)
{
    SetDateSep('-');
    GetIntlSettings();
    EXPECT_EQ('.', WWGetIntlInfo()->chDateSep);
}

} // namespace
