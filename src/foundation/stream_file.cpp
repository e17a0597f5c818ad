// Streams over files: one to write, made anew, or one to read, found where the platform looks for files.
#include "foundation/memory.h"
#include "foundation/stream_internal.h"

namespace {

constexpr int    pathSize = 256;
constexpr size_t fileStreamSize = offsetof(Stream, nPos); // the record of a file ends with pData

int CALLBACK ReadFromFile(Stream* stream, void* buffer, int count)
{
    DWORD got = 0;
    return count > 0 && ReadFile(stream->pData, buffer, static_cast<DWORD>(count), &got, nullptr)
               ? static_cast<int>(got)
               : 0;
}

int CALLBACK WriteToFile(Stream* stream, const void* buffer, int count)
{
    DWORD done = 0;
    return count > 0 && WriteFile(stream->pData, buffer, static_cast<DWORD>(count), &done, nullptr)
               ? static_cast<int>(done)
               : 0;
}

// Settled: the result tells the other way round.
int CALLBACK CloseFile(Stream* stream)
{
    constexpr int closed = -2;
    const BOOL    done = CloseHandle(stream->pData);
    HBlockFree(stream);
    return done ? closed : 0;
}

// The record comes first: a file isn't emptied for a stream that can't be had.
Stream* OpenStream(const char* path, DWORD access, DWORD disposition, DWORD attributes)
{
    Stream* const stream = path ? static_cast<Stream*>(HBlockAlloc(fileStreamSize)) : nullptr;
    if (!stream) {
        return nullptr;
    }
    const HANDLE file = CreateFileA(path, access, FILE_SHARE_READ, nullptr, disposition,
                                    attributes | FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        HBlockFree(stream);
        return nullptr;
    }
    stream->nKind = fileKind;
    stream->pfnRead = ReadFromFile;
    stream->pfnWrite = WriteToFile;
    stream->pfnClose = CloseFile;
    stream->pData = file;
    return stream;
}

} // namespace

Stream* WINAPI SNewFile(const char* path)
{
    return OpenStream(path, GENERIC_WRITE, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL);
}

Stream* WINAPI SOpenFile(const char* name)
{
    char path[pathSize];
    if (!SLocateFile(name, path, pathSize)) {
        return nullptr;
    }
    return OpenStream(path, GENERIC_READ, OPEN_EXISTING, FILE_ATTRIBUTE_READONLY);
}

int WINAPI SLocateFile(const char* name, char* outPath, int outSize)
{
    OFSTRUCT found = {};
    if (!name || OpenFile(name, &found, OF_EXIST) == HFILE_ERROR) {
        return 0;
    }
    _fstrnzcpy(outPath, found.szPathName, outSize);
    return 1;
}
