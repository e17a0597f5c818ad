// The pairs of class and type, their sizes, and the descriptors that name them.
#include "typed/typed_test_support.h"

#include <algorithm>

namespace {

struct PairSize {
    char dataClass;
    char dataType;
    int  size;
};

const PairSize pairs[] = {
    { 'a', 'D', 10 }, { 'a', 'Q', 8 }, { 'a', 'T', 8 },  { 'a', 'm', 36 }, { 'a', 'q', 4 }, { 'a', 's', 16 },
    { 'a', 'u', 8 },  { 'b', 'W', 4 }, { 'b', 'b', 1 },  { 'b', 'h', 1 },  { 'b', 'i', 4 }, { 'b', 'l', 4 },
    { 'b', 's', 2 },  { 'b', 'u', 4 }, { 'b', 'w', 2 },  { 'c', 'M', 8 },  { 'c', 'W', 4 }, { 'c', 'b', 1 },
    { 'c', 'd', 8 },  { 'c', 'f', 4 }, { 'c', 'h', 1 },  { 'c', 'i', 4 },  { 'c', 'l', 4 }, { 'c', 's', 2 },
    { 'c', 'u', 4 },  { 'c', 'w', 2 }, { 'd', 'A', 2 },  { 'd', 'a', 6 },  { 'd', 'd', 6 }, { 'd', 'l', 4 },
    { 'h', 'h', 1 },  { 'k', 'T', 8 }, { 'm', 's', -1 }, { 'n', 'M', 8 },  { 'n', 'W', 4 }, { 'n', 'b', 1 },
    { 'n', 'd', 8 },  { 'n', 'f', 4 }, { 'n', 'h', 1 },  { 'n', 'i', 4 },  { 'n', 'l', 4 }, { 'n', 's', 2 },
    { 'n', 'u', 4 },  { 'n', 'w', 2 }, { 's', 's', -1 }, { 't', 'I', 2 },  { 't', 'i', 4 }, { 't', 't', 6 },
    { 'z', 'd', 8 },  { 'z', 'f', 4 },
};

bool IsListed(char dataClass, char dataType)
{
    for (const PairSize& pair : pairs) {
        if (pair.dataClass == dataClass && pair.dataType == dataType) {
            return true;
        }
    }
    return false;
}

struct Descriptor {
    const char* text;
    char        dataClass;
    char        dataType;
    char        dataClass2;
    char        dataType2; // '?' is what the caller had there
    int         length;
};

const Descriptor descriptors[] = {
    { "%dl", 'd', 'l', 0, '?', 3 },      { "%xy", 's', 's', 0, '?', 0 },      { "%d", 's', 's', 0, '?', 0 },
    { "%", 's', 's', 0, '?', 0 },        { "", 's', 's', 0, '?', 0 },         { "dl%", 's', 's', 0, '?', 0 },
    { "text", 's', 's', 0, '?', 0 },     { " %dl", 's', 's', 0, '?', 0 },     { "%DL", 's', 's', 0, '?', 0 },
    { "%dL", 's', 's', 0, '?', 0 },      { "%bd", 's', 's', 0, '?', 0 },      { "%ssfoo", 's', 's', 0, '?', 3 },
    { "%nd*0.00", 'n', 'd', 0, '?', 3 }, { "%dl%nb", 'd', 'l', 'n', 'b', 6 }, { "%dl%nbrest", 'd', 'l', 'n', 'b', 6 },
    { "%dl%n", 'd', 'l', 0, '?', 3 },    { "%dl%", 'd', 'l', 0, '?', 3 },     { "%dl%xy", 'd', 'l', 0, '?', 3 },
    { "%dl%nx", 'd', 'l', 0, '?', 3 },   { "%dl %nb", 'd', 'l', 0, '?', 3 },  { "%dl%nb%ss", 'd', 'l', 'n', 'b', 6 },
};

} // namespace

TEST(ValidClass, IsTrueForTheElevenLettersOnly)
{
    const std::string letters = "abcdhkmnstz";
    for (int ch = 0; ch < 256; ++ch) {
        const bool listed = ch != 0 && letters.find(static_cast<char>(ch)) != std::string::npos;
        EXPECT_EQ(listed ? 1 : 0, ValidClass(static_cast<char>(ch))) << ch;
    }
}

TEST(ValidType, IsTrueForThePairsOfTheTableOnly)
{
    for (int pair = 0; pair < 0x10000; ++pair) {
        const char dataClass = static_cast<char>(pair >> 8);
        const char dataType = static_cast<char>(pair & 0xFF);
        EXPECT_EQ(IsListed(dataClass, dataType) ? 1 : 0, ValidType(dataClass, dataType)) << dataClass << dataType;
    }
}

TEST(GetDataSize, IsThatOfTheStorageForEachPair)
{
    for (const PairSize& pair : pairs) {
        EXPECT_EQ(pair.size, GetDataSize(pair.dataClass, pair.dataType)) << pair.dataClass << pair.dataType;
    }
}

TEST(GetDataSize, OfTextClassesIsMinusOneWhateverTheType)
{
    for (int type = 0; type < 256; ++type) {
        EXPECT_EQ(-1, GetDataSize('s', static_cast<char>(type))) << type;
        EXPECT_EQ(-1, GetDataSize('m', static_cast<char>(type))) << type;
    }
}

TEST(GetDataSize, IsNeverLongerThanTheLongestFixedType)
{
    int longest = 0;
    for (int dataClass = 0; dataClass < 128; ++dataClass) {
        for (int type = 0; type < 128; ++type) {
            longest = std::max(longest, GetDataSize(static_cast<char>(dataClass), static_cast<char>(type)));
        }
    }
    EXPECT_EQ(longestFixedType, longest);
}

TEST(GetDataSize, GoesByTheColumnOfTheClassForPairsThatAreNotValid)
{
    for (const char type : std::string("DQTmqsu")) {
        EXPECT_EQ(GetDataSize('a', type), GetDataSize('k', type)) << type;
    }
    for (const char type : std::string("MWbdfhilsuw")) {
        EXPECT_EQ(GetDataSize('n', type), GetDataSize('b', type)) << type;
        EXPECT_EQ(GetDataSize('n', type), GetDataSize('z', type)) << type;
    }
    EXPECT_EQ(8, GetDataSize('b', 'M'));
    EXPECT_EQ(10, GetDataSize('k', 'D'));
}

TEST(GetDataSize, OfAnyOtherPairIsZero)
{
    for (int pair = 0; pair < 0x10000; ++pair) {
        const char dataClass = static_cast<char>(pair >> 8);
        const char dataType = static_cast<char>(pair & 0xFF);
        const char column = dataClass == 'k' ? 'a' : dataClass == 'b' || dataClass == 'z' ? 'n' : dataClass;
        if (!IsListed(column, dataType) && dataClass != 's' && dataClass != 'm') {
            EXPECT_EQ(0, GetDataSize(dataClass, dataType)) << pair;
        }
    }
}

TEST(GetDataTypes, ReadsOneOrTwoPairsAtTheHeadOfTheText)
{
    for (const Descriptor& row : descriptors) {
        char              dataClass = '?', dataType = '?', dataClass2 = '?', dataType2 = '?';
        const char* const rest = GetDataTypes(row.text, &dataClass, &dataType, &dataClass2, &dataType2);
        EXPECT_EQ(row.length, rest - row.text) << row.text;
        EXPECT_EQ(row.dataClass, dataClass) << row.text;
        EXPECT_EQ(row.dataType, dataType) << row.text;
        EXPECT_EQ(row.dataClass2, dataClass2) << row.text;
        EXPECT_EQ(row.dataType2, dataType2) << row.text;
    }
}

TEST(GetDataTypes, ReadsEveryValidPairAndNoOther)
{
    for (int pair = 0; pair < 0x10000; ++pair) {
        const char text[] = { '%', static_cast<char>(pair >> 8), static_cast<char>(pair & 0xFF), 'x', 0 };
        char       dataClass = 0, dataType = 0;
        const bool listed = text[1] && IsListed(text[1], text[2]);
        EXPECT_EQ(text + (listed ? 3 : 0), GetDataTypes(text, &dataClass, &dataType, nullptr, nullptr)) << text;
        EXPECT_EQ(listed ? text[1] : 's', dataClass) << text;
        EXPECT_EQ(listed ? text[2] : 's', dataType) << text;
    }
}

TEST(GetDataTypes, WritesNothingForNullOutArguments)
{
    const char text[] = "%dl%nb";
    EXPECT_EQ(text + 6, GetDataTypes(text, nullptr, nullptr, nullptr, nullptr));
    char dataClass2 = '?';
    EXPECT_EQ(text + 6, GetDataTypes(text, nullptr, nullptr, &dataClass2, nullptr));
    EXPECT_EQ('n', dataClass2);
    char dataType2 = '?';
    EXPECT_EQ(text + 6, GetDataTypes(text, nullptr, nullptr, nullptr, &dataType2));
    EXPECT_EQ('b', dataType2);
}

TEST(GetDataTypes, KeepsTheOldSecondTypeWithoutASecondPair)
{
    char dataClass2 = '?', dataType2 = '?';
    GetDataTypes("%nl", nullptr, nullptr, &dataClass2, &dataType2);
    EXPECT_EQ(0, dataClass2);
    EXPECT_EQ('?', dataType2);
}

TEST(GetDataTypes, TakesAMissingTextForAnEmptyOne)
{
    char dataClass = '?', dataType = '?';
    EXPECT_EQ(nullptr, GetDataTypes(nullptr, &dataClass, &dataType, nullptr, nullptr));
    EXPECT_EQ('s', dataClass);
    EXPECT_EQ('s', dataType);
}

TEST(GetDataTypes, ReadsNothingBehindTheEndOfTheText)
{
    for (const Descriptor& row : descriptors) {
        ExactBuffer text{ std::string(row.text) };
        char        dataClass = 0;
        EXPECT_EQ(text.Get() + row.length, GetDataTypes(text.Get(), &dataClass, nullptr, nullptr, nullptr));
        EXPECT_EQ(row.dataClass, dataClass) << row.text;
    }
}
