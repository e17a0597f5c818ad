// Texts and clock of the benchmark.
#include "bench.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>

namespace {

// A small generator, so that every machine sorts the same texts.
unsigned Next(unsigned& state)
{
    state = state * 1664525u + 1013904223u;
    return state >> 8;
}

std::string Word(unsigned& state)
{
    std::string word(4 + Next(state) % 12, 'a');
    for (char& ch : word) {
        ch = static_cast<char>('a' + Next(state) % 26);
    }
    word[0] = static_cast<char>(word[0] - 'a' + 'A');
    return word;
}

} // namespace

std::vector<std::string> MakeTexts()
{
    std::vector<std::string> texts;
    texts.reserve(static_cast<size_t>(rowCount) * columnCount);
    unsigned state = 1;
    for (int row = 0; row < rowCount; ++row) {
        for (int column = 0; column < columnCount; ++column) {
            texts.push_back(Word(state));
        }
    }
    return texts;
}

void Timings::TakeBetter(const Timings& other)
{
    const auto better = [](double known, double now) { return known > 0 && known < now ? known : now; };
    load = better(load, other.load);
    sort = better(sort, other.sort);
    paint = better(paint, other.paint);
    checksum = other.checksum;
}

double Median(std::vector<double> times)
{
    if (times.empty()) {
        return 0;
    }
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

double Milliseconds()
{
    LARGE_INTEGER frequency;
    LARGE_INTEGER counter;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&counter);
    return 1000.0 * static_cast<double>(counter.QuadPart) / static_cast<double>(frequency.QuadPart);
}

void PumpMessages()
{
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

unsigned AddToChecksum(unsigned checksum, const char* text)
{
    for (; *text; ++text) {
        checksum = checksum * 31 + static_cast<unsigned char>(*text);
    }
    return checksum;
}
