// Random numbers, pictures and keystrokes against what a user expects of them.
#include "typed/typed_test_support.h"

#include "typed/numbers.h"

#include <cmath>
#include <cstdint>
#include <iterator>

namespace {

bool OneIn(Random* random, unsigned n)
{
    return (*random)() % n == 0;
}

// A picture without oddities, and what it asks for.
struct PlainPicture {
    std::string before;
    bool        grouped;
    int         zeros;
    std::string between; // in front of the point
    int         fracZeros;
    int         fracMost;
    bool        unlimited;
    std::string behind;

    std::string Text() const
    {
        std::string text = before + (grouped ? "#,##" : "#") + std::string(static_cast<size_t>(zeros), '0') + between;
        if (fracMost > 0 || unlimited) {
            text += "." + std::string(static_cast<size_t>(fracZeros), '0') +
                    std::string(static_cast<size_t>(fracMost - fracZeros), '#') + (unlimited ? "*" : "") + behind;
        }
        return text;
    }
};

PlainPicture RandomPicture(Random* random)
{
    PlainPicture picture;
    picture.before = OneIn(random, 3) ? "$ " : "";
    picture.grouped = OneIn(random, 2);
    picture.zeros = static_cast<int>((*random)() % 5);
    picture.between = OneIn(random, 8) ? "u" : "";
    picture.fracMost = static_cast<int>((*random)() % 6);
    picture.fracZeros =
        picture.fracMost ? static_cast<int>((*random)() % static_cast<unsigned>(picture.fracMost + 1)) : 0;
    picture.unlimited = OneIn(random, 6);
    picture.behind = OneIn(random, 3) ? " kg" : "";
    return picture;
}

// A decimal number as two texts of digits, which is exact however it is scaled.
struct Decimal {
    std::string whole;
    std::string behind;
};

// numerator / 2^shift in full: at most 30 digits behind the point.
Decimal Expand(uint64_t numerator, int shift)
{
    Decimal  decimal = { std::to_string(numerator >> shift), "" };
    uint64_t rest = shift ? numerator & ((1ull << shift) - 1) : 0;
    for (int i = 0; i < shift; ++i) {
        rest *= 10;
        decimal.behind += static_cast<char>('0' + (rest >> shift));
        rest &= (1ull << shift) - 1;
    }
    return decimal;
}

// Halves go up, being away from zero.
void RoundTo(Decimal* decimal, size_t places)
{
    if (decimal->behind.size() <= places) {
        return;
    }
    bool        up = decimal->behind[places] >= '5';
    std::string all = decimal->whole + decimal->behind.substr(0, places);
    for (size_t i = all.size(); up && i-- > 0;) {
        up = all[i] == '9';
        all[i] = up ? '0' : static_cast<char>(all[i] + 1);
    }
    all = (up ? "1" : "") + all;
    decimal->whole = all.substr(0, all.size() - places);
    decimal->behind = all.substr(all.size() - places);
}

std::string Group(const std::string& digits)
{
    std::string grouped = digits;
    for (size_t at = grouped.size(); at > 3; at -= 3) {
        grouped.insert(at - 3, ",");
    }
    return grouped;
}

// What the picture promises, written down the simple way.
std::string Expected(Decimal decimal, bool minus, const PlainPicture& picture, bool editForm)
{
    RoundTo(&decimal, picture.unlimited ? 64 : static_cast<size_t>(picture.fracMost));
    const size_t required = static_cast<size_t>(picture.fracZeros);
    while (decimal.behind.size() > required && decimal.behind.back() == '0') {
        decimal.behind.pop_back();
    }
    decimal.behind.resize(std::max(decimal.behind.size(), required), '0');
    if (decimal.whole == "0") {
        decimal.whole.clear();
    }
    const size_t zeros = static_cast<size_t>(editForm ? std::min(picture.zeros, 1) : picture.zeros);
    while (decimal.whole.size() < zeros) {
        decimal.whole.insert(0, "0");
    }
    const bool        point = picture.fracMost > 0 || picture.unlimited;
    const std::string whole = picture.grouped && !editForm ? Group(decimal.whole) : decimal.whole;
    const bool        bare = decimal.behind.empty() && (picture.behind.empty() || editForm);
    std::string       text = minus ? "-" : "";
    text += (editForm ? "" : picture.before) + whole + (editForm ? "" : picture.between);
    text += point && !(bare && picture.behind.empty()) ? "." : "";
    return text + decimal.behind + (point && !editForm ? picture.behind : "");
}

class NumberModel : public NumberTest {};

// A text of digits with a sign in front and one separator at the most.
struct Shape {
    bool valid;
    bool minus;
    int  whole;
    int  behind; // -1 without a separator
};

Shape ShapeOf(const std::string& text)
{
    Shape  shape = { true, !text.empty() && text[0] == '-', 0, -1 };
    size_t i = shape.minus ? 1 : 0;
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
        ++shape.whole;
    }
    if (i < text.size() && text[i] == '.') {
        shape.behind = 0;
        for (++i; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
            ++shape.behind;
        }
    }
    shape.valid = i == text.size();
    return shape;
}

struct Session {
    const char* picture;
    int         whole;  // most digits in front of the point
    int         behind; // and behind it
};

const Session sessions[] = {
    { "#,##0.00", 4, 2 }, { "##0", 3, 0 },         { "*0.0#", 125, 2 },
    { "0.0000", 1, 4 },   { "(##0.0);0.0", 3, 1 }, { "000.000", 3, 3 },
};

const char keys[] = "0123456789012345678901234567890--..  x\b\b\b\b";

// Types one key as the edit control does; '\b' is the delete key.
void Press(char dataClass, ExactBuffer* text, const char* picture, int* caret, char key)
{
    const int length = static_cast<int>(text->Text().size());
    if (key == '\b') {
        *caret += DataCharDelete(dataClass, 'd', text->Get(), picture, *caret);
    } else {
        int       advance = -1, repaint = -1;
        const int refused = DataCharFilter(dataClass, 'd', text->Get(), picture, *caret, key, &advance, &repaint);
        ASSERT_TRUE(refused ? advance == 0 && repaint == 0 : advance >= 0 && repaint >= 0) << text->Text();
        *caret += advance;
    }
    ASSERT_LE(text->Text().size(), static_cast<size_t>(length) + 1);
}

// The text in a block with room for exactly one character more.
std::string PressOn(char dataClass, const std::string& before, const char* picture, int* caret, char key)
{
    ExactBuffer text(before, 1);
    Press(dataClass, &text, picture, caret, key);
    return text.Text();
}

} // namespace

TEST_F(NumberModel, PrintsRandomNumbersAsTheirPicturesPromise)
{
    Random random(20);
    for (int round = 0; round < 50000; ++round) {
        const PlainPicture picture = RandomPicture(&random);
        const int          shift = static_cast<int>(random() % 20);
        const uint64_t     numerator = random() >> random() % 32;
        const bool         minus = OneIn(&random, 3) && numerator > 0;
        const double       value = std::ldexp(static_cast<double>(numerator), -shift) * (minus ? -1.0 : 1.0);
        const bool         editForm = OneIn(&random, 3);
        char               out[128];
        DoubleToString(value, picture.Text().c_str(), out, sizeof out, editForm);
        ASSERT_EQ(Expected(Expand(numerator, shift), minus, picture, editForm), out)
            << value << " through " << picture.Text() << (editForm ? " in edit form" : "");
    }
}

TEST_F(NumberModel, ReadsBackWhatItPrintsInFull)
{
    Random random(21);
    for (int round = 0; round < 3000; ++round) {
        const double value = std::ldexp(static_cast<double>(random()), -static_cast<int>(random() % 40)) *
                             (OneIn(&random, 2) ? -1.0 : 1.0);
        for (const char* const picture : { "*0.*", "#,##0.*", "*0.00*" }) {
            char out[128];
            DoubleToString(value, picture, out, sizeof out, 0);
            ASSERT_EQ(value, StringToDouble(out)) << out;
            DoubleToString(value, picture, out, sizeof out, 1);
            ASSERT_EQ(value, StringToDouble(out)) << out;
        }
    }
}

TEST_F(NumberModel, TypingKeepsANumberANumberWithinItsPicture)
{
    Random random(22);
    for (int round = 0; round < 400; ++round) {
        const Session& session = sessions[random() % std::size(sessions)];
        std::string    text;
        int            caret = 0;
        for (int i = 0; i < 60; ++i) {
            const char key = keys[random() % (std::size(keys) - 1)];
            text = PressOn('n', text, session.picture, &caret, key);
            const Shape shape = ShapeOf(text);
            ASSERT_TRUE(shape.valid) << text << " under " << session.picture;
            ASSERT_LE(shape.whole, session.whole) << text << " under " << session.picture;
            ASSERT_LE(shape.behind, session.behind) << text << " under " << session.picture;
            ASSERT_GE(caret, 0);
            caret = std::min(caret, static_cast<int>(text.size()));
            caret = OneIn(&random, 5) ? static_cast<int>(random() % (text.size() + 1)) : caret;
        }
    }
}

TEST_F(NumberModel, CalculatorEntryKeepsItsPlacesBehindThePoint)
{
    Random random(23);
    for (int round = 0; round < 400; ++round) {
        std::string text = "0.00";
        int         caret = 4;
        for (int i = 0; i < 60; ++i) {
            char key = keys[random() % (std::size(keys) - 1)];
            key = key == ' ' ? '+' : key;
            // A digit in front of the sign is no number.
            caret = text[0] == '-' && caret == 0 && key != '\b' ? 1 : caret;
            const std::string before = text;
            text = PressOn('z', text, "0.00", &caret, key);
            const Shape shape = ShapeOf(text);
            ASSERT_TRUE(shape.valid) << before << " " << key << " " << text;
            ASSERT_EQ(2, shape.behind) << before << " " << key << " " << text;
            ASSERT_GE(shape.whole, 1) << before << " " << key << " " << text;
            caret = std::min(caret, static_cast<int>(text.size()));
            caret = OneIn(&random, 5) ? static_cast<int>(random() % (text.size() + 1)) : caret;
        }
    }
}
