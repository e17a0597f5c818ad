// What owners of item lists with nodes of their own need besides widgets.h.
#pragma once

#include <widgets/widgets.h>

#include <atomic>
#include <cstddef>

static_assert(sizeof(void*) != 4 || (sizeof(HArray) == 24 && offsetof(HArray, pItems) == 20));
static_assert(sizeof(void*) != 4 || (sizeof(HLList) == 52 && offsetof(HLList, wFlags) == 36));

// The link word that every node begins with.
inline void* HNodeLink(const void* node)
{
    return *static_cast<void* const*>(node);
}

// Counts what changes the order of nodes in any list: who has noted a place looks whether it is still right.
extern std::atomic<unsigned> nListChanges;

inline void HNoteListChange()
{
    nListChanges.fetch_add(1, std::memory_order_relaxed);
}

inline void HSetNodeLink(void* node, void* next)
{
    *static_cast<void**>(node) = next;
    HNoteListChange();
}

// The payload of a default node.
inline void* HNodePayload(void* node)
{
    return static_cast<char*>(node) + sizeof(void*);
}

// Counts of lists: 0 for null.
inline int HLListCount(const HLList* list)
{
    return list ? list->cItems : 0;
}

// Insertions and removals send a list's cursor back to its head. This leaves it before the place of the change, where
// the next one of an ascending walk is near.
class KeptCursor {
public:
    KeptCursor(HLList* list, int place)
        : list_(list), before_(place > 0 ? HLListGetItem(list, place - 1) : nullptr), place_(place)
    {
    }
    ~KeptCursor()
    {
        if (before_) {
            list_->pCursor = before_;
            list_->iCursor = place_ - 1;
        }
    }
    KeptCursor(const KeptCursor&) = delete;
    KeptCursor& operator=(const KeptCursor&) = delete;

private:
    HLList* list_;
    void*   before_;
    int     place_;
};

// HLListGetItem for lists whose nodes nobody but the library replaces: it goes by way of nodes noted on earlier walks,
// so that a step back in a long list isn't a walk from its head. Links must be set with HSetNodeLink.
void* HLListNodeAt(HLList* list, int index);
// A node came or went at an index, and nothing else since nListChanges was changesBefore: what lies before stays noted.
void HLListKeepTrail(const HLList* list, unsigned changesBefore, int index);

// HLListInsert of a node that exists already.
int HLListInsertNode(HLList* list, int index, void* node);
// Takes the nodes from index first on, which were appended to a sorted list, to the places where HLListAdd would have
// put them one after the other, in n log n compares for any order of values, and in one compare each if all belong at
// the end. before: the tail that they were appended to, null for none. follower, a list of the same length or null, has
// its nodes moved alike. pfnItem must give the item itself, not a copy, and never null.
void HLListSortAdded(HLList* list, int first, void* before, HLList* follower);
