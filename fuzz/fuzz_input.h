// Takes an input apart: bytes, numbers, texts that end at a zero, and blocks without a spare byte.
#pragma once

#include <widgets/widgets.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

inline void Require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

struct FuzzInput {
    const BYTE* at;
    const BYTE* end;

    bool IsEmpty() const { return at == end; }

    BYTE Byte() { return at < end ? *at++ : BYTE{ 0 }; }

    // What is missing reads as zero.
    template <typename T>
    T Number()
    {
        T            value = {};
        const size_t count = std::min(sizeof value, static_cast<size_t>(end - at));
        std::memcpy(&value, at, count);
        at += count;
        return value;
    }

    std::string Text()
    {
        const BYTE* const stop = std::find(at, end, BYTE{ 0 });
        std::string       text(at, stop);
        at = stop < end ? stop + 1 : end;
        return text;
    }
};

// Ends where the sanitizer stops an access. Begins as '#', or as a text with room for more characters.
class FuzzBuffer {
public:
    explicit FuzzBuffer(size_t size) : size_(size), bytes_(new char[size]) { std::fill_n(bytes_.get(), size, '#'); }
    FuzzBuffer(const std::string& text, size_t spare) : FuzzBuffer(text.size() + 1 + spare)
    {
        std::memcpy(bytes_.get(), text.c_str(), text.size() + 1);
    }
    char* Get() { return bytes_.get(); }
    int   Size() const { return static_cast<int>(size_); }

    // The text in it, which must end inside.
    std::string Text() const
    {
        Require(std::memchr(bytes_.get(), 0, size_) != nullptr);
        return bytes_.get();
    }

private:
    size_t                  size_;
    std::unique_ptr<char[]> bytes_;
};
