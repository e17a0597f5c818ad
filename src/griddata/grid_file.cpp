// The form of a grid definition in files and resources, read and written through the caller's function.
// Two tables tell what stands where; where the bytes come from is told in grid_file_sources.cpp.
#include "griddata/griddata_internal.h"

namespace {

constexpr WORD  firstVersion = 0x4847;
constexpr WORD  doubledTitleVersion = 0x4848; // Settled: it writes the title's length twice and reads the title twice
constexpr WORD  completeVersion = 0x4849;     // from here on, the header goes on behind the title
constexpr DWORD bothScrollBars = 0x00300000;  // WS_VSCROLL and WS_HSCROLL

// One value of a file: where it stands in the record, and its bytes; 0 for a text.
struct FilePlace {
    size_t offset;
    int    size;
};
constexpr int text = 0;

// clang-format off
constexpr FilePlace headerPlaces[] = {
    { offsetof(HGridData, dwStyle),    4 },
    { offsetof(HGridData, cFixedCols), 2 },
    { offsetof(HGridData, nRowHeight), 2 },
    { offsetof(HGridData, nHdrWidth),  2 },
    { offsetof(HGridData, nHdrHeight), 2 },
    { offsetof(HGridData, pszTitle),   text },
    { offsetof(HGridData, dwStyle2),   4 },
    { offsetof(HGridData, cMinRows),   2 },
};
constexpr int shortHeaderPlaces = 6;
constexpr int headerPlaceCount = 8;

constexpr FilePlace fieldPlaces[] = {
    { offsetof(HGField, wFlags),     2 },
    { offsetof(HGField, nWidth),     2 },
    { offsetof(HGField, nHeight),    2 },
    { offsetof(HGField, cbSize),     2 },
    { offsetof(HGField, cClass),     1 },
    { offsetof(HGField, cType),      1 },
    { offsetof(HGField, cClass2),    1 },
    { offsetof(HGField, cType2),     1 },
    { offsetof(HGField, cKind),      1 },
    { offsetof(HGField, dwCtlStyle), 4 },
    { offsetof(HGField, pszTitle),   text },
    { offsetof(HGField, pszFormat),  text },
};
constexpr int fieldPlaceCount = 12;
// clang-format on

static_assert(sizeof headerPlaces / sizeof *headerPlaces == headerPlaceCount);
static_assert(sizeof fieldPlaces / sizeof *fieldPlaces == fieldPlaceCount);

struct Transfer {
    HGTRANSFER function;
    void*      context;
    int        version;
    bool       Run(void* buffer, int count) const { return function(context, buffer, count) == 0; }
};

bool IsKnownVersion(int version)
{
    return version >= firstVersion && version <= gridVersion;
}

int HeaderPlaces(int version)
{
    return version >= completeVersion ? headerPlaceCount : shortHeaderPlaces;
}

// A text of no characters isn't transferred at all: a host's function that reads or writes one item of count bytes
// would take an empty one for a failure.
bool RunText(const Transfer& transfer, void* buffer, int length)
{
    return length == 0 || transfer.Run(buffer, length);
}

// Stores the block of the text in any case, for the caller to free.
bool ReadText(const Transfer& read, BYTE* at, bool twice)
{
    WORD length = 0;
    read.Run(&length, sizeof length); // whatever it says: a length that can't be read ends at the text
    char* const block = static_cast<char*>(HBlockAlloc(size_t{length} + 1));
    StoreAs<char*>(at, block);
    return block && RunText(read, block, length) && (!twice || RunText(read, block, length));
}

bool WriteText(const Transfer& write, const BYTE* at, bool twice)
{
    char* const chars = LoadAs<char*>(at);
    WORD        length = static_cast<WORD>(chars ? std::strlen(chars) : 0);
    write.Run(&length, sizeof length); // whatever it says, as in reading
    if (twice) {
        write.Run(&length, sizeof length);
    }
    return RunText(write, chars, length);
}

bool ReadPlaces(const Transfer& read, BYTE* record, const FilePlace* places, int count, bool doubled)
{
    for (int i = 0; i < count; i++) {
        BYTE* const at = record + places[i].offset;
        const bool  done = places[i].size == text ? ReadText(read, at, doubled) : read.Run(at, places[i].size);
        if (!done) {
            return false;
        }
    }
    return true;
}

bool WritePlaces(const Transfer& write, BYTE* record, const FilePlace* places, int count, bool doubled)
{
    for (int i = 0; i < count; i++) {
        BYTE* const at = record + places[i].offset;
        const bool  done = places[i].size == text ? WriteText(write, at, doubled) : write.Run(at, places[i].size);
        if (!done) {
            return false;
        }
    }
    return true;
}

HGridData* LoadHeader(const Transfer& read)
{
    HGridData  header = {};
    HGridData* grid = nullptr;
    if (ReadPlaces(read, reinterpret_cast<BYTE*>(&header), headerPlaces, HeaderPlaces(read.version),
                   read.version == doubledTitleVersion)) {
        const DWORD style = header.dwStyle | (read.version < doubledTitleVersion ? bothScrollBars : 0);
        grid = HGridCreate(header.pszTitle, style, header.dwStyle2, static_cast<WORD>(header.cFixedCols),
                           header.nRowHeight, header.nHdrWidth, header.nHdrHeight, header.cMinRows);
    }
    HBlockFree(header.pszTitle);
    if (grid) {
        grid->wVersion = static_cast<WORD>(read.version);
    }
    return grid;
}

void AddLoadedField(HGridData* grid, const HGField& record)
{
    HGField* const field =
        HGFieldCreate(record.pszTitle, record.wFlags, record.nWidth, static_cast<WORD>(record.nHeight), record.cClass,
                      record.cType, record.cClass2, record.cType2, static_cast<WORD>(record.cbSize), record.cKind,
                      record.dwCtlStyle, record.pszFormat, 0);
    if (HGAddFld(grid, field) < 0) {
        HGFieldDestroy(field);
    }
}

bool LoadField(const Transfer& read, HGridData* grid)
{
    HGField    record = {};
    const bool whole = ReadPlaces(read, reinterpret_cast<BYTE*>(&record), fieldPlaces, fieldPlaceCount, false);
    if (whole) {
        AddLoadedField(grid, record);
    }
    HBlockFree(record.pszTitle);
    HBlockFree(record.pszFormat);
    return whole;
}

} // namespace

HGridData* WINAPI HGLoad(HGTRANSFER read, void* context)
{
    WORD version = 0;
    if (!read || read(context, &version, sizeof version) != 0 || !IsKnownVersion(version)) {
        return nullptr;
    }
    const Transfer   transfer = { read, context, version };
    HGridData* const grid = LoadHeader(transfer);
    short            count = 0;
    if (!grid || !transfer.Run(&count, sizeof count)) {
        return grid;
    }
    for (int col = 0; col < count; col++) {
        // A file that ends early gives the columns that were whole.
        if (!LoadField(transfer, grid)) {
            break;
        }
    }
    return grid;
}

int WINAPI HGSave(HGTRANSFER write, void* context, int version, HGridData* grid)
{
    WORD           word = static_cast<WORD>(version);
    const Transfer transfer = { write, context, word };
    if (!write || !grid || !IsKnownVersion(word) || !transfer.Run(&word, sizeof word)) {
        return 0;
    }
    if (!WritePlaces(transfer, reinterpret_cast<BYTE*>(grid), headerPlaces, HeaderPlaces(word),
                     word == doubledTitleVersion)) {
        return 0;
    }
    const int count = HGColCount(grid);
    WORD      stored = static_cast<WORD>(count);
    if (!transfer.Run(&stored, sizeof stored)) {
        return 0;
    }
    for (int col = 0; col < count; col++) {
        BYTE* const record = reinterpret_cast<BYTE*>(HGGetField(grid, col));
        if (!record || !WritePlaces(transfer, record, fieldPlaces, fieldPlaceCount, false)) {
            return 0;
        }
    }
    return 1;
}
