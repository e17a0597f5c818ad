// Typed characters and the delete key by data class. The steps of masks, numbers and dates have tests of their own.
#include "typed/typed_test_support.h"

namespace {

class DataEntry : public NumberTest {};

Keystroke Taken(const char* text, int advance, int repaint)
{
    return { 0, text, advance, repaint };
}

} // namespace

TEST_F(DataEntry, MaskedTextTakesWhatFitsItsMask)
{
    EXPECT_EQ(Taken("7_-__", 1, 1), TypeInto('m', "|__-__", "##-##", '7'));
}

TEST_F(DataEntry, NumbersOfClassesCAndNTakeDigitsFromTheLeft)
{
    EXPECT_EQ(Taken("12", 1, 1), TypeInto('n', "1|", "*0", '2'));
    EXPECT_EQ(Taken("12", 1, 1), TypeInto('c', "1|", "*0", '2'));
}

TEST_F(DataEntry, NumbersOfClassZPushDigitsThroughThePoint)
{
    EXPECT_EQ(Taken("12.53", 1, 1), TypeInto('z', "1.25|", "0.00", '3'));
}

TEST_F(DataEntry, PlainTextIsLeftToTheEditControl)
{
    EXPECT_EQ((Keystroke{ 1, "ab", -1, -1 }), TypeInto('s', "a|b", nullptr, 'x'));
}

TEST_F(DataEntry, ABooleanIsRewrittenAndPaintedWhole)
{
    ExactBuffer text(std::strlen("Yes;No") + 1);
    std::strcpy(text.Get(), "Yes");
    int advance = -1, repaint = -1;
    EXPECT_EQ(0, DataCharFilter('b', 'i', text.Get(), "Yes;No", 1, 'n', &advance, &repaint));
    EXPECT_EQ("No", text.Text());
    EXPECT_EQ(0, advance);
    EXPECT_EQ(1000, repaint);
}

TEST_F(DataEntry, ABooleanTakesAnyCharacterWithoutChange)
{
    EXPECT_EQ(Taken("Yes", 0, 1000), TypeInto('b', "|Yes", "Yes;No", 'x'));
}

TEST_F(DataEntry, ACharacterIsReplacedAndTheCaretStays)
{
    EXPECT_EQ(Taken("x", 0, 1), TypeInto('h', "|a", nullptr, 'x'));
    EXPECT_EQ(Taken("x", 0, 1), TypeInto('h', "a|", nullptr, 'x'));
}

TEST_F(DataEntry, ACharacterComesIntoAnEmptyText)
{
    EXPECT_EQ(Taken("x", 0, 1), TypeInto('h', "|", nullptr, 'x'));
    EXPECT_EQ((Deletion{ 0, " " }), DeleteFrom('h', "|", nullptr));
}

TEST_F(DataEntry, DatesTakeTheHalvesOfTheirClass)
{
    EXPECT_EQ(Taken("3.2.2024", 1, 1), TypeInto('d', "|1.2.2024", nullptr, '3'));
    EXPECT_EQ(Taken("3:14:15", 1, 1), TypeInto('t', "|1:14:15", nullptr, '3'));
    EXPECT_EQ(Taken("1.2.2024 3:14:15", 1, 1), TypeInto('a', "1.2.2024 |1:14:15", nullptr, '3'));
    EXPECT_EQ(Taken("1.2.2024 3:14:15", 1, 1), TypeInto('k', "1.2.2024 |1:14:15", nullptr, '3'));
    // Behind a single hour a second digit may grow: where the class has no time, it may not.
    EXPECT_EQ(0, TypeInto('t', "1|:14:15", nullptr, '2').result);
    EXPECT_EQ("12:14:15", TypeInto('t', "1|:14:15", nullptr, '2').text);
}

TEST_F(DataEntry, DatesRefuseLetters)
{
    EXPECT_EQ((Keystroke{ 1, "1.2.2024", 0, 0 }), TypeInto('d', "|1.2.2024", nullptr, 'x'));
}

TEST_F(DataEntry, AnUnknownClassRefusesEverything)
{
    EXPECT_EQ((Keystroke{ 1, "ab", -1, -1 }), TypeInto('x', "a|b", nullptr, '1'));
    EXPECT_EQ((Keystroke{ 1, "ab", -1, -1 }), TypeInto('\0', "a|b", nullptr, '1'));
    EXPECT_EQ((Deletion{ 0, "ab" }), DeleteFrom('x', "a|b", nullptr));
}

TEST_F(DataEntry, OutArgumentsMayBeNull)
{
    for (const char dataClass : std::string("abcdhkmnstz")) {
        ExactBuffer text(std::string("1"), 10);
        DataCharFilter(dataClass, 's', text.Get(), nullptr, 0, '2', nullptr, nullptr);
    }
}

TEST_F(DataEntry, AMissingTextTakesNothing)
{
    for (const char dataClass : std::string("abcdhkmnstz")) {
        int advance, repaint;
        EXPECT_EQ(1, DataCharFilter(dataClass, 's', nullptr, nullptr, 0, '2', &advance, &repaint)) << dataClass;
        EXPECT_EQ(0, DataCharDelete(dataClass, 's', nullptr, nullptr, 0)) << dataClass;
    }
}

TEST_F(DataEntry, DeletingInPlainTextClosesTheGap)
{
    EXPECT_EQ((Deletion{ 0, "ac" }), DeleteFrom('s', "a|bc", nullptr));
    EXPECT_EQ((Deletion{ 0, "abc" }), DeleteFrom('s', "abc|", nullptr));
    EXPECT_EQ((Deletion{ 0, "" }), DeleteFrom('s', "|", nullptr));
}

TEST_F(DataEntry, DeletingACharacterLeavesABlank)
{
    EXPECT_EQ((Deletion{ 0, " " }), DeleteFrom('h', "|x", nullptr));
}

TEST_F(DataEntry, DeletingInABooleanChangesNothing)
{
    EXPECT_EQ((Deletion{ 0, "Yes" }), DeleteFrom('b', "|Yes", "Yes;No"));
}

TEST_F(DataEntry, DeletingInADateStepsOnUnlessADigitOfTwoWent)
{
    EXPECT_EQ((Deletion{ 0, "2.2.2024" }), DeleteFrom('d', "|12.2.2024", nullptr));
    EXPECT_EQ((Deletion{ 1, " .2.2024" }), DeleteFrom('d', "|1.2.2024", nullptr));
    EXPECT_EQ((Deletion{ 1, "1.2.2024" }), DeleteFrom('d', "1|.2.2024", nullptr));
    EXPECT_EQ((Deletion{ 1, "1.2. 024" }), DeleteFrom('d', "1.2.|2024", nullptr));
    EXPECT_EQ((Deletion{ 0, "1.2.2024" }), DeleteFrom('d', "1.2.2024|", nullptr));
    EXPECT_EQ((Deletion{ 0, "3:14:15" }), DeleteFrom('t', "|23:14:15", nullptr));
    EXPECT_EQ((Deletion{ 0, "1.2.2024 3:14:15" }), DeleteFrom('a', "1.2.2024 |23:14:15", nullptr));
    EXPECT_EQ((Deletion{ 0, "1.2.2024 3:14:15" }), DeleteFrom('k', "1.2.2024 |23:14:15", nullptr));
}

TEST_F(DataEntry, DeletingAWholeDateLeavesBlanksAndSeparators)
{
    ExactBuffer text(std::string("12.11.2024"), 1);
    const int   count = static_cast<int>(std::strlen("12.11.2024"));
    int         caret = 0;
    for (int i = 0; i < count && text.Get()[caret]; ++i) {
        caret += DataCharDelete('d', 'l', text.Get(), nullptr, caret);
    }
    EXPECT_EQ(" . .    ", text.Text());
}

TEST_F(DataEntry, DeletingInAMaskStepsOnAndLeavesTheFiller)
{
    EXPECT_EQ((Deletion{ 1, "_2-34" }), DeleteFrom('m', "|12-34", "##-##"));
    EXPECT_EQ((Deletion{ 1, "12-34" }), DeleteFrom('m', "12|-34", "##-##"));
    EXPECT_EQ((Deletion{ 0, "12-34" }), DeleteFrom('m', "12-34|", "##-##"));
}

TEST_F(DataEntry, DeletingInANumberRemovesOptionalDigitsAndZeroesRequiredOnes)
{
    for (const char dataClass : { 'c', 'n' }) {
        EXPECT_EQ((Deletion{ 0, "2.50" }), DeleteFrom(dataClass, "|12.50", "#0.00"));
        EXPECT_EQ((Deletion{ 1, "0.50" }), DeleteFrom(dataClass, "|2.50", "#0.00"));
        EXPECT_EQ((Deletion{ 1, "2.50" }), DeleteFrom(dataClass, "2|.50", "#0.00"));
        EXPECT_EQ((Deletion{ 1, "2.00" }), DeleteFrom(dataClass, "2.|50", "#0.00"));
        EXPECT_EQ((Deletion{ 0, "2.50" }), DeleteFrom(dataClass, "2.50|", "#0.00"));
        EXPECT_EQ((Deletion{ 0, "2.50" }), DeleteFrom(dataClass, "|-2.50", "#0.00"));
    }
}

TEST_F(DataEntry, DeletingADigitOfClassZAsksForNothingMore)
{
    EXPECT_EQ((Deletion{ 0, "1.23" }), DeleteFrom('z', "12.3|4", "0.00"));
    EXPECT_EQ((Deletion{ 0, "12.34" }), DeleteFrom('z', "|-12.34", "0.00"));
    EXPECT_EQ((Deletion{ 1, "12.34" }), DeleteFrom('z', "12|.34", "0.00"));
    EXPECT_EQ((Deletion{ 1, "0.12" }), DeleteFrom('z', "1.2|3", "0.00"));
}
