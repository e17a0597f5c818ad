// Helpers on zero-terminated texts: bounded copies, copies in blocks of their own, edits in place, and the one
// comparison without case that the whole library uses.
#include "foundation/memory.h"

#include <cctype>

namespace {

size_t BoundedLength(const char* text, size_t limit)
{
    size_t length = 0;
    while (length < limit && text[length]) {
        length++;
    }
    return length;
}

int FoldCase(char ch)
{
    return std::tolower(static_cast<unsigned char>(ch));
}

} // namespace

int WINAPI _fstrnzcpy(char* dest, const char* src, int size)
{
    if (!dest || size == 0) {
        return 0;
    }
    const char* const text = src ? src : "";
    const size_t      length = size < 0 ? std::strlen(text) : BoundedLength(text, static_cast<size_t>(size) - 1);
    std::memmove(dest, text, length);
    dest[length] = 0;
    return static_cast<int>(length);
}

char* WINAPI hstrdup(const char* text)
{
    if (!text) {
        return nullptr;
    }
    const size_t size = std::strlen(text) + 1;
    char* const  copy = static_cast<char*>(HBlockAlloc(size));
    if (copy) {
        std::memcpy(copy, text, size);
    }
    return copy;
}

char* WINAPI hstrdup2(char** slot, const char* text)
{
    if (!slot) {
        return nullptr;
    }
    // Bounded: a text that lies in the old block is copied before that block goes.
    char* const copy = hstrdup(text);
    HBlockFree(*slot);
    *slot = copy;
    return copy;
}

char* HFillString(const char* text, char ch)
{
    if (!text) {
        return nullptr;
    }
    const size_t length = std::strlen(text);
    char* const  filled = static_cast<char*>(HBlockAlloc(length + 1));
    // Bounded: without memory there is no place for the terminator, and the result is null.
    if (filled) {
        std::memset(filled, ch, length);
    }
    return filled;
}

char* HInsertChars(char* text, char ch, int count, int pos)
{
    if (!text || count <= 0 || pos < 0) {
        return text;
    }
    const size_t length = std::strlen(text);
    // Bounded: behind the end of the text there is nothing to move, so the gap opens at the end.
    const size_t at = static_cast<size_t>(pos) < length ? static_cast<size_t>(pos) : length;
    const size_t gap = static_cast<size_t>(count);
    std::memmove(text + at + gap, text + at, length - at + 1);
    std::memset(text + at, ch, gap);
    return text;
}

char* HRemoveChars(char* text, int count, int pos)
{
    if (!text || count <= 0 || pos < 0) {
        return text;
    }
    const size_t length = std::strlen(text);
    const size_t at = static_cast<size_t>(pos);
    if (at >= length) {
        return text;
    }
    const size_t there = length - at;
    const size_t gone = static_cast<size_t>(count) < there ? static_cast<size_t>(count) : there;
    std::memmove(text + at, text + at + gone, there - gone + 1);
    return text;
}

int HCompareNoCase(const char* a, const char* b, size_t count)
{
    for (size_t i = 0; i < count; i++) {
        const int left = a[i] == b[i] ? 0 : FoldCase(a[i]);
        const int right = a[i] == b[i] ? 0 : FoldCase(b[i]);
        if (left != right) {
            return left < right ? -1 : 1;
        }
        if (!a[i]) {
            return 0;
        }
    }
    return 0;
}

int HCompareNoCase(const char* a, const char* b)
{
    // A missing text equals only a missing text.
    if (!a || !b) {
        return (a != nullptr) - (b != nullptr);
    }
    for (;; a++, b++) {
        // Folding asks the locale, which costs most of the time that sorting takes.
        if (*a == *b) {
            if (!*a) {
                return 0;
            }
            continue;
        }
        const int left = FoldCase(*a);
        const int right = FoldCase(*b);
        if (left != right) {
            return left < right ? -1 : 1;
        }
    }
}
