// Any bytes as an icon file. The image that passes the checks must have all rows that the platform reads, or be told
// to get room for them.
#include "fuzz_input.h"

#include "button/picture_dib.h"
#include "button/picture_icon.h"
#include "foundation/memory.h"

extern "C" int LLVMFuzzerTestOneInput(const BYTE* bytes, size_t size)
{
    IconEntry entry = {};
    if (!FindIconEntry(bytes, size, &entry)) {
        return 0;
    }
    Require(entry.width > 0 && entry.height > 0 && entry.size > 0);
    const std::unique_ptr<BYTE[]> image(new BYTE[entry.size]);
    std::memcpy(image.get(), bytes + entry.offset, entry.size);
    IconImage info = {};
    if (!ReadIconImage(image.get(), entry, &info)) {
        return 0;
    }
    const size_t rows = static_cast<size_t>(entry.height);
    Require(info.bitsOffset + rows * DibRowBytes(entry.width, info.bits) <= entry.size);
    Require(info.maskOffset + rows * info.maskRow <= entry.size);
    constexpr size_t headerPlanes = 12;
    const WORD       allBits = static_cast<WORD>(info.bits * LoadAs<WORD>(image.get() + headerPlanes));
    Require(info.room >= entry.size);
    Require(info.bitsOffset + rows * DibRowBytes(entry.width, allBits) <= info.room);
    FixIconHeader(image.get(), entry, info);
    FlipRows(image.get() + info.maskOffset, info.maskRow, entry.height);
    return 0;
}
