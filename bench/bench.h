// The same work done by a control and by the platform's: grid and list-view, edit and EDIT, list and LISTBOX.
#pragma once

#include <widgets/widgets.h>

#include <string>
#include <vector>

constexpr int rowCount = 30000;
constexpr int columnCount = 8;
constexpr int sortColumn = 1;
constexpr int windowWidth = 1000;
constexpr int windowHeight = 700;
constexpr int paintCount = 60;
constexpr int columnWidth = 120;
constexpr int roundCount = 3;
constexpr int listItemCount = 10000;
constexpr int listSingleCount = 2000;

// Texts of all cells, row after row; the same for both controls, and the same in every run.
std::vector<std::string>  MakeTexts();
inline const std::string& TextAt(const std::vector<std::string>& texts, int row, int column)
{
    return texts[static_cast<size_t>(row) * columnCount + static_cast<size_t>(column)];
}

// Times in milliseconds. checksum differs if the work wasn't done: it is made from what the control holds.
struct Timings {
    double   load = 0;
    double   sort = 0;
    double   paint = 0; // one full repaint
    unsigned checksum = 0;

    void TakeBetter(const Timings& other);
};

double   Milliseconds(); // a clock that only goes on
void     PumpMessages();
unsigned AddToChecksum(unsigned checksum, const char* text);

// Times of the same work done by two controls in turns. The median of many short turns says what a turn takes on a
// machine that has other things to do now and then.
struct TurnTimes {
    std::vector<double> ours;
    std::vector<double> platform;
};

double Median(std::vector<double> times); // 0 of none

// Milliseconds of one typed character and of one step down, each with its repaint; 0 if it went wrong.
struct EntryTimings {
    double typing = 0;
    double step = 0;
};

HWND MakeGrid(HWND parent, DWORD gridStyle);
void LoadGrid(HWND grid, const std::vector<std::string>& texts);
HWND MakeListView(HWND parent);
void LoadListView(HWND list, const std::vector<std::string>& texts);

// Milliseconds of the list or of LISTBOX.
struct ListTimings {
    double   add = 0;        // all texts in the quickest way, until they show
    double   addSingly = 0;  // some of them by one message each
    double   find = 0;       // one search for the last text
    double   scrollPage = 0; // one page of a scrolling through nearly all items
    double   scrollLine = 0; // one row
    double   paint = 0;      // one full repaint
    unsigned checksum = 0;

    void TakeBetter(const ListTimings& other); // but for what takes turns
};

// Milliseconds until a sorted list shows so many texts that come in no order.
struct LoadTiming {
    int    count;
    double time;
};

// false: the two don't hold the same items, or don't find or reach the last one.
bool                    RunLists(HWND parent, bool sorted, const std::vector<std::string>& texts, ListTimings* ours,
                                 ListTimings* platform);
std::vector<LoadTiming> RunLoads(HWND parent, const std::vector<std::string>& texts);

void    RunEntry(HWND parent, const std::vector<std::string>& texts, EntryTimings* ours, EntryTimings* platform);
Timings RunGrid(HWND parent, const std::vector<std::string>& texts);
Timings RunListView(HWND parent, const std::vector<std::string>& texts);
