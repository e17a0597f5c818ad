// Streams and resources as the library's own readers want them: what comes whole or not at all.
#pragma once

#include <widgets/widgets.h>

#include <cstddef>

static_assert(sizeof(void*) != 4 || (sizeof(Stream) == 44 && offsetof(Stream, pData) == 24));
static_assert(sizeof(void*) != 8 || (sizeof(Stream) == 72 && offsetof(Stream, pData) == 48));
static_assert(offsetof(Stream, nPos) == offsetof(Stream, pData) + sizeof(void*));
static_assert(offsetof(Stream, cbGrow) == offsetof(Stream, nPos) + 3 * sizeof(DWORD));

// Whether all count bytes came.
bool HReadExactly(Stream* stream, void* buffer, int count);
// Reads a length of 16 bits and a text of as many bytes into a block of its own; null for the length 0. false: bytes or
// memory were missing, and the text, if there is one, ends in zeros.
bool HReadText(Stream* stream, char** outText);

// The bytes of a resource; null if it can't be found or loaded.
struct LockedResource {
    HGLOBAL     handle;
    const BYTE* bytes;
    size_t      size;
};
LockedResource HLockResource(HINSTANCE module, const char* name, const char* type);
