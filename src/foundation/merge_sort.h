// The stable sort of the library. It allocates nothing and calls no more than n log2 n compares.
#pragma once

#include <algorithm>
#include <utility>

// takesRight(a, b): whether b, which stands behind a, belongs in front of it.
template <typename T, typename TakesRight>
void HMergeRuns(const T* from, T* to, int left, int middle, int right, const TakesRight& takesRight)
{
    const bool inOrder = middle >= right || !takesRight(from[middle - 1], from[middle]);
    int        a = left;
    int        b = middle;
    for (int i = left; i < right; i++) {
        const bool fromRight = b < right && (a >= middle || (!inOrder && takesRight(from[a], from[b])));
        to[i] = from[fromRight ? b++ : a++];
    }
}

// Leaves the result in items; spare has room for as many.
template <typename T, typename TakesRight>
void HMergeSort(T* items, T* spare, int count, const TakesRight& takesRight)
{
    T* from = items;
    T* to = spare;
    for (int run = 1; run < count; run *= 2) {
        for (int left = 0; left < count; left += 2 * run) {
            HMergeRuns(from, to, left, std::min(left + run, count), std::min(left + 2 * run, count), takesRight);
        }
        std::swap(from, to);
    }
    if (from != items) {
        std::copy(from, from + count, items);
    }
}
