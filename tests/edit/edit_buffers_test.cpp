// Buffers of the record: growing, copying, failing.
#include "edit_record.h"
#include "foundation/memory.h"
#include "support/guarded_memory.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

TEST(ResizeBuffers, KeepsTheTextAndTakesTheValue)
{
    EditRecord edit("abc");
    std::strcpy(edit.ctl.pszText, "typed");
    ASSERT_TRUE(ResizeBuffers(&edit.ctl, 100, "value"));
    EXPECT_STREQ("typed", +edit.ctl.pszText);
    EXPECT_EQ("value", edit.Text());
    EXPECT_EQ(100, +edit.ctl.cbText);
    EXPECT_EQ(100, +edit.ctl.cbData);
}

TEST(ResizeBuffers, CutsBothTextsThatBecomeTooLong)
{
    EditRecord edit("abcdef");
    std::strcpy(edit.ctl.pszText, "typed text");
    ASSERT_TRUE(ResizeBuffers(&edit.ctl, 4, edit.ctl.pData));
    EXPECT_STREQ("typ", +edit.ctl.pszText);
    EXPECT_EQ("abc", edit.Text());
}

TEST(ResizeBuffers, ValueMayLieInTheOldBuffer)
{
    EditRecord edit("abc");
    ASSERT_TRUE(ResizeBuffers(&edit.ctl, 200, static_cast<const char*>(edit.ctl.pData) + 1));
    EXPECT_EQ("bc", edit.Text());
}

TEST(ResizeBuffers, FailureLeavesAllAsItWas)
{
    EditRecord edit("abc");
    const int size = edit.ctl.cbText;
    for (int n = 1; n <= 2; ++n) {
        FailAllocation(n);
        EXPECT_FALSE(ResizeBuffers(&edit.ctl, 200, "x")) << "allocation " << n;
        EXPECT_EQ("abc", edit.Text());
        EXPECT_EQ(size, +edit.ctl.cbText);
        EXPECT_EQ(size, +edit.ctl.cbData);
    }
    FailAllocation(0);
}

TEST(GrowText, NeverShrinks)
{
    EditRecord edit("%nl");
    EXPECT_TRUE(GrowText(&edit.ctl, 3));
    EXPECT_EQ(32, +edit.ctl.cbText);
    EXPECT_TRUE(GrowText(&edit.ctl, 64));
    EXPECT_EQ(64, +edit.ctl.cbText);
}

TEST(GrowData, KeepsTheValueOnFailure)
{
    EditRecord edit("%ms##");
    FailAllocation(1);
    EXPECT_FALSE(GrowData(&edit.ctl, 50));
    FailAllocation(0);
    EXPECT_EQ(3, +edit.ctl.cbData);
}

TEST(GrowData, MakesABlockThatAFailureLeftMissing)
{
    EditRecord edit("%nl");
    // The copy of the window text, the text, the value.
    FailAllocation(3);
    ASSERT_FALSE(ReadWinText(&edit.ctl, "%ms####"));
    FailAllocation(0);
    ASSERT_EQ(nullptr, +edit.ctl.pData);
    EXPECT_TRUE(GrowData(&edit.ctl, 2));
    EXPECT_EQ(5, +edit.ctl.cbData);
    EXPECT_EQ("", edit.Text());
}

TEST(MakeFormat, HoldsTheFormatAndThePartOfItThatIsUsed)
{
    char* const format = MakeFormat("0;-0;none", 4);
    EXPECT_STREQ("0;-0;none", format);
    HEditCtl ctl = {};
    ctl.pszFormat = format;
    EXPECT_STREQ("0;-0", FormatOf(&ctl));
    HBlockFree(format);
}

TEST(MakeFormat, OfAWindowTextIsUsedWhole)
{
    EXPECT_STREQ("0;-0;none", EditRecord("%nl0;-0;none").UsedFormat());
    EXPECT_STREQ("mm/dd/yyyy", EditRecord("%dl").UsedFormat());
    EXPECT_STREQ("", EditRecord("%zd").UsedFormat());
    EXPECT_EQ(nullptr, EditRecord("%ss20abc").UsedFormat());
}

TEST(CopyValue, CopiesTheBytesOfAFixedType)
{
    EditRecord edit("%nl");
    const int value = 12345;
    CopyValue(&edit.ctl, edit.ctl.pData, &value);
    EXPECT_EQ(12345, edit.Number());
}

TEST(CopyValue, CutsATextToTheBlock)
{
    EditRecord edit("%ms##");
    CopyValue(&edit.ctl, edit.ctl.pData, "123456");
    EXPECT_EQ("12", edit.Text());
}

} // namespace
