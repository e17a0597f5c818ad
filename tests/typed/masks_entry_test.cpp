// Typed characters and the delete key in masked texts.
#include "typed/typed_test_support.h"

#include "typed/masks.h"

namespace {

struct Key {
    const char* mask;
    const char* shown; // with the caret
    char        ch;
    Keystroke   after;
};

const Key keys[] = {
    // At a placeholder what fits overwrites, and what doesn't is refused.
    { "##-##", "|__-__", '1', { 0, "1_-__", 1, 1 } },
    { "##-##", "1|_-__", '2', { 0, "12-__", 1, 1 } },
    { "##-##", "|12-34", '9', { 0, "92-34", 1, 1 } },
    { "##-##", "|12-34", 'x', { 1, "12-34", 0, 0 } },
    { "##-##", "|12-34", '-', { 1, "12-34", 0, 0 } },
    { "##-##", "|12-34", ' ', { 1, "12-34", 0, 0 } },
    { "@!&*", "|    ", 'a', { 0, "a   ", 1, 1 } },
    { "@!&*", "|    ", '1', { 1, "    ", 0, 0 } },
    { "@!&*", "a|-  ", '.', { 0, "a.  ", 1, 1 } },
    { "@!&*", "a|-  ", 'b', { 1, "a-  ", 0, 0 } },
    { "@!&*", "a.|  ", '7', { 0, "a.7 ", 1, 1 } },
    { "@!&*", "a.|  ", '.', { 1, "a.  ", 0, 0 } },
    { "@!&*", "a.7| ", ' ', { 0, "a.7 ", 1, 1 } },
    { "@!&*", "a.7| ", '\x01', { 1, "a.7 ", 0, 0 } },
    // Over literals the character looks for its place; a typed separator moves over itself.
    { "##-##", "12|-34", '-', { 0, "12-34", 1, 1 } },
    { "##-##", "12|-34", '9', { 0, "12-94", 2, 2 } },
    { "##-##", "12|-34", 'x', { 1, "12-34", 0, 0 } },
    { "#) (#", "1|) (2", '(', { 0, "1) (2", 3, 3 } },
    { "#) (#", "1|) (2", '9', { 0, "1) (9", 4, 4 } },
    { "#) (#", "1)| (2", ')', { 1, "1) (2", 0, 0 } },
    // Literals up to the end of the mask: nothing is typed, and that is a success.
    { "#--", "1|--", '9', { 0, "1--", 2, 2 } },
    { "#--", "1-|-", '9', { 0, "1--", 1, 1 } },
    // The end of the mask.
    { "##", "12|", '3', { 0, "12", 0, 0 } },
    { "##", "12x|", '3', { 0, "12x", 0, 0 } },
    { "", "12|", '3', { 0, "12", 0, 0 } },
    { "[red]", "|", '3', { 0, "", 0, 0 } },
    // Groups don't count as positions, an escaped pair counts once.
    { "[ab]#[cd]#[ef]", "|12", '9', { 0, "92", 1, 1 } },
    { "[ab]#[cd]#[ef]", "1|2", '9', { 0, "19", 1, 1 } },
    { "[ab]#[cd]#[ef]", "12|", '9', { 0, "12", 0, 0 } },
    { "\\##", "|#1", '#', { 0, "#1", 1, 1 } },
    { "\\##", "|#1", '9', { 0, "#9", 2, 2 } },
    { "\\##", "#|1", '9', { 0, "#9", 1, 1 } },
    { "#\\", "1|", '9', { 0, "1", 0, 0 } },
    { "#[open", "1|", '9', { 0, "1", 0, 0 } },
    // A text shorter than its mask grows at its end, and has no place behind it.
    { "##", "|", '1', { 0, "1", 1, 1 } },
    { "##-##", "12-|", '3', { 0, "12-3", 1, 1 } },
    { "(##)", "|", '1', { 0, "", 2, 2 } },
};

struct Deleted {
    const char* mask;
    const char* shown;
    int         result;
    const char* after;
};

const Deleted deletions[] = {
    { "##-##", "|12-34", 2, "_2-34" },
    { "##-##", "12|-34", 2, "12-34" },
    { "##-##", "12-|34", 2, "12-_4" },
    { "##-##", "12-34|", 0, "12-34" },
    { "@!&*", "|a.7x", 2, " .7x" },
    { "@!&*", "a|.7x", 2, "a-7x" },
    { "@!&*", "a.|7x", 2, "a. x" },
    { "@!&*", "a.7|x", 2, "a.7 " },
    { "[x]#[y]#", "1|2", 2, "1_" },
    { "\\##", "|#1", 2, "#1" },
    { "\\##", "#|1", 2, "#_" },
    { "", "|12", 0, "12" },
    { "##", "|", 2, "" },
    { "##", "1|", 2, "1" },
};

} // namespace

TEST(MaskCharFilter, TakesACharacterAtTheNextPlaceholder)
{
    for (const Key& row : keys) {
        EXPECT_EQ(row.after, TypeInto('m', row.shown, row.mask, row.ch))
            << "'" << row.ch << "' in " << row.shown << " under " << row.mask;
    }
}

TEST(MaskCharFilter, TakesNothingWithoutAMask)
{
    EXPECT_EQ((Keystroke{ 0, "12", 0, 0 }), TypeInto('m', "|12", nullptr, '3'));
    EXPECT_EQ((Deletion{ 0, "12" }), DeleteFrom('m', "|12", nullptr));
}

TEST(MaskCharFilter, LeavesATextBehindACaretOutsideOfItAlone)
{
    ExactBuffer text{ std::string("1") };
    int         advance = -1, repaint = -1;
    EXPECT_EQ(0, MaskCharFilter(text.Get(), "#####", 4, '9', &advance, &repaint));
    EXPECT_EQ("1", text.Text());
    EXPECT_EQ(0, MaskCharFilter(text.Get(), "#####", -1, '9', &advance, &repaint));
    EXPECT_EQ("1", text.Text());
    EXPECT_EQ(2, MaskCharDelete(text.Get(), "#####", 4));
    EXPECT_EQ(2, MaskCharDelete(text.Get(), "#####", -1));
    EXPECT_EQ("1", text.Text());
}

TEST(MaskCharDelete, LeavesTheFillerAndStepsOn)
{
    for (const Deleted& row : deletions) {
        const Field field = AtCaret(row.shown);
        ExactBuffer text(field.text);
        EXPECT_EQ(row.result, MaskCharDelete(text.Get(), row.mask, field.pos)) << row.shown << " under " << row.mask;
        EXPECT_EQ(row.after, text.Text()) << row.shown << " under " << row.mask;
    }
}
