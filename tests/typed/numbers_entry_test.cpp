// Typed characters and the delete key in the texts of numbers.
#include "typed/typed_test_support.h"

#include "typed/numbers.h"

namespace {

struct Key {
    const char* picture;
    const char* shown; // with the caret
    char        ch;
    Keystroke   after;
};

constexpr Keystroke Refused(const char* text)
{
    return { 1, text, 0, 0 };
}

class NumCharFilterTest : public NumberTest {
protected:
    static void ExpectKeys(char dataClass, const Key* begin, const Key* end)
    {
        for (const Key* row = begin; row != end; ++row) {
            EXPECT_EQ(row->after, TypeInto(dataClass, row->shown, row->picture, row->ch))
                << "'" << row->ch << "' in " << row->shown << " under " << (row->picture ? row->picture : "null");
        }
    }
    template <size_t count>
    static void ExpectKeys(char dataClass, const Key (&keys)[count])
    {
        ExpectKeys(dataClass, keys, keys + count);
    }
};
class FloatCharFilterTest : public NumCharFilterTest {};
class NumCharDeleteTest : public NumberTest {};
class FloatCharDeleteTest : public NumberTest {};

struct Deleted {
    const char* picture;
    const char* shown;
    int         result;
    const char* after;
};

using DeleteStep = int (*)(char* text, const char* picture, int pos);

void ExpectDeletion(DeleteStep step, const Deleted& row)
{
    const Field field = AtCaret(row.shown);
    ExactBuffer text(field.text, roomForDelete);
    EXPECT_EQ(row.result, step(text.Get(), row.picture, field.pos)) << row.shown << " under " << row.picture;
    EXPECT_EQ(row.after, text.Text()) << row.shown << " under " << row.picture;
}

} // namespace

TEST_F(NumCharFilterTest, ADigitOverADigitOverwrites)
{
    const Key keys[] = {
        { "*0", "|123", '9', { 0, "923", 1, 1 } },
        { "*0", "12|3", '9', { 0, "129", 1, 1 } },
        { "0.00", "1.|23", '9', { 0, "1.93", 1, 1 } },
        { "0", "|123", '9', { 0, "923", 1, 1 } },
    };
    ExpectKeys('n', keys);
}

TEST_F(NumCharFilterTest, ADigitAtTheEndIsTakenUpToTheMostOfItsSide)
{
    const Key keys[] = {
        { "##0", "|", '9', { 0, "9", 1, 1 } },
        { "##0", "12|", '9', { 0, "129", 1, 1 } },
        { "##0", "123|", '9', Refused("123") },
        { "##0", "-12|", '9', { 0, "-129", 1, 1 } },
        { "##0", "-123|", '9', Refused("-123") },
        { "000", "12|", '9', { 0, "129", 1, 1 } },
        { "0.00", "1.|", '9', { 0, "1.9", 1, 1 } },
        { "0.00", "1.2|", '9', { 0, "1.29", 1, 1 } },
        { "0.00", "1.23|", '9', Refused("1.23") },
        { "0", "1.|", '9', Refused("1.") },
        { "0.0;(0.00)", "-1.2|", '9', { 0, "-1.29", 1, 1 } },
        { "0.0;(0.00)", "1.2|", '9', Refused("1.2") },
        { "0;00", "-1|", '9', { 0, "-19", 1, 1 } },
    };
    ExpectKeys('n', keys);
}

TEST_F(NumCharFilterTest, UnlimitedSidesHold64AndTheRestOf127)
{
    const std::string fraction = "1." + std::string(64, '5');
    EXPECT_EQ(0, TypeInto('n', fraction.substr(0, 65) + "|", "*0.*", '9').result);
    EXPECT_EQ(1, TypeInto('n', fraction + "|", "*0.*", '9').result);
    EXPECT_EQ(0, TypeInto('n', std::string(62, '5') + "|", "*0.*", '9').result);
    EXPECT_EQ(1, TypeInto('n', std::string(63, '5') + "|", "*0.*", '9').result);
    EXPECT_EQ(0, TypeInto('n', std::string(124, '5') + "|", "*0.00", '9').result);
    EXPECT_EQ(1, TypeInto('n', std::string(125, '5') + "|", "*0.00", '9').result);
    EXPECT_EQ(0, TypeInto('n', std::string(126, '5') + "|", "*0", '9').result);
    EXPECT_EQ(1, TypeInto('n', std::string(127, '5') + "|", "*0", '9').result);
}

TEST_F(NumCharFilterTest, ADigitOnTheSeparatorIsInsertedWhileTheIntegerSideHasRoom)
{
    const Key keys[] = {
        { "##0.00", "12|.34", '9', { 0, "129.34", 1, 1 } },
        { "##0.00", "|.34", '9', { 0, "9.34", 1, 1 } },
        { "##0.00", "-12|.34", '9', { 0, "-129.34", 1, 1 } },
        { "*0.00", "12345|.34", '9', { 0, "123459.34", 1, 1 } },
    };
    ExpectKeys('n', keys);
}

TEST_F(NumCharFilterTest, ADigitOnTheSeparatorOfAFullIntegerSideJumpsIt)
{
    const Key keys[] = {
        { "##0.00", "123|.45", '9', { 0, "123.95", 2, 2 } }, { "##0.00", "-123|.45", '9', { 0, "-123.95", 2, 2 } },
        { "##0.00", "123|.", '9', { 0, "123.9", 2, 2 } },    { "##0", "123|.", '9', Refused("123.") },
        { "##0", "123|.4", '9', Refused("123.4") },
    };
    ExpectKeys('n', keys);
}

TEST_F(NumCharFilterTest, ADigitOnAnythingElseIsRefused)
{
    const Key keys[] = {
        { "*0.00", "1|,234", '9', Refused("1,234") },
        { "*0.00", "| 1", '9', Refused(" 1") },
        { "*0.00", "1|-2", '9', { 0, "19", 1, 1 } }, // the sign at the caret goes first
    };
    ExpectKeys('n', keys);
}

TEST_F(NumCharFilterTest, ASignIsTakenAtTheStartOnly)
{
    const Key keys[] = {
        { "*0", "|12", '-', { 0, "-12", 1, 1 } },  { "*0", "|", '-', { 0, "-", 1, 1 } },
        { "*0", "|-12", '-', { 0, "-12", 1, 1 } }, { "*0", "1|2", '-', Refused("12") },
        { "*0", "12|", '-', Refused("12") },       { "*0", "-|12", '-', Refused("-12") },
    };
    ExpectKeys('n', keys);
}

TEST_F(NumCharFilterTest, AnythingElseOnTheSignDeletesItFirst)
{
    const Key keys[] = {
        { "*0.0", "|-12", '9', { 0, "92", 1, 1 } },   { "*0.0", "|-", '9', { 0, "9", 1, 1 } },
        { "*0.0", "|-12", 'x', Refused("12") },       { "*0.0", "|-12", ' ', { 0, "2", 0, 1 } },
        { "*0.0", "|-1.5", '.', { 0, "0.5", 2, 4 } },
    };
    ExpectKeys('n', keys);
}

TEST_F(NumCharFilterTest, ASeparatorIsAppendedWhereThePictureHoldsIt)
{
    const Key keys[] = {
        { "*0.00", "12|", '.', { 0, "12.", 1, 1 } },
        { "*0.00", "|", '.', { 0, ".", 1, 1 } },
        { "*0", "12|", '.', Refused("12") },
        { "*0", "1|2", '.', Refused("12") },
    };
    ExpectKeys('n', keys);
}

TEST_F(NumCharFilterTest, TheSeparatorOfTheSettingsIsLookedForInThePicture)
{
    gIntl.chDecimalSep = ',';
    const Key keys[] = {
        { "*0.00", "12|", ',', Refused("12") },
        { "#,##0", "12|", ',', { 0, "12,", 1, 1 } },
        { "*0.00", "1|2,50", ',', { 0, "1,50", 1, 7 - 2 } },
        { "*0.00", "12|", '.', Refused("12") },
        { "", "12|", ',', Refused("12") }, // the picture of none has a point
        { nullptr, "12|", ',', Refused("12") },
    };
    ExpectKeys('n', keys);
}

TEST_F(NumCharFilterTest, ASeparatorInFrontOfDigitsDeletesOneAndIsNotAdded)
{
    const Key keys[] = {
        { "*0.00", "1|23", '.', { 0, "13", 1, 1 } },
        { "*0.00", "|123", '.', { 0, "23", 1, 1 } },
        { "*0.00", "|1", '.', { 0, "0", 1, 1 } },
    };
    ExpectKeys('n', keys);
}

TEST_F(NumCharFilterTest, ASeparatorDeletesUpToTheOneBehindTheCaret)
{
    const Key keys[] = {
        { "*0.00", "12|.50", '.', { 0, "12.50", 1, 1 } },
        // One deletion, and the rest of the text from the separator on.
        { "*0.00", "1|2.50", '.', { 0, "1.50", 1, 5 } },
        { "*0.00", "1|234.50", '.', { 0, "1.50", 1, 7 } },
        // A required digit becomes a zero that the caret passes.
        { "*0.00", "|2.50", '.', { 0, "0.50", 2, 5 } },
        { "*0.00", "|12.50", '.', { 0, "0.50", 2, 6 } },
        { "*#.00", "|12.50", '.', { 0, ".50", 1, 6 } },
    };
    ExpectKeys('n', keys);
}

TEST_F(NumCharFilterTest, ASeparatorBehindTheSeparatorIsRefused)
{
    const Key keys[] = {
        { "*0.00", "12.|50", '.', Refused("12.50") },
        { "*0.00", "12.50|", '.', Refused("12.50") },
    };
    ExpectKeys('n', keys);
}

TEST_F(NumCharFilterTest, ABlankDeletes)
{
    const Key keys[] = {
        { "*0.00", "1|2.50", ' ', { 0, "1.50", 0, 1 } }, { "*0.00", "|2.50", ' ', { 0, "0.50", 1, 1 } },
        { "*0.00", "2|.50", ' ', { 0, "2.50", 1, 1 } },  { "*0.00", "2.|50", ' ', { 0, "2.00", 1, 1 } },
        { "*0.00", "2.50|", ' ', { 0, "2.50", 0, 1 } },
    };
    ExpectKeys('n', keys);
}

TEST_F(NumCharFilterTest, AnyOtherCharacterIsRefused)
{
    for (const char ch : std::string("+,xE\x7F\xE9") + '\0') {
        EXPECT_EQ(Refused("12.50"), TypeInto('n', "1|2.50", "*0.00", ch)) << ch;
    }
}

TEST_F(NumCharFilterTest, WithoutAPictureTheDefaultCounts)
{
    const Key keys[] = {
        { nullptr, "12|", '3', { 0, "123", 1, 1 } },
        { "", "12|", '.', { 0, "12.", 1, 1 } },
        { nullptr, "1.2|", '3', { 0, "1.23", 1, 1 } },
    };
    ExpectKeys('n', keys);
}

TEST_F(NumCharFilterTest, ACaretOutsideOfTheTextTakesNothing)
{
    ExactBuffer text(std::string("12"), 1);
    for (const int pos : { -1, 3, 100 }) {
        int advance = -1, repaint = -1;
        EXPECT_EQ(1, NumCharFilter(text.Get(), "*0", pos, '9', &advance, &repaint)) << pos;
        EXPECT_EQ(0, advance);
        EXPECT_EQ(0, repaint);
        EXPECT_EQ(1, FloatCharFilter(text.Get(), "*0", pos, '9', &advance, &repaint)) << pos;
        EXPECT_EQ(0, NumCharDelete(text.Get(), "*0", pos)) << pos;
        EXPECT_EQ(0, FloatCharDelete(text.Get(), "*0.00", pos)) << pos;
    }
    EXPECT_EQ("12", text.Text());
}

TEST_F(FloatCharFilterTest, DigitsPushThroughThePoint)
{
    const Key keys[] = {
        { "0.00", "1.25|", '3', { 0, "12.53", 1, 1 } },
        { "0.00", "1.2|5", '3', { 0, "12.35", 1, 1 } },
        { "0.00", "1.|25", '3', { 0, "13.25", 1, 1 } },
        { "0.00", "-1.25|", '3', { 0, "-12.53", 1, 1 } },
        { "0.00", "1.|", '3', { 0, "13.", 1, 1 } },
        // In front of the point nothing changes places.
        { "0.00", "1|.25", '3', { 0, "13.25", 1, 1 } },
        { "0.00", "|1.25", '3', { 0, "31.25", 1, 1 } },
        { "0.00", "|", '3', { 0, "3", 1, 1 } },
    };
    ExpectKeys('z', keys);
}

TEST_F(FloatCharFilterTest, ALeadingZeroGoesWhenItIsNotRequired)
{
    const Key keys[] = {
        { "0.00", "0.00|", '5', { 0, "0.05", 0, 1 } },
        { "0.00", "0.05|", '7', { 0, "0.57", 0, 1 } },
        { "0.00", "0.57|", '9', { 0, "5.79", 0, 1 } },
        { "0.00", "-0.05|", '7', { 0, "-0.57", 0, 1 } },
        { "#.00", "0.05|", '7', { 0, "0.57", 0, 1 } },
        // With the caret in front of the point it still moves on.
        { "0.00", "0|.00", '5', { 0, "5.00", 1, 1 } },
        // Where the zero is needed it stays.
        { "0.00", "|0.00", '5', { 0, "50.00", 1, 1 } },
        // Without a separator any required digit is enough.
        { "0", "0|", '5', { 0, "5", 1, 1 } },
        { "#", "0|", '5', { 0, "05", 1, 1 } },
    };
    ExpectKeys('z', keys);
}

TEST_F(FloatCharFilterTest, TypedDigitsBuildANumberFromTheRight)
{
    ExactBuffer text(std::string("0.00"), 8);
    int         caret = 4;
    for (const char ch : std::string("123456")) {
        int advance = 0;
        EXPECT_EQ(0, FloatCharFilter(text.Get(), "0.00", caret, ch, &advance, nullptr));
        caret += advance;
    }
    EXPECT_EQ("1234.56", text.Text());
    EXPECT_EQ(7, caret);
}

TEST_F(FloatCharFilterTest, SignsComeAndGoAtTheFront)
{
    const Key keys[] = {
        { "0.00", "1.2|5", '-', { 0, "-1.25", 1, 1 } }, { "0.00", "-1.2|5", '-', { 0, "-1.25", 1, 1 } },
        { "0.00", "-1.2|5", '+', { 0, "1.25", 1, 1 } }, { "0.00", "1.2|5", '+', { 0, "1.25", 1, 1 } },
        { "0.00", "-0.00|", '+', { 0, "0.00", 1, 1 } }, { "0", "0|", '-', { 0, "-0", 1, 1 } },
        { "0.00", "-5|", '+', { 0, "5", 1, 1 } },
    };
    ExpectKeys('z', keys);
}

TEST_F(FloatCharFilterTest, APointIsTakenAndChangesNothing)
{
    EXPECT_EQ((Keystroke{ 0, "1.25", 1, 1 }), TypeInto('z', "1.25|", "0.00", '.'));
    EXPECT_EQ((Keystroke{ 0, "0.05", 1, 1 }), TypeInto('z', "0.05|", "0.00", '.'));
}

TEST_F(FloatCharFilterTest, AnythingElseIsRefused)
{
    for (const char ch : std::string(", xE\x7F\xE9") + '\0') {
        EXPECT_EQ(Refused("1.25"), TypeInto('z', "1.|25", "0.00", ch)) << ch;
    }
}

TEST_F(FloatCharFilterTest, TheSeparatorOfTheSettingsIsThePointThatKeepsItsPlace)
{
    gIntl.chDecimalSep = ',';
    EXPECT_EQ((Keystroke{ 0, "12,53", 1, 1 }), TypeInto('z', "1,25|", "0.00", '3'));
    EXPECT_EQ(Refused("1,25"), TypeInto('z', "1|,25", "0.00", ','));
}

TEST_F(NumCharDeleteTest, RemovesOptionalDigitsAndZeroesRequiredOnes)
{
    const Deleted deletions[] = {
        { "*0.00", "|12.50", 1, "12.50" },
        { "*0.00", "1|2.50", 1, "12.50" },
        { "*0.00", "|2.50", 2, "0.50" },
        { "*#.00", "|2.50", 1, "2.50" },
        { "*0.00", "2|.50", 2, "2.50" },
        { "*0.00", "2.|50", 2, "2.00" },
        { "*0.00", "2.5|0", 2, "2.50" },
        { "*0.0#", "2.|55", 2, "2.05" },
        { "*0.0#", "2.5|5", 1, "2.55" },
        { "*0.##", "2.|55", 1, "2.55" },
        { "*0.00", "2.50|", 0, "2.50" },
        { "*0.00", "|", 0, "" },
        { "*0.00", "|-2.50", 1, "-2.50" },
        // The sign counts as a place in front of the separator.
        { "*0.00", "-|2.50", 1, "-2.50" },
        { "*0", "|5", 2, "0" },
        { "*0", "|55", 1, "55" },
        // In edit form one zero is enough.
        { "000", "|55", 1, "55" },
        { "0.0;#.##", "-.|5", 1, "-.5" },
        { "0.0;#.##", ".|5", 2, ".0" },
    };
    for (const Deleted& row : deletions) {
        ExpectDeletion(NumCharDelete, row);
    }
}

TEST_F(NumCharDeleteTest, GoesByTheSeparatorOfTheSettings)
{
    gIntl.chDecimalSep = ',';
    ExpectDeletion(NumCharDelete, { "*0.00", "2|,50", 2, "2,50" });
    ExpectDeletion(NumCharDelete, { "*0.00", "2,|50", 2, "2,00" });
    ExpectDeletion(NumCharDelete, { "*0.00", "2|.50", 1, "2.50" });
}

TEST_F(FloatCharDeleteTest, KeepsTheFixedPoint)
{
    const Deleted deletions[] = {
        { "0.00", "12.3|4", 3, "1.23" },
        { "0.00", "12.|34", 3, "1.24" },
        { "0.00", "|12.34", 3, "2.34" },
        { "0.00", "1|2.34", 3, "1.34" },
        // A zero comes in front where the digits aren't enough.
        { "0.00", "1.2|3", 2, "0.12" },
        { "0.00", "0.0|5", 2, "0.00" },
        { "0.00", "|1.23", 2, "0.23" },
        { "#.00", "1.2|3", 3, ".12" },
        { "0.00", "-1.2|3", 2, "-0.12" },
        { "0.00", "-12.3|4", 3, "-1.23" },
        // The caret's step by what stands there.
        { "0.00", "12|.34", 2, "12.34" },
        { "0.00", "|-12.34", 1, "-12.34" },
        { "0.00", "12.34|", 0, "12.34" },
        { "0.00", "1|x2.34", 2, "1x2.34" },
        // Without required places behind the point there is none.
        { "0", "1|2", 3, "1" },
        { "0", "|1", 2, "0" },
        { "0.##", "1.2|5", 3, "12" },
        { "0.00;#.0", "-1.2|5", 3, "-1.2" },
    };
    for (const Deleted& row : deletions) {
        ExpectDeletion(FloatCharDelete, row);
    }
}

TEST_F(FloatCharDeleteTest, PutsAPlainPointWhateverTheSeparatorIs)
{
    gIntl.chDecimalSep = ',';
    ExpectDeletion(FloatCharDelete, { "0.00", "12,3|4", 3, "1.23" });
    ExpectDeletion(FloatCharDelete, { "0.00", "12|,34", 2, "12.34" });
}

TEST_F(FloatCharDeleteTest, MakesATextLongerByAZeroAndAPointAtTheMost)
{
    ExpectDeletion(FloatCharDelete, { "0.00", "5|", 2, ".05" });
    ExpectDeletion(FloatCharDelete, { "0.00", "|5", 2, ".0" });
    ExpectDeletion(FloatCharDelete, { "0.00", "|-5", 2, "-.05" });
    ExpectDeletion(FloatCharDelete, { "0.00", "|", 2, ".0" });
    ExpectDeletion(FloatCharDelete, { "0.0", "12|", 0, "1.2" });
}
