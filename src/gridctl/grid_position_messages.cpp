// Own messages of a grid that concern position and selection.
#include "gridctl/grid_handlers.h"

#include <algorithm>

namespace {

constexpr int jumpLimit = 32765;

// Messages that scroll on the owner's behalf send no scroll notifications. False if the window went.
bool ScrollQuietly(HGridCtl* ctl, int dx, int dy)
{
    const HWND hwnd = ctl->hWnd;
    SetFlag(ctl, HGC_QUIETSCROLL, true);
    HGScrollBy(ctl, dx, dy, true);
    return IsWindow(hwnd) != 0;
}

LONG HigherOf(const MsgArgs& args)
{
    return std::max(static_cast<LONG>(args.wParam), static_cast<LONG>(args.lParam));
}

LRESULT GiveCell(DWORD packed, LPARAM out)
{
    if (out) {
        *reinterpret_cast<DWORD*>(out) = packed;
    }
    return static_cast<LRESULT>(packed);
}

LRESULT OnGetFirstCol(HGridCtl* ctl, const MsgArgs&)
{
    return ctl->nFirstCol;
}

LRESULT OnSetFirstCol(HGridCtl* ctl, const MsgArgs& args)
{
    // Settled: a count of columns is subtracted from a distance in pixels.
    const int dx = static_cast<short>(static_cast<LONG>(args.wParam) - ctl->nHScrollPos - ctl->pData->cFixedCols);
    return ScrollQuietly(ctl, dx, 0) ? ctl->nFirstCol : 0;
}

LRESULT OnGetTopRecord(HGridCtl* ctl, const MsgArgs&)
{
    return HGTopRecord(ctl);
}

LRESULT OnSetTopRecord(HGridCtl* ctl, const MsgArgs& args)
{
    const LONG rows = BoundRecord(static_cast<std::int64_t>(HigherOf(args)) - HGTopRecord(ctl));
    return ScrollQuietly(ctl, 0, rows) ? HGTopRecord(ctl) : 0;
}

LRESULT OnGetAnchor(HGridCtl* ctl, const MsgArgs& args)
{
    return GiveCell(PackCell(ctl->nAnchorCol, ctl->nAnchorRow), args.lParam);
}

LRESULT OnSetAnchor(HGridCtl* ctl, const MsgArgs& args)
{
    const Cell current = CurrentCell(ctl);
    const Cell anchor = UnpackCell(static_cast<DWORD>(args.lParam));
    HGMoveTo(ctl, anchor.col, anchor.row, false, false);
    if (IsWindow(args.hwnd)) {
        HGMoveTo(ctl, current.col, current.row, true, true);
    }
    return AskDefault(args);
}

LRESULT OnGetCursor(HGridCtl* ctl, const MsgArgs& args)
{
    return GiveCell(PackCell(ctl->nCurCol, ctl->nCurRow), args.lParam);
}

LRESULT OnSetCursor(HGridCtl* ctl, const MsgArgs& args)
{
    const Cell cell = UnpackCell(static_cast<DWORD>(args.lParam));
    HGMoveTo(ctl, cell.col, cell.row, args.wParam != 0, true);
    return AskDefault(args);
}

LRESULT OnGetProposed(HGridCtl* ctl, const MsgArgs&)
{
    return static_cast<LRESULT>(PackCell(ctl->nPropCol, ctl->nPropRow));
}

LRESULT OnSetProposed(HGridCtl* ctl, const MsgArgs& args)
{
    const Cell cell = UnpackCell(static_cast<DWORD>(args.lParam));
    ctl->nPropCol = static_cast<WORD>(std::clamp(cell.col, -1, LastCol(ctl)));
    ctl->nPropRow = static_cast<WORD>(std::clamp(cell.row, -1, LastRow(ctl)));
    return 1;
}

LRESULT OnGetFlags(HGridCtl* ctl, const MsgArgs&)
{
    return ctl->wFlags & static_cast<WORD>(~hiddenFlags);
}

LRESULT OnSetFlags(HGridCtl* ctl, const MsgArgs& args)
{
    SetFlag(ctl, static_cast<WORD>(args.lParam & ~hiddenFlags), args.wParam != 0);
    return AskDefault(args);
}

LRESULT OnGetHPos(HGridCtl* ctl, const MsgArgs&)
{
    return ctl->nHScrollPos;
}

LRESULT OnGetVPos(HGridCtl* ctl, const MsgArgs&)
{
    return static_cast<LRESULT>(ctl->nVScrollPos);
}

LRESULT OnSetHPos(HGridCtl* ctl, const MsgArgs& args)
{
    const int dx = static_cast<short>(static_cast<LONG>(args.wParam) - ctl->nHScrollPos);
    return ScrollQuietly(ctl, dx, 0) ? ctl->nHScrollPos : 0;
}

LRESULT OnSetVPos(HGridCtl* ctl, const MsgArgs& args)
{
    const LONGLONG steps = static_cast<LONGLONG>(static_cast<LONG>(args.wParam)) - ctl->nVScrollPos;
    const LONGLONG rows = std::clamp<LONGLONG>(steps * ctl->nVScale, -0x7FFFFFFF, 0x7FFFFFFF);
    return ScrollQuietly(ctl, 0, static_cast<int>(rows)) ? static_cast<LRESULT>(ctl->nVScrollPos) : 0;
}

LRESULT OnGetVMax(HGridCtl* ctl, const MsgArgs&)
{
    const LONG beyondPage = ctl->lTotalRows - ctl->cPageRows + PartialRow(ctl);
    return std::max<LONG>(beyondPage, 0) / std::max<LONG>(ctl->nVScale, 1);
}

LRESULT OnGetHMax(HGridCtl* ctl, const MsgArgs&)
{
    return ctl->nHScrollMax;
}

LRESULT OnGetSelRows(HGridCtl* ctl, const MsgArgs& args)
{
    int* const rows = reinterpret_cast<int*>(args.lParam);
    const int room = rows ? static_cast<int>(args.wParam) : 0;
    int stored = 0;
    for (int row = 0; row <= LastRow(ctl) && stored < room; ++row) {
        if (HGIsRowSelected(ctl, row)) {
            rows[stored++] = row;
        }
    }
    return stored;
}

LRESULT OnGetSelCount(HGridCtl* ctl, const MsgArgs&)
{
    int count = 0;
    for (int row = 0; row <= LastRow(ctl); ++row) {
        count += HGIsRowSelected(ctl, row) ? 1 : 0;
    }
    return count;
}

LRESULT OnToggleRow(HGridCtl* ctl, const MsgArgs& args)
{
    const int row = static_cast<int>(args.wParam);
    if (row < 0 || row > LastRow(ctl)) {
        return 0;
    }
    HGSelectRow(ctl, -1, row, false, true);
    return IsWindow(args.hwnd) && HGIsRowSelected(ctl, row) ? 1 : 0;
}

LRESULT OnIsRowSelected(HGridCtl* ctl, const MsgArgs& args)
{
    return HGIsRowSelected(ctl, static_cast<int>(args.wParam)) ? 1 : 0;
}

// The messages that act as keys.
LRESULT OnKeyMessage(HGridCtl* ctl, const MsgArgs& args)
{
    struct KeyOf {
        UINT message;
        UINT vk;
        bool ctrl;
    };
    constexpr KeyOf keys[] = {
        { HGM_KEYFIRST, VK_HOME, true }, { HGM_KEYLAST, VK_END, true },   { HGM_KEYNEW, VK_INSERT, false },
        { HGM_KEYUP, VK_UP, false },     { HGM_KEYDOWN, VK_DOWN, false },
    };
    const KeyOf& key = keys[args.message - HGM_KEYFIRST];
    HGKeyNavigate(ctl, key.vk, false, key.ctrl);
    return AskDefault(args);
}

LONG DistanceTo(const HGridCtl* ctl, LONG record)
{
    return BoundRecord(static_cast<std::int64_t>(record) - RecordOfRow(ctl, CurrentCell(ctl).row));
}

LRESULT OnGotoRecord(HGridCtl* ctl, const MsgArgs& args)
{
    LONG record = static_cast<LONG>(args.lParam);
    if (record > ctl->lTotalRows) {
        HGFetchTotal(ctl);
        if (!IsWindow(args.hwnd)) {
            return 0;
        }
        record = std::min(record, ctl->lTotalRows);
    }
    LONG distance = DistanceTo(ctl, record);
    if (distance > jumpLimit) {
        HGScrollBy(ctl, 0, distance, true);
        if (!IsWindow(args.hwnd)) {
            return 0;
        }
        distance = DistanceTo(ctl, record);
    }
    if (distance != 0) {
        HGMoveBy(ctl, 0, distance, false);
    } else {
        HGShowCurrentRow(ctl);
    }
    return AskDefault(args);
}

// clang-format off
constexpr MessageEntry<GridHandler> messages[] = {
    { HGM_GETFIRSTCOL,   OnGetFirstCol },
    { HGM_SETFIRSTCOL,   OnSetFirstCol },
    { HGM_GETTOPRECORD,  OnGetTopRecord },
    { HGM_SETTOPRECORD,  OnSetTopRecord },
    { HGM_GETANCHOR,     OnGetAnchor },
    { HGM_SETANCHOR,     OnSetAnchor },
    { HGM_GETCURSOR,     OnGetCursor },
    { HGM_SETCURSOR,     OnSetCursor },
    { HGM_GETFLAGS,      OnGetFlags },
    { HGM_SETFLAGS,      OnSetFlags },
    { HGM_GETPROPOSED,   OnGetProposed },
    { HGM_SETPROPOSED,   OnSetProposed },
    { HGM_GETHPOS,       OnGetHPos },
    { HGM_GETVPOS,       OnGetVPos },
    { HGM_SETHPOS,       OnSetHPos },
    { HGM_SETVPOS,       OnSetVPos },
    { HGM_GETVMAX,       OnGetVMax },
    { HGM_GETHMAX,       OnGetHMax },
    { HGM_GETSELROWS,    OnGetSelRows },
    { HGM_GETSELCOUNT,   OnGetSelCount },
    { HGM_TOGGLEROW,     OnToggleRow },
    { HGM_KEYFIRST,      OnKeyMessage },
    { HGM_KEYLAST,       OnKeyMessage },
    { HGM_KEYNEW,        OnKeyMessage },
    { HGM_KEYUP,         OnKeyMessage },
    { HGM_KEYDOWN,       OnKeyMessage },
    { HGM_ISROWSELECTED, OnIsRowSelected },
    { HGM_GOTORECORD,    OnGotoRecord },
};
// clang-format on
constexpr auto handlers = ByNumber<firstGridMessage, lastGridMessage>(messages);

} // namespace

GridHandler HGFindPositionHandler(UINT message)
{
    return FindHandler<firstGridMessage>(handlers, message);
}
