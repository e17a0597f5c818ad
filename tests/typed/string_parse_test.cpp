// The field splitter.
#include "typed/typed_test_support.h"

namespace {

struct Split {
    const char* text;
    char        delimiter;
    char        escape;
    char        skip;
    char        replace;
    const char* field;
    int         next;
};

const Split splits[] = {
    { "a^b;c", ';', '\\', '^', '\n', "a\nb", 4 },
    { "a^b;c", ';', '\\', '^', 0, "ab", 4 },
    { "a^b;c", ';', '\\', 0, '\n', "a^b", 4 },
    { "abc", ';', '\\', '^', '\n', "abc", 3 },
    { "", ';', '\\', '^', '\n', "", 0 },
    { ";", ';', '\\', '^', '\n', "", 1 },
    { ";;x", ';', '\\', '^', '\n', "", 1 },
    { "a;", ';', '\\', '^', '\n', "a", 2 },
    { "a\\;b;c", ';', '\\', '^', '\n', "a;b", 5 },
    { "a\\^b;c", ';', '\\', '^', '\n', "a^b", 5 },
    { "a\\\\;c", ';', '\\', '^', '\n', "a\\", 4 },
    { "a\\", ';', '\\', '^', '\n', "a", 2 },
    { "\\", ';', '\\', '^', '\n', "", 1 },
    // Without a delimiter the field is the whole text.
    { "a;b", 0, '\\', '^', '\n', "a;b", 3 },
    // One character in two parts: skip counts before escape, escape before the delimiter.
    { "a\\b;c", ';', '\\', '\\', '+', "a+b", 4 },
    { "a;b;", ';', ';', 0, 0, "ab", 4 },
    { "a;b;c", ';', '\\', ';', '-', "a-b-c", 5 },
};

} // namespace

TEST(StringParse, CopiesOneFieldAndTellsWhereTheNextBegins)
{
    for (const Split& row : splits) {
        ExactBuffer text{ std::string(row.text) };
        char*       next = nullptr;
        EXPECT_STREQ(row.field, StringParse(text.Get(), row.delimiter, row.escape, row.skip, row.replace, &next))
            << row.text;
        EXPECT_EQ(row.next, next - text.Get()) << row.text;
    }
}

TEST(StringParse, AnswersInTheSameBufferEachTime)
{
    const char* const first = StringParse("one;two", ';', '\\', 0, 0, nullptr);
    EXPECT_STREQ("one", first);
    EXPECT_EQ(first, StringParse("three", ';', '\\', 0, 0, nullptr));
    EXPECT_STREQ("three", first);
}

TEST(StringParse, SplitsAWholeText)
{
    const char  text[] = "OK^all;PIC1:PIC2;beep";
    char*       next = nullptr;
    std::string fields;
    for (const char* at = text; *at; at = next) {
        fields += std::string("(") + StringParse(at, ';', '\\', '^', '\n', &next) + ")";
    }
    EXPECT_EQ("(OK\nall)(PIC1:PIC2)(beep)", fields);
}

TEST(StringParse, KeepsAtMost255CharactersAndStillFindsTheNextField)
{
    const std::string text = std::string(300, 'x') + ";y";
    ExactBuffer       exact(text);
    char*             next = nullptr;
    EXPECT_EQ(std::string(255, 'x'), StringParse(exact.Get(), ';', '\\', '^', '\n', &next));
    EXPECT_STREQ("y", next);
    EXPECT_EQ(std::string(255, 'x'), StringParse(std::string(255, 'x').c_str(), ';', '\\', '^', '\n', nullptr));
}

TEST(StringParse, TakesAMissingTextForAnEmptyOne)
{
    EXPECT_STREQ("", StringParse(nullptr, ';', '\\', '^', '\n', nullptr));
}
