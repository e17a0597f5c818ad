// Blocks, values in row bytes, and the string helpers that only the library uses.
// Arrays, exported string helpers and item lists are declared in widgets.h.
#pragma once

#include <widgets/widgets.h>

#include <cstddef>
#include <cstring>

// Every block of the library reads as zero when it is new. extraFlags: GMEM_SHARE or 0. Null without memory.
// Test programs link another allocator behind these two, so nothing else in the library allocates.
void* HBlockAlloc(size_t size, UINT extraFlags = 0);
void  HBlockFree(void* block);

// Values in a row or a packed record lie at any address.
template <typename T>
T LoadAs(const void* from)
{
    T value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

template <typename T>
void StoreAs(void* to, T value)
{
    std::memcpy(to, &value, sizeof value);
}

// A record of a fixed kind in a block of its own.
template <typename T>
T* HRecordAlloc()
{
    return static_cast<T*>(HBlockAlloc(sizeof(T)));
}

// A new block as long as text, filled with ch; null for null or without memory.
char* HFillString(const char* text, char ch);
// Opens count places at index pos of text, in place, and fills them with ch. The caller supplies the room.
char* HInsertChars(char* text, char ch, int count, int pos);
// Removes count characters at index pos of text, in place; what isn't there isn't removed.
char* HRemoveChars(char* text, int count, int pos);
// Orders two texts ignoring case under the current locale, as the list of strings does: -1, 0 or 1.
int HCompareNoCase(const char* a, const char* b);
// The first count characters of two texts, neither null.
int HCompareNoCase(const char* a, const char* b, size_t count);
