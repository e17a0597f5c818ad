// What the kinds of streams share among themselves.
#pragma once

#include "foundation/stream.h"

constexpr int memoryKind = 1; // resources too
constexpr int fileKind = 2;

// A resource stream has none of the fields that belong to memory.
bool IsResourceStream(const Stream* stream);
