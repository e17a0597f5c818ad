// Bytes of a grid file in memory, with the transfer functions that read and write them.
#pragma once

#include <widgets/widgets.h>

#include <cstring>
#include <vector>

struct GridBytes {
    std::vector<BYTE> bytes;
    size_t            at = 0;     // of the next read
    int               calls = 0;
    int               failAt = 0; // the call that fails, and all after it; 0: none

    bool Fails()
    {
        calls++;
        return failAt > 0 && calls >= failAt;
    }

    // As a file: a read past the end copies what there is and fails.
    static int CALLBACK Read(void* context, void* buffer, int count)
    {
        GridBytes* const self = static_cast<GridBytes*>(context);
        if (self->Fails()) {
            return -1;
        }
        const size_t wanted = static_cast<size_t>(count);
        const size_t left = self->bytes.size() - self->at;
        const size_t got = wanted < left ? wanted : left;
        if (got) {
            std::memcpy(buffer, self->bytes.data() + self->at, got);
        }
        self->at += got;
        return got < wanted ? -1 : 0;
    }
    static int CALLBACK Write(void* context, void* buffer, int count)
    {
        GridBytes* const self = static_cast<GridBytes*>(context);
        if (self->Fails()) {
            return 1;
        }
        const BYTE* const from = static_cast<const BYTE*>(buffer);
        self->bytes.insert(self->bytes.end(), from, from + count);
        return 0;
    }
};

inline HGridData* LoadBytes(const std::vector<BYTE>& bytes)
{
    GridBytes source;
    source.bytes = bytes;
    return HGLoad(GridBytes::Read, &source);
}

inline std::vector<BYTE> SavedBytes(HGridData* grid, int version, int* outResult = nullptr)
{
    GridBytes target;
    const int result = HGSave(GridBytes::Write, &target, version, grid);
    if (outResult) {
        *outResult = result;
    }
    return target.bytes;
}
