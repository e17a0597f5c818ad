// The one audible report: a delete that has nothing to delete.
#include "typed/typed_test_support.h"

#include "native_platform.h"

namespace {

class DeleteBeep : public NumberTest {
protected:
    static int Beeps(char dataClass, const char* shown, const char* format)
    {
        const int before = Native().beeps;
        DeleteFrom(dataClass, shown, format);
        return Native().beeps - before;
    }
};

} // namespace

TEST_F(DeleteBeep, SoundsWhenTheDateStepRefuses)
{
    EXPECT_EQ(1, Beeps('d', "1.2.2024|", nullptr));
    EXPECT_EQ(1, Beeps('a', "1.2.2024 1:14:15|", nullptr));
    EXPECT_EQ(1, Beeps('k', "1.2.2024 1:14:15|", nullptr));
    EXPECT_EQ(1, Beeps('t', "1:14:15|", nullptr));
    EXPECT_EQ(0, Beeps('d', "|1.2.2024", nullptr));
}

TEST_F(DeleteBeep, SoundsAtTheEndOfMasksAndNumbers)
{
    EXPECT_EQ(1, Beeps('m', "12|", "##"));
    EXPECT_EQ(1, Beeps('c', "12|", "*0"));
    EXPECT_EQ(1, Beeps('n', "12|", "*0"));
    EXPECT_EQ(1, Beeps('z', "1.2|", "0.0"));
    EXPECT_EQ(0, Beeps('m', "1|2", "##"));
    EXPECT_EQ(0, Beeps('n', "1|2", "*0"));
    EXPECT_EQ(0, Beeps('z', "1.|2", "0.0"));
}

TEST_F(DeleteBeep, IsSilentForTheOtherClasses)
{
    EXPECT_EQ(0, Beeps('s', "ab|", nullptr));
    EXPECT_EQ(0, Beeps('h', "a|", nullptr));
    EXPECT_EQ(0, Beeps('b', "Yes|", "Yes;No"));
    EXPECT_EQ(0, Beeps('x', "ab|", nullptr));
}
