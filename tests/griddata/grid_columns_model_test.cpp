// Random changes of columns against a model: values by column, flag words by storage position, and the map. The model
// knows no offsets; where the words go when a column is removed is the settled part of it.
#include "griddata/grid_maker.h"

#include <algorithm>
#include <map>
#include <random>

namespace {

enum class MapKind { None, KeptUp, LeftAlone };

struct ModelRow {
    std::map<int, std::vector<BYTE>> values; // by the column's own number, which never changes
    std::vector<WORD>                words;  // by storage position
};

struct Model {
    MapKind               kind;
    std::vector<int>      columns; // own numbers, in column order
    std::vector<int>      map;     // column stored at a position; empty without a map
    std::map<int, size_t> sizes;   // by own number
    std::vector<ModelRow> rows;

    int Count() const { return static_cast<int>(columns.size()); }
    int NumberAt(int col) const { return columns[static_cast<size_t>(col)]; }

    int PosOf(int col) const
    {
        if (kind == MapKind::None) {
            return col;
        }
        const auto found = std::find(map.begin(), map.end(), col);
        return found == map.end() ? -1 : static_cast<int>(found - map.begin());
    }

    void Insert(int index, int number, size_t size)
    {
        columns.insert(columns.begin() + index, number);
        sizes[number] = size;
        for (ModelRow& row : rows) {
            row.values[number] = std::vector<BYTE>(size);
            row.words.insert(row.words.begin() + index, 0);
        }
        if (kind == MapKind::KeptUp) {
            for (int& entry : map) {
                entry += entry >= index;
            }
            map.insert(map.begin() + index, index);
        }
    }

    void Remove(int col)
    {
        if (kind == MapKind::KeptUp) {
            map.erase(map.begin() + PosOf(col));
            for (int& entry : map) {
                entry -= entry > col;
            }
        }
        columns.erase(columns.begin() + col);
        // The word behind the position that the next column has from now on goes, or the last one.
        const int gone = col < Count() ? PosOf(col) + 1 : Count();
        for (ModelRow& row : rows) {
            row.words.erase(row.words.begin() + gone);
        }
    }

    void Move(int from, int to)
    {
        const int number = NumberAt(from);
        columns.erase(columns.begin() + from);
        columns.insert(columns.begin() + to, number);
        if (kind == MapKind::KeptUp) {
            for (int& entry : map) {
                if (entry == from) {
                    entry = to;
                } else {
                    entry -= entry > from;
                    entry += entry >= to;
                }
            }
            return;
        }
        for (ModelRow& row : rows) {
            const WORD word = row.words[static_cast<size_t>(from)];
            row.words.erase(row.words.begin() + from);
            row.words.insert(row.words.begin() + to, word);
        }
    }
};

class ColumnsAgainstModel : public testing::TestWithParam<int> {
protected:
    void SetUp() override
    {
        live = LiveBlocks();
        random.seed(static_cast<unsigned>(GetParam()));
        model.kind = static_cast<MapKind>(GetParam() % 3);
        grid = EmptyGrid(model.kind == MapKind::KeptUp ? HGS_COLMAP : 0);
        for (int i = 0; i < 3; i++) {
            const size_t size = AnySize();
            ASSERT_EQ(i, HGAddFld(grid.get(), Column(size)));
            model.Insert(i, nextNumber++, size);
        }
        if (model.kind == MapKind::LeftAlone) {
            ASSERT_EQ(1, HGCreateFldMap(grid.get()));
            model.map = { 0, 1, 2 };
        }
    }
    void TearDown() override
    {
        grid.reset();
        EXPECT_EQ(live, LiveBlocks());
    }

    int    Pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }
    int    AnyColumn() { return Pick(0, model.Count() - 1); }
    size_t AnySize() { return static_cast<size_t>(Pick(0, 9)); }

    static HGField* Column(size_t size) { return Text("column", static_cast<WORD>(size)); }

    void AddRow()
    {
        AddRows(grid.get(), 1);
        ModelRow row;
        for (int number : model.columns) {
            row.values[number] = std::vector<BYTE>(model.sizes[number]);
        }
        row.words.resize(model.columns.size());
        model.rows.push_back(row);
    }

    void WriteCell()
    {
        if (model.rows.empty() || model.Count() == 0) {
            return;
        }
        const int row = Pick(0, static_cast<int>(model.rows.size()) - 1);
        const int col = AnyColumn();
        ModelRow& modelRow = model.rows[static_cast<size_t>(row)];
        auto&     value = modelRow.values[model.NumberAt(col)];
        for (size_t i = 0; i < value.size(); i++) {
            value[i] = static_cast<BYTE>(Pick(1, 255));
            CellAt(grid.get(), col, row)[i] = value[i];
        }
        const int pos = model.PosOf(col);
        if (pos >= 0) {
            const WORD word = static_cast<WORD>(Pick(1, 0xFFFF));
            modelRow.words[static_cast<size_t>(pos)] = word;
            StoreAs<WORD>(FlagAt(grid.get(), col, row), word);
        }
    }

    void InsertColumn()
    {
        const int    position = Pick(-1, model.Count() + 1);
        const int    index = position < 0 || position > model.Count() ? model.Count() : position;
        const size_t size = AnySize();
        ASSERT_EQ(index, HGInsertFld(grid.get(), Column(size), static_cast<short>(position)));
        model.Insert(index, nextNumber++, size);
    }

    void RemoveOneColumn()
    {
        if (model.Count() > 0) {
            const int col = AnyColumn();
            ASSERT_EQ(1, RemoveColumn(grid.get(), col));
            model.Remove(col);
        }
    }

    void MoveColumn()
    {
        if (model.Count() == 0) {
            return;
        }
        const int from = AnyColumn();
        const int to = AnyColumn();
        ASSERT_EQ(from == to ? -1 : to, HGMoveFld(grid.get(), from, to));
        if (from != to) {
            model.Move(from, to);
        }
    }

    void Step()
    {
        const int kind = Pick(0, 9);
        if (kind < 3) {
            WriteCell();
        } else if (kind < 4) {
            AddRow();
        } else if (kind < 6) {
            model.Count() < 8 ? InsertColumn() : RemoveOneColumn();
        } else if (kind < 7) {
            RemoveOneColumn();
        } else {
            MoveColumn();
        }
    }

    void ExpectRow(int row)
    {
        const ModelRow& expected = model.rows[static_cast<size_t>(row)];
        for (int col = 0; col < model.Count(); col++) {
            const auto&             value = expected.values.at(model.NumberAt(col));
            const BYTE* const       cell = CellAt(grid.get(), col, row);
            const std::vector<BYTE> actual(cell, cell + value.size());
            ASSERT_EQ(value, actual) << "row " << row << " column " << col;
        }
        const BYTE* const words = HGRowData(grid.get(), row) + grid->pRows->cbItem - 2 * model.Count();
        for (int pos = 0; pos < model.Count(); pos++) {
            ASSERT_EQ(expected.words[static_cast<size_t>(pos)], LoadAs<WORD>(words + 2 * pos))
                << "row " << row << " position " << pos;
        }
    }

    void ExpectAll()
    {
        ASSERT_EQ(model.Count(), HGColCount(grid.get()));
        size_t size = 2 * model.columns.size();
        for (int col = 0; col < model.Count(); col++) {
            ASSERT_EQ(model.PosOf(col), HGColToPos(grid.get(), col)) << col;
            size += model.sizes[model.NumberAt(col)];
        }
        ASSERT_EQ(static_cast<int>(size), grid->pRows->cbItem);
        ASSERT_EQ(model.map, MapEntries(grid.get()));
        ASSERT_EQ(static_cast<int>(model.rows.size()), HGRowCount(grid.get()));
        // From the last row upwards, so that a cursor under a wrong index shows.
        for (int row = HGRowCount(grid.get()) - 1; row >= 0; row--) {
            ASSERT_NO_FATAL_FAILURE(ExpectRow(row));
        }
    }

    std::mt19937 random;
    Model        model;
    GridPtr      grid;
    int          nextNumber = 0;
    int          live = 0;
};

TEST_P(ColumnsAgainstModel, AgreeAfterEveryChange)
{
    for (int step = 0; step < 600; step++) {
        ASSERT_NO_FATAL_FAILURE(Step()) << "step " << step;
        ASSERT_NO_FATAL_FAILURE(ExpectAll()) << "step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ColumnsAgainstModel, testing::Range(0, 12));

} // namespace
