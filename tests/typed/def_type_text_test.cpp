// The default descriptions of buttons, from the library's own strings.
#include "typed/typed_test_support.h"

namespace {

struct Default {
    int         kind;
    const char* caption;
    const char* text;
};

const Default defaults[] = {
    { 0, nullptr, "441;HBPush" },
    { 1, nullptr, "441;HBPush" },
    { 2, nullptr, "333w;HBCheck;IM0:IM1:IM2:IM3" },
    { 4, nullptr, "333;HB3State;HC1:HC2:HC3:HC4:HC5:HC6" },
    { 0, "OK", "441;OK" },
    { 1, "", "441;" },
    { 2, "", "333w;;IM0:IM1:IM2:IM3" },
    { 2, "Paid", "333w;Paid;IM0:IM1:IM2:IM3" },
    { 4, "Paid", "333;Paid;HC1:HC2:HC3:HC4:HC5:HC6" },
};

} // namespace

TEST(LoadDefTypeText, PutsLayoutCaptionAndImagesTogether)
{
    for (const Default& row : defaults) {
        ExactBuffer buffer(256);
        EXPECT_EQ(static_cast<int>(std::strlen(row.text)), LoadDefTypeText(row.kind, buffer.Get(), 256, row.caption))
            << row.text;
        EXPECT_EQ(row.text, buffer.Text());
    }
}

TEST(LoadDefTypeText, GivesNothingForOtherKinds)
{
    for (const int kind : { -1, 3, 5, 100 }) {
        char buffer[16] = "keep";
        EXPECT_EQ(0, LoadDefTypeText(kind, buffer, sizeof buffer, nullptr)) << kind;
        EXPECT_STREQ("keep", buffer) << kind;
    }
}

TEST(LoadDefTypeText, StaysInsideABufferOfAnySize)
{
    const std::string whole = "333;HB3State;HC1:HC2:HC3:HC4:HC5:HC6";
    for (size_t size = 1; size <= whole.size() + 1; ++size) {
        ExactBuffer buffer(size);
        const int   length = LoadDefTypeText(4, buffer.Get(), static_cast<int>(size), nullptr);
        EXPECT_EQ(static_cast<size_t>(length), buffer.Text().size()) << size;
        EXPECT_EQ(whole.substr(0, static_cast<size_t>(length)), buffer.Text()) << size;
    }
}

TEST(LoadDefTypeText, AppendsACaptionWholeWhateverTheSize)
{
    ExactBuffer buffer(std::strlen("441;") + 40 + 1);
    EXPECT_EQ(44, LoadDefTypeText(0, buffer.Get(), 5, std::string(40, 'x').c_str()));
    EXPECT_EQ("441;" + std::string(40, 'x'), buffer.Text());
}

TEST(LoadDefTypeText, LeavesTheImagesAwayWhereTheCaptionTakesTheSize)
{
    const std::string caption(40, 'x');
    const std::string expected = "333w;" + caption;
    ExactBuffer       buffer(expected.size() + 1);
    EXPECT_EQ(static_cast<int>(expected.size()), LoadDefTypeText(2, buffer.Get(), 6, caption.c_str()));
    EXPECT_EQ(expected, buffer.Text());
}

TEST(LoadDefTypeText, GivesNothingWithoutABuffer)
{
    char buffer[] = "?";
    EXPECT_EQ(0, LoadDefTypeText(0, nullptr, 100, nullptr));
    EXPECT_EQ(0, LoadDefTypeText(0, buffer, 0, nullptr));
    EXPECT_STREQ("?", buffer);
}
