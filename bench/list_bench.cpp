// The list against the platform's LISTBOX: the same texts in windows of the same size, with the same font, both sorted
// or neither. All that is measured is done to the two in turns.
#include "bench.h"

namespace {

constexpr int listWidth = 300;
constexpr int listHeight = 400;
constexpr int listRounds = 8;
constexpr int loadRounds = 3;
constexpr int findCount = 10;
constexpr int paintTurns = 60;
constexpr int paintsATurn = 10;
constexpr int lineTurns = 10;
constexpr int linesATurn = 40;
constexpr int pagePasses = 6;
constexpr int pageTurns = 10;
constexpr int pagesATurn = 29; // with all turns nearly all items, and never the last page
constexpr int textSize = 32;
constexpr int loadSizes[] = { 25000, 50000, 100000 };

using Texts = std::vector<const char*>;

// What is different between the two.
struct ListKind {
    const char* className;
    const char* windowText;
    DWORD       style;
    DWORD       sorted;
    UINT        find;
    WPARAM      findStart; // before the first item
    UINT        getText;
    UINT        getTop;
    UINT        setTop;
    void (*add)(HWND list, const Texts& texts); // in the quickest way; the list shows none before the last
    void (*addSingly)(HWND list, const Texts& texts);
};

void AddStrings(HWND list, const Texts& texts)
{
    for (const char* const text : texts) {
        SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    }
}

void AddOurs(HWND list, const Texts& texts)
{
    HLAddItems(list, static_cast<int>(texts.size()), texts.data());
}

void AddOursSingly(HWND list, const Texts& texts)
{
    SendMessageA(list, HLM_SETREDRAW, FALSE, 0);
    AddStrings(list, texts);
    SendMessageA(list, HLM_SETREDRAW, TRUE, 0);
    SendMessageA(list, HLM_RECALC, 0, 0);
}

void AddPlatform(HWND list, const Texts& texts)
{
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    AddStrings(list, texts);
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
}

// clang-format off
constexpr ListKind oursKind = {
    "HList", "%ss", HLS_NOINTEGRAL, HLS_SORTDATA, HLM_FINDTEXT, 0, HLM_GETITEMTEXT, HLM_GETTOP, HLM_SETTOP, AddOurs,
    AddOursSingly,
};
constexpr ListKind platformKind = {
    "LISTBOX", "", LBS_NOTIFY | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT, LBS_SORT, LB_FINDSTRINGEXACT,
    static_cast<WPARAM>(-1), LB_GETTEXT, LB_GETTOPINDEX, LB_SETTOPINDEX, AddPlatform, AddPlatform,
};
// clang-format on

void Repaint(HWND list)
{
    InvalidateRect(list, nullptr, TRUE);
    UpdateWindow(list);
    GdiFlush();
}

HWND MakeList(HWND parent, const ListKind& kind, bool sorted)
{
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_VSCROLL | kind.style | (sorted ? kind.sorted : 0);
    const HWND  list = CreateWindowExA(0, kind.className, kind.windowText, style, 0, 0, listWidth, listHeight, parent,
                                       nullptr, GetModuleHandleA(nullptr), nullptr);
    SendMessageA(list, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), TRUE);
    PumpMessages();
    Repaint(list);
    return list;
}

double BetterOf(double known, double now)
{
    return known > 0 && known < now ? known : now;
}

// Milliseconds until the texts show.
double Add(HWND list, void (*add)(HWND list, const Texts& texts), const Texts& texts)
{
    const double start = Milliseconds();
    add(list, texts);
    Repaint(list);
    return Milliseconds() - start;
}

double AddToNewList(HWND parent, const ListKind& kind, bool sorted, void (*add)(HWND list, const Texts& texts),
                    const Texts& texts)
{
    const HWND   list = MakeList(parent, kind, sorted);
    const double time = Add(list, add, texts);
    DestroyWindow(list);
    return time;
}

// Milliseconds of one search for the last item; 0 if another one was found.
double FindLast(const ListKind& kind, HWND list)
{
    char text[textSize] = "";
    SendMessageA(list, kind.getText, listItemCount - 1, reinterpret_cast<LPARAM>(text));
    LRESULT      found = listItemCount - 1;
    const double start = Milliseconds();
    for (int i = 0; i < findCount && found == listItemCount - 1; ++i) {
        found = SendMessageA(list, kind.find, kind.findStart, reinterpret_cast<LPARAM>(text));
    }
    return found == listItemCount - 1 ? (Milliseconds() - start) / findCount : 0;
}

unsigned Checksum(const ListKind& kind, HWND list)
{
    unsigned checksum = 0;
    char     text[textSize] = "";
    for (int i = 0; i < listItemCount; ++i) {
        SendMessageA(list, kind.getText, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
        checksum = AddToChecksum(checksum, text);
    }
    return checksum;
}

ListTimings RunList(HWND parent, const ListKind& kind, bool sorted, const Texts& texts)
{
    ListTimings timings;
    const Texts some(texts.begin(), texts.begin() + listSingleCount);
    timings.addSingly = AddToNewList(parent, kind, sorted, kind.addSingly, some);
    const HWND list = MakeList(parent, kind, sorted);
    timings.add = Add(list, kind.add, texts);
    timings.find = FindLast(kind, list);
    timings.checksum = Checksum(kind, list);
    DestroyWindow(list);
    return timings;
}

// Milliseconds of a step with what it paints. The list is shown for some of them.
double TimeShown(HWND list, int count, void (*step)(HWND list))
{
    ShowWindow(list, SW_SHOW);
    PumpMessages();
    UpdateWindow(list);
    const double start = Milliseconds();
    for (int i = 0; i < count; ++i) {
        step(list);
    }
    GdiFlush();
    const double time = (Milliseconds() - start) / count;
    ShowWindow(list, SW_HIDE);
    return time;
}

void ScrollPage(HWND list)
{
    SendMessageA(list, WM_VSCROLL, SB_PAGEDOWN, 0);
    UpdateWindow(list);
}

void ScrollLine(HWND list)
{
    SendMessageA(list, WM_VSCROLL, SB_LINEDOWN, 0);
    UpdateWindow(list);
}

HWND MakeHiddenList(HWND parent, const ListKind& kind, bool sorted, const Texts& texts)
{
    const HWND list = MakeList(parent, kind, sorted);
    kind.add(list, texts);
    ShowWindow(list, SW_HIDE);
    return list;
}

// Whether a list came down by so many rows at least, and goes back to its first item.
bool ReturnsFrom(const ListKind& kind, HWND list, LRESULT rows)
{
    const bool cameDown = SendMessageA(list, kind.getTop, 0, 0) >= rows;
    SendMessageA(list, kind.setTop, 0, 0);
    return cameDown && SendMessageA(list, kind.getTop, 0, 0) == 0;
}

// The two lists that are shown in turns.
struct ListPair {
    HWND ours;
    HWND platform;
};

void TakeTurns(const ListPair& lists, int turns, int stepsATurn, void (*step)(HWND list), TurnTimes* times)
{
    for (int turn = 0; turn < turns; ++turn) {
        times->platform.push_back(TimeShown(lists.platform, stepsATurn, step));
        times->ours.push_back(TimeShown(lists.ours, stepsATurn, step));
    }
}

void TakeMedians(const TurnTimes& times, double* ours, double* platform)
{
    *ours = Median(times.ours);
    *platform = Median(times.platform);
}

bool ReturnFrom(const ListPair& lists, LRESULT rows)
{
    return ReturnsFrom(oursKind, lists.ours, rows) && ReturnsFrom(platformKind, lists.platform, rows);
}

// Repaints, and steps by pages through nearly all items and through the first ones by rows. false if a list didn't come
// as far as it was sent.
bool PaintAndScroll(HWND parent, bool sorted, const Texts& texts, ListTimings* ours, ListTimings* platform)
{
    const ListPair lists = { MakeHiddenList(parent, oursKind, sorted, texts),
                             MakeHiddenList(parent, platformKind, sorted, texts) };
    TurnTimes paints;
    TurnTimes pages;
    TurnTimes rows;
    TakeTurns(lists, paintTurns, paintsATurn, Repaint, &paints);
    constexpr LRESULT nearlyAll = listItemCount * 3 / 4;
    bool              byPages = true;
    for (int pass = 0; pass < pagePasses; ++pass) {
        TakeTurns(lists, pageTurns, pagesATurn, ScrollPage, &pages);
        byPages = ReturnFrom(lists, nearlyAll) && byPages;
    }
    TakeTurns(lists, lineTurns, linesATurn, ScrollLine, &rows);
    constexpr LRESULT lines = lineTurns * linesATurn;
    const bool        byLines = ReturnFrom(lists, lines);
    DestroyWindow(lists.ours);
    DestroyWindow(lists.platform);
    TakeMedians(paints, &ours->paint, &platform->paint);
    TakeMedians(pages, &ours->scrollPage, &platform->scrollPage);
    TakeMedians(rows, &ours->scrollLine, &platform->scrollLine);
    return byPages && byLines;
}

} // namespace

void ListTimings::TakeBetter(const ListTimings& other)
{
    add = BetterOf(add, other.add);
    addSingly = BetterOf(addSingly, other.addSingly);
    find = BetterOf(find, other.find);
    checksum = other.checksum;
}

bool RunLists(HWND parent, bool sorted, const std::vector<std::string>& texts, ListTimings* ours, ListTimings* platform)
{
    Texts items;
    for (int i = 0; i < listItemCount; ++i) {
        items.push_back(texts[static_cast<size_t>(i)].c_str());
    }
    for (int round = 0; round < listRounds; ++round) {
        platform->TakeBetter(RunList(parent, platformKind, sorted, items));
        ours->TakeBetter(RunList(parent, oursKind, sorted, items));
        if (ours->checksum != platform->checksum || ours->find == 0 || platform->find == 0) {
            return false;
        }
    }
    return PaintAndScroll(parent, sorted, items, ours, platform);
}

std::vector<LoadTiming> RunLoads(HWND parent, const std::vector<std::string>& texts)
{
    std::vector<LoadTiming> loads;
    for (const int size : loadSizes) {
        Texts items;
        for (int i = 0; i < size; ++i) {
            items.push_back(texts[static_cast<size_t>(i)].c_str());
        }
        double best = 0;
        for (int round = 0; round < loadRounds; ++round) {
            best = BetterOf(best, AddToNewList(parent, oursKind, true, AddOurs, items));
        }
        loads.push_back({ size, best });
    }
    return loads;
}
