// Buffers without a spare byte, settings with known separators and typed keys for the tests of typed values.
#pragma once

#include "foundation/memory.h"
#include "typed/data_types.h"
#include "typed/intl.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <ostream>
#include <random>
#include <string>

// A block of exactly size bytes: one byte more is a page that can't be touched.
class ExactBuffer {
public:
    explicit ExactBuffer(size_t size, char fill = '~') : size_(size), bytes_(static_cast<char*>(HBlockAlloc(size)))
    {
        std::memset(bytes_, fill, size);
    }
    explicit ExactBuffer(const std::string& text, size_t spare = 0) : ExactBuffer(text.size() + 1 + spare)
    {
        std::memcpy(bytes_, text.c_str(), text.size() + 1);
    }
    ~ExactBuffer() { HBlockFree(bytes_); }
    ExactBuffer(const ExactBuffer&) = delete;
    ExactBuffer& operator=(const ExactBuffer&) = delete;

    char*       Get() { return bytes_; }
    size_t      Size() const { return size_; }
    std::string Bytes() const { return std::string(bytes_, size_); }
    std::string Text() const { return bytes_; }

private:
    size_t size_;
    char*  bytes_;
};

// Equal numbers from equal seeds, 32 bits each on every platform.
class Random {
public:
    explicit Random(uint32_t seed) : engine_(seed) {}
    uint32_t operator()() { return static_cast<uint32_t>(engine_()); }

private:
    std::mt19937 engine_;
};

// Each test begins with "," for thousands and "." for decimals, and leaves the start values behind.
class NumberTest : public testing::Test {
protected:
    void SetUp() override
    {
        GetIntlSettings();
        gIntl.chThousandSep = ',';
        gIntl.chDecimalSep = '.';
    }
    void TearDown() override { GetIntlSettings(); }
};

// A text with a caret, written as "12|.50".
struct Field {
    std::string text;
    int         pos;
};

inline Field AtCaret(const std::string& shown)
{
    const size_t caret = shown.find('|');
    EXPECT_NE(std::string::npos, caret) << shown;
    return { shown.substr(0, caret) + shown.substr(caret + 1), static_cast<int>(caret) };
}

// What a keystroke leaves behind.
struct Keystroke {
    int         result;
    std::string text;
    int         advance;
    int         repaint;
};

inline bool operator==(const Keystroke& a, const Keystroke& b)
{
    return a.result == b.result && a.text == b.text && a.advance == b.advance && a.repaint == b.repaint;
}

inline void PrintTo(const Keystroke& key, std::ostream* out)
{
    *out << (key.result ? "refused" : "taken") << ", \"" << key.text << "\", caret +" << key.advance << ", paints "
         << key.repaint;
}

// The text has room for one character more, and no more than that.
inline Keystroke TypeInto(char dataClass, const std::string& shown, const char* format, char ch)
{
    const Field field = AtCaret(shown);
    ExactBuffer text(field.text, 1);
    Keystroke   key = { 0, "", -1, -1 };
    key.result = DataCharFilter(dataClass, 's', text.Get(), format, field.pos, ch, &key.advance, &key.repaint);
    key.text = text.Text();
    return key;
}

struct Deletion {
    int         step;
    std::string text;
};

inline bool operator==(const Deletion& a, const Deletion& b)
{
    return a.step == b.step && a.text == b.text;
}

inline void PrintTo(const Deletion& deletion, std::ostream* out)
{
    *out << "\"" << deletion.text << "\", caret +" << deletion.step;
}

// A delete step may put in a zero and a point.
inline constexpr int roomForDelete = 2;

inline Deletion DeleteFrom(char dataClass, const std::string& shown, const char* format)
{
    const Field field = AtCaret(shown);
    ExactBuffer text(field.text, roomForDelete);
    Deletion    deletion;
    deletion.step = DataCharDelete(dataClass, 's', text.Get(), format, field.pos);
    deletion.text = text.Text();
    return deletion;
}
