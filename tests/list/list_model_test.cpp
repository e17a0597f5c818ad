// The selection under random insertions, deletions and selections, against plain vectors that follow the rules.
#include "list_window.h"

#include <algorithm>
#include <random>

namespace {

// The selection by plain vectors, as the rules state it.
struct Model {
    bool             single;
    std::vector<int> items;
    std::vector<int> selected;
    int              current;
    int              anchor;

    int  Last() const { return static_cast<int>(items.size()) - 1; }
    bool Holds(int index) const { return std::find(selected.begin(), selected.end(), index) != selected.end(); }
    bool IsSelected(int index) const
    {
        return single ? index == current : index >= 0 && index <= Last() && Holds(index);
    }
    int Add(int index)
    {
        if (single) {
            return index != current;
        }
        if (Holds(index)) {
            return 0;
        }
        selected.push_back(index);
        std::sort(selected.begin(), selected.end());
        return 1;
    }
    int Remove(int index) { return single ? index == current : static_cast<int>(std::erase(selected, index)); }
    int SelectOne(int index, int mode)
    {
        const bool was = IsSelected(index);
        if (mode == HLSEL_CLEAR) {
            Remove(index);
            return was;
        }
        if (mode == HLSEL_SET) {
            Add(index);
            return !was;
        }
        if (!Add(index)) {
            Remove(index);
        }
        return 1;
    }
    void Adjust(int delta, int at)
    {
        const auto move = [&](int index) { return std::clamp(index >= at ? index + delta : index, -1, Last()); };
        current = move(current);
        anchor = move(anchor);
        const auto first = std::find_if(selected.begin(), selected.end(), [&](int index) { return index >= at; });
        auto       rest = delta < 0 && first != selected.end() ? selected.erase(first) : first;
        for (; rest != selected.end(); ++rest) {
            *rest += delta;
        }
    }
    void Insert(int index, int value)
    {
        const int at = index < 0 || index > Last() ? Last() + 1 : index;
        items.insert(items.begin() + at, value);
        Adjust(1, at);
    }
    bool Delete(int index)
    {
        const bool gone = index >= 0 && index <= Last();
        if (gone) {
            items.erase(items.begin() + index);
        }
        Adjust(-1, index);
        return gone;
    }
    int DeleteBySelection(bool wanted)
    {
        int removed = 0;
        for (int i = 0; i <= Last();) {
            const bool gone = IsSelected(i) == wanted && Delete(i);
            removed += gone;
            i += gone ? 0 : 1;
        }
        return removed;
    }
    int DeleteByIndex(const std::vector<int>& indexes)
    {
        int removed = 0;
        for (const int index : indexes) {
            removed += index - removed >= 0 && Delete(index);
        }
        return removed;
    }
    int SelectBySelection(bool wanted, int mode)
    {
        int visited = 0;
        for (int i = 0; i <= Last(); ++i) {
            if (IsSelected(i) == wanted) {
                SelectOne(i, mode);
                ++visited;
            }
        }
        return visited;
    }
    int SelectRange(int from, int to, int mode)
    {
        const int last = std::max(Last(), 0);
        const int a = std::clamp(from, 0, last);
        const int b = std::clamp(to, 0, last);
        int       changed = 0;
        for (int i = std::min(a, b); i <= std::max(a, b); ++i) {
            changed += SelectOne(i, mode);
        }
        return changed;
    }
};

class ListModel : public ListWindow {
protected:
    int Pick(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); }
    // One random step in both, whose results must be the same.
    void Step();
    void Compare(int step) const
    {
        ASSERT_EQ(model.items, AllNumbers()) << "step " << step;
        ASSERT_EQ(model.current, Current()) << "step " << step;
        ASSERT_EQ(model.anchor, +Ctl()->nAnchor) << "step " << step;
        if (!model.single) {
            ASSERT_EQ(model.selected, Selected()) << "step " << step;
        }
        for (int i = -1; i <= model.Last() + 1; ++i) {
            ASSERT_EQ(model.IsSelected(i), HLIsItemSelected(Ctl(), i)) << "item " << i << " in step " << step;
        }
    }
    void Run(DWORD style, unsigned seed)
    {
        Make("%ni", style);
        random.seed(seed);
        const bool single = style == 0;
        model = { single, {}, {}, single ? -1 : 0, 0 };
        for (int step = 0; step < 300 && !HasFatalFailure(); ++step) {
            Step();
            Compare(step);
        }
    }

    Model        model = {};
    std::mt19937 random;
};

void ListModel::Step()
{
    const int last = model.Last();
    const int index = Pick(-1, last + 1);
    const int mode = Pick(HLSEL_CLEAR, HLSEL_TOGGLE);
    const int value = Pick(0, 1000000);
    switch (Pick(0, 11)) {
    case 0:
    case 1:
    case 2:
    case 3:
        if (last >= 24) {
            break;
        }
        HLInsertItem(list, index, &value);
        model.Insert(index, value);
        break;
    case 4: EXPECT_EQ(index >= 0 && index <= last && model.Delete(index), HLDeleteItem(list, index) != 0); break;
    case 5:
    case 6:
    case 7: {
        const bool inRange = index >= 0 && index <= last;
        EXPECT_EQ(inRange ? model.SelectOne(index, mode) : 0, HLSelectItem(list, index, mode));
        break;
    }
    case 8:
        if (last >= 0) {
            const int to = Pick(0, last + 2);
            const int from = std::max(index, 0);
            EXPECT_EQ(model.SelectRange(from, to, mode) ? 1 : -4,
                      Send(HLM_SELECTRANGE, static_cast<WPARAM>(mode), MAKELPARAM(from, to)));
        }
        break;
    case 9:
        if (Pick(0, 9) == 0) {
            const bool wanted = Pick(0, 1) == 1;
            EXPECT_EQ(model.DeleteBySelection(wanted),
                      HLDeleteItems(list, wanted ? HLI_SELECTED : HLI_UNSELECTED, 0, nullptr));
        }
        break;
    case 10: {
        const Ints indexes = { Pick(-1, 2), Pick(3, 5), Pick(6, 9) };
        EXPECT_EQ(model.DeleteByIndex(indexes), HLDeleteItems(list, HLI_BYINDEX, 3, indexes.data()));
        break;
    }
    default: {
        const bool wanted = Pick(0, 1) == 1;
        EXPECT_EQ(model.SelectBySelection(wanted, mode),
                  HLSelectItems(list, mode, wanted ? HLI_SELECTED : HLI_UNSELECTED, 0, nullptr));
        Send(HLM_SETCURRENT, static_cast<WPARAM>(index));
        model.current = std::min(index, model.Last());
        model.anchor = model.current;
        break;
    }
    }
}

TEST_F(ListModel, SingleSelectionIsWhatTheRulesSay)
{
    for (unsigned seed = 1; seed <= 3 && !HasFailure(); ++seed) {
        Run(0, seed);
    }
}

TEST_F(ListModel, MultipleSelectionIsWhatTheRulesSay)
{
    for (unsigned seed = 1; seed <= 3 && !HasFailure(); ++seed) {
        Run(HLS_MULTISEL, seed);
    }
}

TEST_F(ListModel, ExtendedSelectionIsWhatTheRulesSay)
{
    for (unsigned seed = 1; seed <= 3 && !HasFailure(); ++seed) {
        Run(HLS_EXTSEL, seed);
    }
}

TEST_F(ListModel, SelectionOfAListThatItsOwnerDrawsIsWhatTheRulesSay)
{
    for (unsigned seed = 1; seed <= 3 && !HasFailure(); ++seed) {
        Run(HLS_MULTISEL | HLS_OWNERDRAW, seed);
    }
}

} // namespace
