// Random masks against a model that works on a list of positions.
#include "typed/typed_test_support.h"

#include "typed/masks.h"

#include <cctype>
#include <vector>

namespace {

struct Position {
    char letter; // '@', '#', '!', '&' or '*'; 0 for a literal
    char literal;
};

bool Fits(char letter, char ch)
{
    const int code = static_cast<unsigned char>(ch);
    switch (letter) {
    case '@': return std::isalpha(code) != 0;
    case '#': return std::isdigit(code) != 0;
    case '!': return std::ispunct(code) != 0;
    case '&': return std::isalnum(code) != 0;
    default: return std::isprint(code) != 0;
    }
}

char Filler(char letter)
{
    return letter == '#' ? '_' : letter == '!' ? '-' : ' ';
}

std::string LayOut(const std::vector<Position>& positions, std::string text)
{
    std::string out;
    for (const Position& position : positions) {
        if (position.letter) {
            while (!text.empty() && !Fits(position.letter, text[0])) {
                text.erase(0, 1);
            }
            out += text.empty() ? Filler(position.letter) : text[0];
            text.erase(0, text.empty() ? 0 : 1);
            continue;
        }
        out += position.literal;
        if (!std::isalnum(static_cast<unsigned char>(position.literal)) && !text.empty() &&
            text[0] == position.literal) {
            text.erase(0, 1);
        }
    }
    return out;
}

std::string Strip(const std::vector<Position>& positions, std::string text)
{
    std::string out;
    for (const Position& position : positions) {
        if (!position.letter) {
            text.erase(0, !text.empty() && text[0] == position.literal ? 1 : 0);
            continue;
        }
        if (!text.empty() && !Fits(position.letter, text[0])) {
            return out;
        }
        out += text.empty() ? Filler(position.letter) : text[0];
        text.erase(0, text.empty() ? 0 : 1);
    }
    return out;
}

class RandomMask {
public:
    explicit RandomMask(Random* random)
    {
        for (unsigned i = 1 + (*random)() % 8; i > 0; --i) {
            AddPosition((*random)());
        }
    }
    std::string           mask;
    std::vector<Position> positions;

private:
    void AddPosition(unsigned choice)
    {
        constexpr char letters[] = "@#!&*";
        constexpr char literals[] = "-/ .7A(])";
        constexpr char escaped[] = "#@[\\-7";
        const unsigned which = choice / 8;
        switch (choice % 8) {
        case 0: mask += "[x#]"; break;
        case 1:
            mask += std::string("\\") + escaped[which % 6];
            positions.push_back({ 0, escaped[which % 6] });
            break;
        case 2:
        case 3:
            mask += literals[which % 9];
            positions.push_back({ 0, literals[which % 9] });
            break;
        default:
            mask += letters[which % 5];
            positions.push_back({ letters[which % 5], 0 });
            break;
        }
    }
};

std::string RandomText(Random* random)
{
    std::string text;
    for (unsigned i = (*random)() % 12; i > 0; --i) {
        text += "17aZ-/ .(_#"[(*random)() % 11];
    }
    return text;
}

std::string Convert(const std::string& text, const std::string& mask, int strip)
{
    char out[64];
    MaskToString(text.c_str(), mask.c_str(), out, sizeof out, strip);
    return out;
}

} // namespace

TEST(MaskModel, LaysOutAndStripsRandomTextsAlike)
{
    Random random(1);
    for (int round = 0; round < 20000; ++round) {
        const RandomMask  mask(&random);
        const std::string text = RandomText(&random);
        ASSERT_EQ(mask.positions.empty() ? std::string() : LayOut(mask.positions, text), Convert(text, mask.mask, 0))
            << "'" << text << "' under " << mask.mask;
        ASSERT_EQ(Strip(mask.positions, text), Convert(text, mask.mask, 1)) << "'" << text << "' under " << mask.mask;
    }
}

TEST(MaskModel, TypingKeepsTheShapeOfTheMask)
{
    Random random(2);
    for (int round = 0; round < 2000; ++round) {
        const RandomMask mask(&random);
        ExactBuffer      text(Convert("", mask.mask, 0), 1);
        const size_t     length = text.Text().size();
        int              caret = 0;
        for (int key = 0; key < 30; ++key) {
            const std::string before = text.Text();
            const char        ch = "17aZ-/ .(_#"[random() % 11];
            int               advance = -1, repaint = -1;
            const bool refused = MaskCharFilter(text.Get(), mask.mask.c_str(), caret, ch, &advance, &repaint) != 0;
            ASSERT_EQ(length, text.Text().size()) << mask.mask;
            ASSERT_EQ(advance, repaint) << mask.mask;
            ASSERT_TRUE(!refused || (advance == 0 && before == text.Text())) << mask.mask;
            caret += advance;
            ASSERT_LE(static_cast<size_t>(caret), length) << mask.mask;
            for (size_t i = 0; i < length; ++i) {
                const Position& position = mask.positions[i];
                ASSERT_TRUE(position.letter
                                ? text.Get()[i] == Filler(position.letter) || Fits(position.letter, text.Get()[i])
                                : text.Get()[i] == position.literal)
                    << mask.mask << ": " << text.Text();
            }
            caret = random() % 4 ? caret : static_cast<int>(random() % (length + 1));
        }
    }
}

TEST(MaskModel, DeletingTouchesThePlaceholderUnderTheCaretOnly)
{
    Random random(3);
    for (int round = 0; round < 5000; ++round) {
        const RandomMask  mask(&random);
        const std::string before = Convert(RandomText(&random), mask.mask, 0);
        ExactBuffer       text(before);
        const size_t      pos = random() % (before.size() + 1);
        const int         result = MaskCharDelete(text.Get(), mask.mask.c_str(), static_cast<int>(pos));
        ASSERT_EQ(pos < before.size() ? 2 : 0, result) << mask.mask;
        std::string expected = before;
        if (pos < before.size() && mask.positions[pos].letter) {
            expected[pos] = Filler(mask.positions[pos].letter);
        }
        ASSERT_EQ(expected, text.Text()) << mask.mask;
    }
}
