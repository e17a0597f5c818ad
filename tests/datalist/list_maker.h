// Data lists for tests, values as the bytes in which they are stored, and what a list holds.
#pragma once

#include "datalist/data_list.h"
#include "foundation/item_list.h"
#include "foundation/memory.h"
#include "foundation/stream_maker.h"

#include <gtest/gtest.h>

#include <ostream>

// Emptied at the end, together with its block.
struct DataListFreer {
    void operator()(DataList* dl) const
    {
        HDLDestroy(dl);
        HBlockFree(dl);
    }
};
using DataListPtr = std::unique_ptr<DataList, DataListFreer>;

enum Mode { unsortedList, sortedByData, sortedByCode };

struct Pair {
    char dataClass;
    char dataType;

    bool IsText() const { return GetDataSize(dataClass, dataType) < 0; }
};
constexpr Pair noPair = { 0, 0 };
constexpr Pair textPair = { 's', 's' };
constexpr Pair longPair = { 'n', 'l' };
constexpr Pair datePair = { 'd', 'l' };

inline DataListPtr ListOf(int mode, Pair data, Pair code = noPair, const char* format = nullptr)
{
    return DataListPtr(HDLCreate(mode, data.dataClass, data.dataType, code.dataClass, code.dataType, format));
}

// A stored value: the terminator of a text belongs to it.
inline Bytes Value(const std::string& text)
{
    Bytes bytes = BytesFrom(text);
    bytes.push_back(0);
    return bytes;
}
template <typename T>
requires std::is_arithmetic_v<T> Bytes Value(T number)
{
    Bytes bytes(sizeof number);
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

inline Bytes ValueAt(const void* at, Pair pair)
{
    const BYTE* const first = static_cast<const BYTE*>(at);
    const size_t      size = pair.IsText() ? std::strlen(static_cast<const char*>(at)) + 1
                                           : static_cast<size_t>(GetDataSize(pair.dataClass, pair.dataType));
    return Bytes(first, first + size);
}

struct ListItem {
    Bytes data;
    Bytes code; // nothing in a list without codes

    bool operator==(const ListItem&) const = default;
};
using ListItems = std::vector<ListItem>;

inline void PrintTo(const ListItem& item, std::ostream* out)
{
    *out << testing::PrintToString(item.data) << '/' << testing::PrintToString(item.code);
}

inline int Insert(const DataListPtr& dl, const ListItem& item, int index = -1)
{
    return HDLInsertItem(dl.get(), index, item.data.data(), item.code.empty() ? nullptr : item.code.data());
}

// The items in the order of the list. Both lists have to be rings of the same length.
inline ListItems ItemsOf(const DataListPtr& dl)
{
    ListItems   items;
    const Pair  data = { dl->cClass, dl->cType };
    const Pair  code = { dl->cClass2, dl->cType2 };
    const bool  hasCodes = (dl->wFlags & HDL_HASCODE) != 0;
    const void* dataNode = dl->pValues->pHead;
    const void* codeNode = hasCodes ? dl->pCodes->pHead : nullptr;
    EXPECT_EQ(hasCodes, dl->pCodes != nullptr);
    EXPECT_TRUE(!hasCodes || dl->pValues->cItems == dl->pCodes->cItems);
    for (int i = 0; i < dl->pValues->cItems; i++) {
        const size_t link = sizeof(void*);
        items.push_back({ ValueAt(static_cast<const char*>(dataNode) + link, data), {} });
        dataNode = HNodeLink(dataNode);
        if (hasCodes) {
            items.back().code = ValueAt(static_cast<const char*>(codeNode) + link, code);
            codeNode = HNodeLink(codeNode);
        }
    }
    EXPECT_EQ(dl->pValues->pHead, dataNode);
    EXPECT_TRUE(!hasCodes || dl->pCodes->pHead == codeNode);
    return items;
}

inline Bytes Saved(const DataListPtr& dl)
{
    const StreamPtr stream(SNewMem(64, 256));
    EXPECT_EQ(0, HDLSave(dl.get(), stream.get()));
    return BytesOf(stream.get());
}

inline bool IsZero(const DataList& dl)
{
    const DataList zeros = {};
    return std::memcmp(&dl, &zeros, sizeof dl) == 0;
}

// Null where the bytes are refused, and then the record has to be zero.
inline DataListPtr Loaded(const Bytes& bytes)
{
    const StreamPtr stream = StreamOf(bytes);
    DataListPtr     dl(static_cast<DataList*>(HBlockAlloc(sizeof(DataList))));
    std::memset(static_cast<void*>(dl.get()), 0x55, sizeof(DataList));
    const int result = HDLLoad(dl.get(), stream.get());
    if (result == 0) {
        return dl;
    }
    EXPECT_EQ(-1, result);
    EXPECT_TRUE(IsZero(*dl));
    return nullptr;
}
