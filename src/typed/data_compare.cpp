// The order of stored values, pair by pair: fields are compared from the most significant one down.
#include "foundation/memory.h"
#include "typed/data_types.h"

#include <cstdint>

namespace {

// A not-a-number on either side makes the first value the greater one.
template <typename T>
int OrderOf(T a, T b)
{
    if (b > a) {
        return -1;
    }
    return a == b ? 0 : 1;
}

// A field at an offset of the stored value.
template <typename T, size_t offset = 0>
struct Field {
    static int Order(const BYTE* a, const BYTE* b) { return OrderOf(LoadAs<T>(a + offset), LoadAs<T>(b + offset)); }
};

// A few bits of a packed word.
template <int shift, int width>
struct Bits {
    static int Of(const BYTE* value) { return (LoadAs<WORD>(value) >> shift) & ((1 << width) - 1); }
    static int Order(const BYTE* a, const BYTE* b) { return OrderOf(Of(a), Of(b)); }
};

template <typename... Fields>
int CALLBACK CompareFields(const void* a, const void* b)
{
    int order = 0;
    static_cast<void>(((order = Fields::Order(static_cast<const BYTE*>(a), static_cast<const BYTE*>(b))) || ...));
    return order;
}

int CALLBACK CompareTexts(const void* a, const void* b)
{
    return HCompareNoCase(static_cast<const char*>(a), static_cast<const char*>(b));
}

// Classes whose values lie alike have one letter for their column of the table.
constexpr char anyType = 0;

struct ClassColumn {
    char dataClass;
    char column;
};
// clang-format off
constexpr ClassColumn columns[] = {
    { 'a', 'a' }, { 'k', 'a' },
    { 'b', 'n' }, { 'c', 'n' }, { 'n', 'n' }, { 'z', 'n' },
    { 'd', 'd' },
    { 'h', 'h' },
    { 'm', 's' }, { 's', 's' },
    { 't', 't' },
};

struct PairOrder {
    char           column;
    char           dataType;
    HLLDATACOMPARE compare;
};
constexpr PairOrder orders[] = {
    { 's', anyType, CompareTexts },
    { 'h', anyType, CompareFields<Field<int8_t>> },

    { 'a', 'D', CompareFields<Field<int16_t, 0>, Field<uint8_t, 2>, Field<uint8_t, 3>, Field<uint8_t, 4>,
                              Field<uint8_t, 5>, Field<uint8_t, 6>, Field<uint16_t, 8>> },
    { 'a', 'Q', CompareFields<Field<int32_t, 0>, Field<int32_t, 4>> },
    { 'a', 'T', CompareFields<Field<int32_t>> }, // Settled: the upper half of the clock value doesn't count
    { 'a', 'm', CompareFields<Field<int32_t, 20>, Field<int32_t, 16>, Field<int32_t, 12>, Field<int32_t, 8>,
                              Field<int32_t, 4>, Field<int32_t, 0>> },
    { 'a', 'q', CompareFields<Field<uint16_t, 0>, Field<uint16_t, 2>> },
    { 'a', 's', CompareFields<Field<int16_t, 0>, Field<uint16_t, 2>, Field<uint16_t, 4>, Field<uint16_t, 6>,
                              Field<uint16_t, 8>, Field<uint16_t, 10>, Field<uint32_t, 12>> },
    { 'a', 'u', CompareFields<Field<double>> },

    { 'd', 'A', CompareFields<Bits<0, 7>, Bits<7, 4>, Bits<11, 5>> },
    { 'd', 'a', CompareFields<Field<uint16_t, 2>, Field<uint8_t, 1>, Field<uint8_t, 0>> },
    { 'd', 'd', CompareFields<Field<int16_t, 0>, Field<uint16_t, 2>, Field<uint16_t, 4>> },
    { 'd', 'l', CompareFields<Field<int32_t>> },

    { 't', 'I', CompareFields<Bits<0, 5>, Bits<5, 6>, Bits<11, 5>> },
    { 't', 'i', CompareFields<Field<uint8_t, 0>, Field<uint8_t, 1>, Field<uint8_t, 2>, Field<uint8_t, 3>> },
    { 't', 't', CompareFields<Field<uint16_t, 0>, Field<uint16_t, 2>, Field<uint16_t, 4>> },

    { 'n', 'M', CompareFields<Field<uint32_t, 0>, Field<uint32_t, 4>> },
    { 'n', 'W', CompareFields<Field<uint32_t>> },
    { 'n', 'u', CompareFields<Field<uint32_t>> },
    { 'n', 'b', CompareFields<Field<uint8_t>> },
    { 'n', 'd', CompareFields<Field<double>> },
    { 'n', 'f', CompareFields<Field<float>> },
    { 'n', 'h', CompareFields<Field<int8_t>> },
    { 'n', 'i', CompareFields<Field<int32_t>> },
    { 'n', 'l', CompareFields<Field<int32_t>> },
    { 'n', 's', CompareFields<Field<int16_t>> },
    { 'n', 'w', CompareFields<Field<uint16_t>> },
};
// clang-format on

// 0 for a letter that is no class.
char ColumnOf(char dataClass)
{
    for (const ClassColumn& row : columns) {
        if (row.dataClass == dataClass) {
            return row.column;
        }
    }
    return 0;
}

} // namespace

HLLDATACOMPARE GetDataCompare(char dataClass, char dataType)
{
    const char column = ColumnOf(dataClass);
    for (const PairOrder& row : orders) {
        if (row.column == column && (row.dataType == dataType || row.dataType == anyType)) {
            return row.compare;
        }
    }
    return nullptr;
}
