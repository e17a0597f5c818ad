// Records that are made up when they are asked for. The grid keeps only a block of them.
#include "generated.h"

#include "loader.h"

#include <cstddef>
#include <cstdio>
#include <cstring>

namespace {

int                 recordCount;
std::vector<Column> columns;

// clang-format off
constexpr const char* airports[] = { "NORTH FIELD", "HARBOUR INTL ARPT", "LAKESIDE REGIONAL", "OLD MILL AIRPARK",
                                     "SOUTH RIDGE INTL ARPT", "WESTPORT MUNICIPAL", "GREEN VALLEY" };
constexpr const char* states[] = { "Ohio", "Texas", "Maine", "Oregon", "Nevada" };
constexpr const char* aircraft[] = { "B-737-300", "A-320", "DC-9", "C-172", "BE-1900" };
constexpr const char* operators[] = { "BUSINESS", "MILITARY", "CARGO LINE", "COAST AIRWAYS" };
constexpr const char* phases[] = { "Approach", "Climb", "Take-off run", "Landing Roll", "Parked" };
constexpr const char* species[] = { "Canada goose", "Mallard", "Rock pigeon", "Gulls", "Barn owl", "European starling" };
constexpr const char* sizes[] = { "Small", "Medium", "Large" };
// clang-format on

// A number that belongs to a record and a column, the same each time it is asked for.
unsigned Mix(int record, unsigned column)
{
    unsigned value = static_cast<unsigned>(record) * 2654435761u + column * 40503u;
    value ^= value >> 15;
    value *= 2246822519u;
    return value ^ (value >> 13);
}

template <size_t N>
const char* Pick(const char* const (&texts)[N], int record, unsigned column)
{
    return texts[Mix(record, column) % N];
}

// Parses a text by the column's type into the row, as loading it would.
void Put(HWND grid, int column, void* rowData, const char* text)
{
    std::vector<char> bytes;
    const size_t      position = static_cast<size_t>(column);
    void* const       place = HGOffsetPtr(grid, column, rowData);
    if (place && position < columns.size() && ParseField(columns[position], text, bytes).empty()) {
        std::memcpy(place, bytes.data(), static_cast<size_t>(columns[position].size));
    }
}

void FillRecord(HWND grid, int record, void* rowData)
{
    char text[32];
    std::snprintf(text, sizeof text, "%04u-%02u-%02u", 1990 + Mix(record, 0) % 30, 1 + Mix(record, 1) % 12,
                  1 + Mix(record, 2) % 28);
    Put(grid, 0, rowData, text);
    const char* const texts[] = { Pick(airports, record, 3),  Pick(states, record, 4), Pick(aircraft, record, 5),
                                  Pick(operators, record, 6), Pick(phases, record, 7), Pick(species, record, 8),
                                  Pick(sizes, record, 9) };
    int               column = 1;
    for (const char* const each : texts) {
        Put(grid, column++, rowData, each);
    }
    std::snprintf(text, sizeof text, "%u", 60 + Mix(record, 10) % 240);
    Put(grid, column++, rowData, text);
    std::snprintf(text, sizeof text, "%d", record);
    Put(grid, column, rowData, text);
}

int CALLBACK Source(HWND grid, int operation, int record, void* buffer)
{
    switch (operation) {
    case HGSRC_FETCH:
        if (record < 0 || record >= recordCount) {
            return 0;
        }
        FillRecord(grid, record, buffer);
        return 1;
    case HGSRC_COUNT: return recordCount;
    case HGSRC_CELL: return 1; // generated records can't be changed
    default: return 0;
    }
}

} // namespace

void ShowGenerated(HWND grid, int count)
{
    recordCount = count;
    columns = ColumnsOf(grid);
    SendMessageA(grid, HGM_SETROWSOURCE, 0, reinterpret_cast<LPARAM>(Source));
    if (count > 0) {
        SendMessageA(grid, HGM_SETTOTAL, 0, count);
    }
}
