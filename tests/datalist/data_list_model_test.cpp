// Random operations on data lists of each sort mode against a model: a vector of values and codes.
#include "datalist/list_maker.h"

#include "typed/data_types.h"

#include <random>

namespace {

struct Kind {
    const char* name;
    int         mode;
    Pair        data;
    Pair        code;
};

struct Model {
    explicit Model(const Kind& k) : kind(k) {}

    Kind      kind;
    ListItems items;

    int  Count() const { return static_cast<int>(items.size()); }
    bool LedByCodes() const { return kind.mode == sortedByCode; }

    const Bytes& Key(const ListItem& item) const { return LedByCodes() ? item.code : item.data; }
    int          Order(const Bytes& a, const Bytes& b) const
    {
        const Pair pair = LedByCodes() ? kind.code : kind.data;
        return GetDataCompare(pair.dataClass, pair.dataType)(a.data(), b.data());
    }

    static Bytes Zero(Pair pair)
    {
        return pair.IsText() ? Bytes(1) : Bytes(static_cast<size_t>(GetDataSize(pair.dataClass, pair.dataType)));
    }

    // In front of the first that isn't below, as the steps tell it.
    int PlaceOf(const ListItem& item) const
    {
        if (items.empty() || Key(item).empty()) {
            return 0;
        }
        if (Order(Key(item), Key(items.back())) > 0) {
            return Count();
        }
        int place = 0;
        while (Order(Key(item), Key(items[static_cast<size_t>(place)])) > 0) {
            place++;
        }
        return place;
    }

    int Insert(ListItem item, int index)
    {
        int place = kind.mode == unsortedList ? index : PlaceOf(item);
        place = place < 0 || place > Count() ? Count() : place;
        if (item.code.empty() && kind.code.dataClass) {
            item.code = Zero(kind.code);
        }
        items.insert(items.begin() + place, item);
        return place;
    }

    bool Delete(int index)
    {
        if (index < 0 || index >= Count()) {
            return false;
        }
        items.erase(items.begin() + index);
        return true;
    }

    int Find(int start, const Bytes& key, Bytes ListItem::*part, Pair pair) const
    {
        const HLLDATACOMPARE compare = GetDataCompare(pair.dataClass, pair.dataType);
        for (int i = 0; i < Count(); i++) {
            const int index = (std::max(start, 0) + i) % Count();
            if (compare(key.data(), (items[static_cast<size_t>(index)].*part).data()) == 0) {
                return index;
            }
        }
        return -1;
    }

    const ListItem* At(int index) const
    {
        const int place = index == -1 ? Count() - 1 : index;
        return place < 0 || place >= Count() ? nullptr : &items[static_cast<size_t>(place)];
    }

    // All are added anew in the order of the file; what stays in the order of the file are the partners of neighbours
    // that can't be told apart.
    void SaveAndLoad()
    {
        if (kind.mode == unsortedList) {
            return;
        }
        ListItems file;
        std::swap(file, items);
        std::vector<size_t> order;
        for (size_t i = 0; i < file.size(); i++) {
            order.insert(order.begin() + Insert(file[i], -1), i);
        }
        for (size_t i = 0; i < order.size();) {
            size_t end = i + 1;
            while (end < order.size() && Key(items[end]) == Key(items[i])) {
                end++;
            }
            std::sort(order.begin() + static_cast<ptrdiff_t>(i), order.begin() + static_cast<ptrdiff_t>(end));
            for (; i < end; i++) {
                items[i] = file[order[i]];
            }
        }
    }
};

class DataListAgainstModel : public testing::TestWithParam<Kind> {
protected:
    DataListAgainstModel() : model(GetParam()), dl(ListOf(model.kind.mode, model.kind.data, model.kind.code, "x")) {}

    int Pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }
    int AnyIndex() { return Pick(-2, model.Count() + 1); }

    // Few different ones, texts in both cases, so that many are equal.
    Bytes AnyValue(Pair pair)
    {
        const int pick = Pick(0, 7);
        if (pair.IsText()) {
            return Value(std::string(static_cast<size_t>(pick / 3), static_cast<char>(pick % 2 ? 'a' : 'A')));
        }
        Bytes bytes(static_cast<size_t>(GetDataSize(pair.dataClass, pair.dataType)));
        bytes[0] = static_cast<BYTE>(pick);
        return bytes;
    }
    bool HasCodes() const { return model.kind.code.dataClass != 0; }

    void InsertOne()
    {
        ListItem item = { AnyValue(model.kind.data), {} };
        if (HasCodes() && Pick(0, 9) > 0) {
            item.code = AnyValue(model.kind.code);
        }
        const int index = AnyIndex();
        ASSERT_EQ(model.Insert(item, index), Insert(dl, item, index));
    }
    void DeleteOne()
    {
        const int index = AnyIndex();
        ASSERT_EQ(model.Delete(index), HDLDeleteItem(dl.get(), index) != 0) << index;
    }
    void FindOne()
    {
        const int   start = AnyIndex() + Pick(0, 1) * model.Count();
        const Bytes data = AnyValue(model.kind.data);
        ASSERT_EQ(model.Find(start, data, &ListItem::data, model.kind.data), HDLFindData(dl.get(), start, data.data()));
        const Bytes code = HasCodes() ? AnyValue(model.kind.code) : Bytes(8);
        const int   expected = HasCodes() ? model.Find(start, code, &ListItem::code, model.kind.code) : -1;
        ASSERT_EQ(expected, HDLFindCode(dl.get(), start, code.data()));
    }
    void SetOne()
    {
        const int       index = AnyIndex();
        const Bytes     code = HasCodes() ? AnyValue(model.kind.code) : Bytes(8);
        ListItem* const item = const_cast<ListItem*>(model.At(index));
        const bool      expected = item && HasCodes() && !model.LedByCodes();
        if (expected) {
            item->code = code;
        }
        ASSERT_EQ(expected, HDLSetCode(dl.get(), index, code.data()) != 0) << index;
    }
    void ReadOne()
    {
        const int             index = AnyIndex();
        const ListItem* const item = model.At(index);
        char                  out[16];
        const bool            hasText = item && item->data.size() > 1;
        const bool            hasData = item && (hasText || !model.kind.data.IsText());
        ASSERT_EQ(hasData, HDLGetData(dl.get(), index, out) != 0) << index;
        ASSERT_TRUE(!item || item->data == ValueAt(out, model.kind.data)) << index;
        const void* const code = HDLGetCodePtr(dl.get(), index);
        ASSERT_EQ(item && HasCodes(), code != nullptr) << index;
        ASSERT_TRUE(!code || item->code == ValueAt(code, model.kind.code)) << index;
    }
    void SaveAndLoad()
    {
        model.SaveAndLoad();
        dl = Loaded(Saved(dl));
        ASSERT_NE(nullptr, dl);
    }
    void EmptyAll()
    {
        HDLEmpty(dl.get());
        model.items.clear();
    }

    void Step()
    {
        struct {
            int below; // of a hundred
            void (DataListAgainstModel::*run)();
        } const kinds[] = {
            { 40, &DataListAgainstModel::InsertOne }, { 62, &DataListAgainstModel::DeleteOne },
            { 72, &DataListAgainstModel::FindOne },   { 82, &DataListAgainstModel::SetOne },
            { 92, &DataListAgainstModel::ReadOne },   { 99, &DataListAgainstModel::SaveAndLoad },
            { 100, &DataListAgainstModel::EmptyAll },
        };
        const int pick = Pick(0, 99);
        for (const auto& kind : kinds) {
            if (pick < kind.below) {
                return (this->*kind.run)();
            }
        }
    }

    BlockLeakCheck leaks;
    std::mt19937   random{ 3 };
    Model          model;
    DataListPtr    dl;
};

TEST_P(DataListAgainstModel, AgreesAfterEveryStep)
{
    ASSERT_NE(nullptr, dl);
    for (int step = 0; step < 2000; step++) {
        ASSERT_NO_FATAL_FAILURE(Step()) << "step " << step;
        ASSERT_EQ(model.items, ItemsOf(dl)) << "step " << step;
    }
}

constexpr Pair doublePair = { 'z', 'd' };

constexpr Kind kinds[] = {
    { "Texts", unsortedList, textPair, noPair },
    { "TextsWithNumbers", unsortedList, textPair, longPair },
    { "DatesWithTexts", unsortedList, datePair, textPair },
    { "SortedTexts", sortedByData, textPair, noPair },
    { "SortedTextsWithNumbers", sortedByData, textPair, longPair },
    { "SortedDatesWithTexts", sortedByData, datePair, textPair },
    { "TextsSortedByNumbers", sortedByCode, textPair, doublePair },
    { "DatesSortedByTexts", sortedByCode, datePair, textPair },
};

INSTANTIATE_TEST_SUITE_P(Kinds, DataListAgainstModel, testing::ValuesIn(kinds),
                         [](const testing::TestParamInfo<Kind>& each) { return std::string(each.param.name); });

} // namespace
