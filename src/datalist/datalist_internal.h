// What making, filling and loading a data list have in common.
#pragma once

#include "datalist/data_list.h"

enum class SortMode { None, ByData, ByCode, Invalid };

inline SortMode SortModeOf(const DataList* dl)
{
    constexpr int shift = 1;
    constexpr int mask = 3;
    return static_cast<SortMode>((dl->wFlags >> shift) & mask);
}

inline bool HasCodes(const DataList* dl)
{
    return (dl->wFlags & HDL_HASCODE) != 0;
}

// The list that decides where an item goes, and the one that goes along with it; null where there is none. In an
// unsorted list the values decide.
struct ListPair {
    HLList* leader;
    HLList* follower;
    bool    leaderHasCodes;
};
// Without a leader for a mode that takes no items.
ListPair PairOf(const DataList* dl);

// A list of values of one pair; null without memory.
HLList* CreateValueList(char dataClass, char dataType, bool sorted);
// Reads count items and appends them. False if they end early, for a text that is too long, or without memory.
bool ReadItems(Stream* stream, HLList* list, int count);
