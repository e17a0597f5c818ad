// The record of international settings and its setters.
#include "typed/intl.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstring>
#include <string>

namespace {

class Intl : public testing::Test {
protected:
    void SetUp() override { GetIntlSettings(); }
    void TearDown() override { GetIntlSettings(); }
};

struct Setter {
    const char* name;
    int(WINAPI* set)(char ch);
    char IntlSettings::*field;
};

constexpr Setter setters[] = {
    { "SetDateSep", SetDateSep, &IntlSettings::chDateSep },
    { "SetTimeSep", SetTimeSep, &IntlSettings::chTimeSep },
    { "SetDecimalSep", SetDecimalSep, &IntlSettings::chDecimalSep },
    { "SetThousandsSep", SetThousandsSep, &IntlSettings::chThousandSep },
};

} // namespace

TEST_F(Intl, StartsWithTheBuiltInFormatsAndSeparators)
{
    EXPECT_STREQ("d/m/yyyy", gIntl.szDateFormat);
    EXPECT_STREQ("h:mm:ss", gIntl.szTimeFormat);
    EXPECT_EQ(':', gIntl.chTimeSep);
    EXPECT_EQ('.', gIntl.chDateSep);
    EXPECT_EQ(0u, gIntl.dwFlags);
    EXPECT_STREQ("", gIntl.szExtra1);
    EXPECT_STREQ("", gIntl.szExtra2);
    EXPECT_STREQ("\x4B\xE8", gIntl.szCurrency);
}

TEST_F(Intl, TakesThePunctuationOfNumbersFromTheUsersLocale)
{
    std::setlocale(LC_ALL, "C");
    GetIntlSettings();
    const std::string ofStart = std::setlocale(LC_ALL, nullptr);
    const std::string ofUser = std::setlocale(LC_ALL, "");
    EXPECT_EQ(ofUser, ofStart);
    EXPECT_EQ(std::localeconv()->decimal_point[0], gIntl.chDecimalSep);
    EXPECT_EQ(std::localeconv()->thousands_sep[0], gIntl.chThousandSep);
}

TEST_F(Intl, FillsTheWholeRecordAnew)
{
    std::memset(&gIntl, 'x', sizeof gIntl);
    GetIntlSettings();
    EXPECT_STREQ("d/m/yyyy", gIntl.szDateFormat);
    EXPECT_STREQ("h:mm:ss", gIntl.szTimeFormat);
    EXPECT_EQ('.', gIntl.chDateSep);
    EXPECT_EQ(0u, gIntl.dwFlags);
    EXPECT_STREQ("\x4B\xE8", gIntl.szCurrency);
    EXPECT_EQ(':', gIntl.chTimeSep);
    EXPECT_EQ(std::localeconv()->decimal_point[0], gIntl.chDecimalSep);
    EXPECT_EQ(std::localeconv()->thousands_sep[0], gIntl.chThousandSep);
    EXPECT_EQ(std::string(sizeof gIntl.szExtra1, '\0'), std::string(gIntl.szExtra1, sizeof gIntl.szExtra1));
    EXPECT_EQ(std::string(sizeof gIntl.szExtra2, '\0'), std::string(gIntl.szExtra2, sizeof gIntl.szExtra2));
}

TEST_F(Intl, GivesHostsTheRecordItself)
{
    IntlSettings* const settings = WWGetIntlInfo();
    ASSERT_NE(nullptr, settings);
    EXPECT_EQ(1, SetDateSep('-'));
    EXPECT_EQ('-', settings->chDateSep);
    EXPECT_EQ(1, SetDefTimeFormat("hh.mm"));
    EXPECT_STREQ("hh.mm", settings->szTimeFormat);
}

TEST_F(Intl, LaysTheFieldsOutAsHostsReadThem)
{
    EXPECT_EQ(1, SetThousandsSep('\''));
    EXPECT_EQ(1, SetDecimalSep(','));
    const char* const bytes = reinterpret_cast<const char*>(WWGetIntlInfo());
    EXPECT_STREQ("d/m/yyyy", bytes);
    EXPECT_STREQ("h:mm:ss", bytes + 16);
    EXPECT_EQ(std::string(":.',"), std::string(bytes + 32, 4));
    EXPECT_STREQ("\x4B\xE8", bytes + 48);
    EXPECT_EQ(64u, sizeof(IntlSettings));
}

TEST_F(Intl, SettersTakeEveryCharacterThatIsNoLetterAndNoDigit)
{
    for (const Setter& setter : setters) {
        for (int code = 0; code < 128; ++code) {
            const char ch = static_cast<char>(code);
            const bool word = (ch >= '0' && ch <= '9') || (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z');
            gIntl.*setter.field = '\x7F';
            EXPECT_EQ(word ? 0 : 1, setter.set(ch)) << setter.name << " of character " << code;
            EXPECT_EQ(word ? '\x7F' : ch, gIntl.*setter.field) << setter.name << " of character " << code;
        }
    }
}

TEST_F(Intl, SettersRefuseCharactersFrom128Up)
{
    for (const Setter& setter : setters) {
        for (int code = 128; code < 256; ++code) {
            gIntl.*setter.field = '#';
            EXPECT_EQ(0, setter.set(static_cast<char>(code))) << setter.name << " of character " << code;
            EXPECT_EQ('#', gIntl.*setter.field) << setter.name << " of character " << code;
        }
    }
}

TEST_F(Intl, SettersChangeNoOtherField)
{
    for (const Setter& setter : setters) {
        GetIntlSettings();
        IntlSettings expected = gIntl;
        expected.*setter.field = '!';
        EXPECT_EQ(1, setter.set('!'));
        EXPECT_EQ(0, std::memcmp(&expected, &gIntl, sizeof gIntl)) << setter.name;
    }
}

TEST_F(Intl, SetDateSepTakesADashAndRefusesALetter)
{
    EXPECT_EQ(1, SetDateSep('-'));
    EXPECT_EQ(0, SetDateSep('x'));
    EXPECT_EQ('-', gIntl.chDateSep);
}

TEST_F(Intl, SeparatorsMayBeAlike)
{
    EXPECT_EQ(1, SetDecimalSep(','));
    EXPECT_EQ(1, SetThousandsSep(','));
    EXPECT_EQ(',', gIntl.chDecimalSep);
    EXPECT_EQ(',', gIntl.chThousandSep);
}

TEST_F(Intl, DateFormatsAreStoredInLowerCase)
{
    EXPECT_EQ(1, SetDefDateFormat("DD.MM.YYYY"));
    EXPECT_STREQ("dd.mm.yyyy", gIntl.szDateFormat);
}

TEST_F(Intl, TimeFormatsAreStoredInLowerCase)
{
    EXPECT_EQ(1, SetDefTimeFormat("HH:MM AP"));
    EXPECT_STREQ("hh:mm ap", gIntl.szTimeFormat);
}

TEST_F(Intl, ADateFormatNeedsDayMonthAndYear)
{
    constexpr const char* lacking[] = { "mm/yyyy", "dd/mm", "dd/yyyy", "", "hh:mm" };
    for (const char* format : lacking) {
        EXPECT_EQ(0, SetDefDateFormat(format)) << format;
        EXPECT_STREQ("d/m/yyyy", gIntl.szDateFormat) << format;
    }
    EXPECT_EQ(1, SetDefDateFormat("yMd"));
    EXPECT_STREQ("ymd", gIntl.szDateFormat);
}

TEST_F(Intl, ATimeFormatNeedsHourAndMinute)
{
    EXPECT_EQ(1, SetDefTimeFormat("hh:mm:ss"));
    EXPECT_STREQ("hh:mm:ss", gIntl.szTimeFormat);
    EXPECT_EQ(0, SetDefTimeFormat("hh"));
    EXPECT_EQ(0, SetDefTimeFormat("mm:ss"));
    EXPECT_EQ(0, SetDefTimeFormat(""));
    EXPECT_STREQ("hh:mm:ss", gIntl.szTimeFormat);
}

TEST_F(Intl, ANullFormatIsRefused)
{
    EXPECT_EQ(0, SetDefDateFormat(nullptr));
    EXPECT_EQ(0, SetDefTimeFormat(nullptr));
    EXPECT_STREQ("d/m/yyyy", gIntl.szDateFormat);
    EXPECT_STREQ("h:mm:ss", gIntl.szTimeFormat);
}

TEST_F(Intl, FormatsAreCutToFifteenCharacters)
{
    EXPECT_EQ(1, SetDefDateFormat("yyyy-mm-dd, dddd"));
    EXPECT_STREQ("yyyy-mm-dd, ddd", gIntl.szDateFormat);
    EXPECT_EQ(1, SetDefTimeFormat("hh:mm:ss and more of it"));
    EXPECT_STREQ("hh:mm:ss and mo", gIntl.szTimeFormat);
    EXPECT_EQ(':', gIntl.chTimeSep);
}

TEST_F(Intl, TheFieldItselfCanBeTheNewFormat)
{
    std::strcpy(gIntl.szDateFormat, "D/M/YY");
    EXPECT_EQ(1, SetDefDateFormat(gIntl.szDateFormat));
    EXPECT_STREQ("d/m/yy", gIntl.szDateFormat);
}
