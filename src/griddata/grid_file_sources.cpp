// Where grid definitions come from: files by name, and resources of a module.
#include "griddata/grid_file.h"

#include "foundation/stream.h"

#include <cstring>

namespace {

constexpr int        nameSize = 120; // the room for a file name, its extension included
constexpr const char extension[] = ".GRS";
constexpr WORD       definitionType = 300; // resource type

int CALLBACK ReadFromFile(void* context, void* buffer, int count)
{
    const HFILE file = static_cast<HFILE>(reinterpret_cast<INT_PTR>(context));
    const UINT  got = _lread(file, buffer, static_cast<UINT>(count));
    return static_cast<int>(got) < count ? -1 : 0;
}

struct MemorySource {
    const BYTE* at;
    size_t      left;
};

// Bounded: the bytes end where the resource ends, and a read beyond fails.
int CALLBACK ReadFromMemory(void* context, void* buffer, int count)
{
    MemorySource* const source = static_cast<MemorySource*>(context);
    const size_t        wanted = static_cast<size_t>(count);
    if (wanted > source->left) {
        return -1;
    }
    std::memcpy(buffer, source->at, wanted);
    source->at += wanted;
    source->left -= wanted;
    return 0;
}

// False for a name that has no room. Bounded: it isn't opened, instead of running over the buffer.
bool CompleteName(const char* name, char* out)
{
    const size_t length = std::strlen(name);
    const bool   hasPoint = std::strchr(name, '.') != nullptr;
    if (length + (hasPoint ? 1 : sizeof extension) > nameSize) {
        return false;
    }
    std::memcpy(out, name, length + 1);
    if (!hasPoint) {
        std::memcpy(out + length, extension, sizeof extension);
    }
    return true;
}

} // namespace

HGridData* WINAPI HGridLoad(const char* name, OFSTRUCT* ofs)
{
    if (!name) {
        return nullptr;
    }
    OFSTRUCT        local = {};
    OFSTRUCT* const told = ofs ? ofs : &local;
    char            fileName[nameSize];
    const HFILE     file = CompleteName(name, fileName) ? OpenFile(fileName, told, OF_READ) : HFILE_ERROR;
    if (file == HFILE_ERROR) {
        std::memset(told, 0, sizeof *told);
        return nullptr;
    }
    HGridData* const grid = HGLoad(ReadFromFile, reinterpret_cast<void*>(static_cast<INT_PTR>(file)));
    _lclose(file);
    return grid;
}

HGridData* HGLoadResource(HINSTANCE module, const char* name)
{
    const LockedResource locked = HLockResource(module, name, MAKEINTRESOURCEA(definitionType));
    if (!locked.bytes) {
        return nullptr;
    }
    MemorySource source = { locked.bytes, locked.size };
    return HGLoad(ReadFromMemory, &source);
}
