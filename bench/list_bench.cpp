// The list against the platform's LISTBOX: the same texts in windows of the same size, with the same font, both sorted
// or neither. All that is measured is done to the two in turns.
#include "bench.h"

namespace {

constexpr int listWidth = 300;
constexpr int listHeight = 400;
constexpr int listRounds = 8;
constexpr int loadRounds = 3;
constexpr int findCount = 10;
constexpr int paintTurns = 5;
constexpr int paintsATurn = 10;
constexpr int lineTurns = 10;
constexpr int linesATurn = 40;
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

double PaintOnce(HWND list)
{
    double best = 0;
    for (int turn = 0; turn < paintTurns; ++turn) {
        const double start = Milliseconds();
        for (int i = 0; i < paintsATurn; ++i) {
            Repaint(list);
        }
        best = BetterOf(best, (Milliseconds() - start) / paintsATurn);
    }
    return best;
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
    timings.paint = PaintOnce(list);
    timings.checksum = Checksum(kind, list);
    DestroyWindow(list);
    return timings;
}

// Milliseconds of a step of the scroll bar, with what it paints. The list is shown for some of them.
double ScrollOn(HWND list, int step, int count)
{
    ShowWindow(list, SW_SHOW);
    PumpMessages();
    UpdateWindow(list);
    const double start = Milliseconds();
    for (int i = 0; i < count; ++i) {
        SendMessageA(list, WM_VSCROLL, static_cast<WPARAM>(step), 0);
        UpdateWindow(list);
    }
    GdiFlush();
    const double time = (Milliseconds() - start) / count;
    ShowWindow(list, SW_HIDE);
    return time;
}

HWND MakeScrolledList(HWND parent, const ListKind& kind, bool sorted, const Texts& texts)
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

// Both in turns, of which the best counts: by pages through nearly all items, and the first ones by rows. false if a
// list didn't come as far as it was sent.
bool Scroll(HWND parent, bool sorted, const Texts& texts, ListTimings* oursTime, ListTimings* platformTime)
{
    const HWND ours = MakeScrolledList(parent, oursKind, sorted, texts);
    const HWND platform = MakeScrolledList(parent, platformKind, sorted, texts);
    for (int turn = 0; turn < pageTurns; ++turn) {
        platformTime->scrollPage = BetterOf(platformTime->scrollPage, ScrollOn(platform, SB_PAGEDOWN, pagesATurn));
        oursTime->scrollPage = BetterOf(oursTime->scrollPage, ScrollOn(ours, SB_PAGEDOWN, pagesATurn));
    }
    constexpr LRESULT nearlyAll = listItemCount * 3 / 4;
    const bool        byPages =
        ReturnsFrom(oursKind, ours, nearlyAll) && ReturnsFrom(platformKind, platform, nearlyAll);
    for (int turn = 0; turn < lineTurns; ++turn) {
        platformTime->scrollLine = BetterOf(platformTime->scrollLine, ScrollOn(platform, SB_LINEDOWN, linesATurn));
        oursTime->scrollLine = BetterOf(oursTime->scrollLine, ScrollOn(ours, SB_LINEDOWN, linesATurn));
    }
    constexpr LRESULT lines = lineTurns * linesATurn;
    const bool        byLines = ReturnsFrom(oursKind, ours, lines) && ReturnsFrom(platformKind, platform, lines);
    DestroyWindow(ours);
    DestroyWindow(platform);
    return byPages && byLines;
}

} // namespace

void ListTimings::TakeBetter(const ListTimings& other)
{
    add = BetterOf(add, other.add);
    addSingly = BetterOf(addSingly, other.addSingly);
    find = BetterOf(find, other.find);
    paint = BetterOf(paint, other.paint);
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
    return Scroll(parent, sorted, items, ours, platform);
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
