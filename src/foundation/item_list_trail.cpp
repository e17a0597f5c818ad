// A trail of nodes through the long list that was walked last.
#include "foundation/item_list.h"

#include <algorithm>

namespace {

constexpr int noteLimit = 1024;
constexpr int shortestStride = 64;

struct Trail {
    const HLList* list;
    unsigned      changes; // what nListChanges was when it was right
    int           stride;
    int           noted;
    void*         nodes[noteLimit]; // those at 0, stride, 2 * stride ...
};

Trail            trail;
std::atomic_flag trailBusy;

// A thread that comes while another one is on the trail goes without it.
class TrailUse {
public:
    TrailUse() : granted(!trailBusy.test_and_set(std::memory_order_acquire)) {}
    ~TrailUse()
    {
        if (granted) {
            trailBusy.clear(std::memory_order_release);
        }
    }
    TrailUse(const TrailUse&) = delete;
    TrailUse& operator=(const TrailUse&) = delete;

    const bool granted;
};

bool IsTrailOf(const HLList* list, unsigned changes)
{
    return trail.list == list && trail.changes == changes;
}

void BeginTrail(const HLList* list)
{
    trail.list = list;
    trail.changes = nListChanges;
    trail.stride = std::max(shortestStride, list->cItems / noteLimit + 1);
    trail.nodes[0] = list->pHead;
    trail.noted = 1;
}

void WalkOnTrail(HLList* list, int index)
{
    const int nearest = std::min(index / trail.stride, trail.noted - 1);
    if (index < list->iCursor || nearest * trail.stride > list->iCursor) {
        list->pCursor = trail.nodes[nearest];
        list->iCursor = nearest * trail.stride;
    }
    while (list->iCursor < index) {
        list->pCursor = HNodeLink(list->pCursor);
        list->iCursor++;
        if (list->iCursor == trail.noted * trail.stride && trail.noted < noteLimit) {
            trail.nodes[trail.noted++] = list->pCursor;
        }
    }
}

} // namespace

std::atomic<unsigned> nListChanges;

void* HLListNodeAt(HLList* list, int index)
{
    constexpr int farAway = 64; // nodes
    const bool    isIndex = list && index >= 0 && index < list->cItems;
    if (isIndex && (index < list->iCursor || index - list->iCursor > farAway)) {
        const TrailUse use;
        if (use.granted) {
            if (!IsTrailOf(list, nListChanges)) {
                BeginTrail(list);
            }
            WalkOnTrail(list, index);
        }
    }
    return HLListGetItem(list, index);
}

void HLListKeepTrail(const HLList* list, unsigned changesBefore, int index)
{
    const TrailUse use;
    if (use.granted && IsTrailOf(list, changesBefore)) {
        trail.noted = std::min(trail.noted, (index + trail.stride - 1) / trail.stride);
        trail.changes = nListChanges;
        trail.list = trail.noted > 0 ? list : nullptr;
    }
}
