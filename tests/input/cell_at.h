// A place in a grid; -1 for a header.
#pragma once

#include <widgets/widgets.h>

#include <ostream>

struct CellAt {
    int  col;
    int  row;
    bool operator==(const CellAt&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const CellAt& cell)
{
    return out << "cell " << cell.col << ", " << cell.row;
}

// As the grid packs it: the column in the low word, the row in the high one.
inline CellAt UnpackCellAt(LRESULT packed)
{
    return { static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed)) };
}

inline LPARAM PackCellAt(CellAt cell)
{
    return MAKELPARAM(cell.col, cell.row);
}
