// Each message of the grid by its number, as a host that was built long ago sends it.
#include "support/window_test.h"

#include <cstring>

namespace {

HGField* gAmount; // the column of that name
HBRUSH   gParentBrush;

// Three columns, "Name", "Amount" and a hidden "Note", over four rows of 20 pixels; the widths are 80.
class DllGridMessages : public WindowTest {
protected:
    DllGridMessages()
    {
        SetGridAppDPIScaling(0);
        gParentBrush = static_cast<HBRUSH>(GetStockObject(LTGRAY_BRUSH));
        parent.OnMessage(HGM_CTLCOLOR, [](WPARAM, LPARAM) { return reinterpret_cast<LRESULT>(gParentBrush); });
    }
    ~DllGridMessages() override
    {
        SetGridAppDPIScaling(1);
    }

    void Make()
    {
        constexpr DWORD style = HGS_COLHEADERS | HGS_ROWHEADERS | HGS_COLMAP;
        HGridData* const data = HGridCreate("orders", style, 0, 0, 20, 40, 20, 4);
        HGInsertFld(data, HGFieldCreate("Name", 0, 80, 0, 's', 's', 0, 0, 11, 'e', 0, nullptr, 0), 0);
        gAmount = HGFieldCreate("Amount", 0, 80, 7, 'n', 'l', 'n', 's', 0, 'e', HES_RIGHT, "*0", 0);
        HGInsertFld(data, gAmount, 1);
        HGInsertFld(data, HGFieldCreate("Note", HFF_HIDDEN, 80, 0, 's', 's', 0, 0, 5, 'e', 0, nullptr, 0), 2);
        grid = Create("HGrid", "");
        ASSERT_EQ(1, SendPtr(grid, HGM_SETDATA, 1, data));
        HGSetCellText(grid, 1, 2, "42");
        PumpPending();
    }

    HWND grid = nullptr;
};

LRESULT Ask(HWND grid, UINT number, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return SendMessageA(grid, number, wParam, lParam);
}

LRESULT AskPtr(HWND grid, UINT number, WPARAM wParam, const void* lParam)
{
    return SendMessageA(grid, number, wParam, reinterpret_cast<LPARAM>(lParam));
}

const HGridCtl* RecordOf(HWND grid)
{
    return reinterpret_cast<const HGridCtl*>(Ask(grid, 1147));
}

// The length of a text that a message writes, if it is the one expected; else -1.
LRESULT Written(HWND grid, UINT number, WPARAM wParam, const char* expected)
{
    char text[32] = "";
    AskPtr(grid, number, wParam, text);
    return std::strcmp(text, expected) == 0 ? static_cast<LRESULT>(std::strlen(text)) : -1;
}

int CALLBACK NoRecords(HWND, int, int, void*)
{
    return 0;
}

struct MessageRow {
    UINT    number;
    LRESULT (*ask)(HWND grid, UINT n); // sends it, and gives its result or what it has changed
    LRESULT expected;
};

constexpr LPARAM cell12 = (2 << 16) | 1; // column 1, row 2

// clang-format off
const MessageRow rows[] = {
    // Appearance and text
    { 1124, [](HWND g, UINT n) { return Ask(g, n); }, 0 },
    { 1125, [](HWND g, UINT n) { const HGDIOBJ gray = GetStockObject(GRAY_BRUSH); Ask(g, n, reinterpret_cast<WPARAM>(gray));
                                 return Ask(g, 1124) - reinterpret_cast<LRESULT>(gray); }, 0 },
    { 1448, [](HWND g, UINT n) { const LRESULT brush = Ask(g, n); return brush - reinterpret_cast<LRESULT>(gParentBrush); }, 0 },
    { 1151, [](HWND g, UINT n) { return Ask(g, n) & HGS_COLMAP; }, HGS_COLMAP },
    { 1152, [](HWND g, UINT n) { return Ask(g, n, 0, WS_CHILD | WS_VISIBLE | HGS_NOLINES); }, 1 },
    { 1380, [](HWND g, UINT n) { Ask(g, n, 1, HGS_NOLINES); return Ask(g, 1151) & HGS_NOLINES; }, HGS_NOLINES },
    { 1354, [](HWND g, UINT n) { return Written(g, n, 32, "orders"); }, 6 },
    { 1355, [](HWND g, UINT n) { AskPtr(g, n, 0, "bills"); return Written(g, 1354, 32, "bills"); }, 5 },
    // Data and layout
    { 1324, [](HWND g, UINT n) { return Ask(g, n); }, 0 },
    { 1325, [](HWND g, UINT n) { return Ask(g, n) - reinterpret_cast<LRESULT>(RecordOf(g)->pData); }, 0 },
    { 1326, [](HWND g, UINT n) { Ask(g, n, 1); return Ask(g, 1341); }, 0 },
    { 1329, [](HWND g, UINT n) { UpdateWindow(g); Ask(g, n, 1); return LRESULT{ GetUpdateRect(g, nullptr, FALSE) != 0 }; }, 1 },
    { 1415, [](HWND g, UINT n) { return Ask(g, n); }, 1 },
    { 1334, [](HWND g, UINT n) { return Ask(g, n); }, 20 },
    { 1335, [](HWND g, UINT n) { Ask(g, n, 31, 1); return Ask(g, 1334); }, 31 },
    { 1336, [](HWND g, UINT n) { return Ask(g, n); }, 40 },
    { 1337, [](HWND g, UINT n) { Ask(g, n, 51, 1); return Ask(g, 1336); }, 51 },
    { 1338, [](HWND g, UINT n) { return Ask(g, n); }, 20 },
    { 1339, [](HWND g, UINT n) { Ask(g, n, 33, 1); return Ask(g, 1338); }, 33 },
    { 1451, [](HWND g, UINT n) { Ask(g, 1339, 33); Ask(g, n); return Ask(g, 1338); }, 20 },
    { 1340, [](HWND g, UINT n) { return Ask(g, n); }, 3 },
    { 1341, [](HWND g, UINT n) { return Ask(g, n); }, 4 },
    { 1346, [](HWND g, UINT n) { return Ask(g, n); }, 0 },
    { 1347, [](HWND g, UINT n) { Ask(g, n, 9); return Ask(g, 1346); }, 3 },
    { 1250, [](HWND g, UINT n) { return Ask(g, n); }, 1 },
    { 1251, [](HWND g, UINT n) { return Ask(g, n, 0, 3) * 10 + Ask(g, 1250); }, 13 },
    { 1450, [](HWND g, UINT n) { Ask(g, n, 1); return LRESULT{ RecordOf(g)->pData->fEndStop }; }, 1 },
    // Position and selection
    { 1342, [](HWND g, UINT n) { return Ask(g, n); }, 0 },
    { 1343, [](HWND g, UINT n) { return Ask(g, n, 0); }, 0 },
    { 1344, [](HWND g, UINT n) { return Ask(g, n); }, 0 },
    { 1345, [](HWND g, UINT n) { for (int i = 0; i < 40; ++i) { Ask(g, 1360); } Ask(g, 1329); return Ask(g, n, 3, 9); }, 9 },
    { 1348, [](HWND g, UINT n) { Ask(g, 1351, 0, cell12); return Ask(g, n); }, cell12 },
    { 1349, [](HWND g, UINT n) { Ask(g, n, 0, cell12); return Ask(g, 1348); }, cell12 },
    { 1350, [](HWND g, UINT n) { DWORD cell = 0; Ask(g, 1351, 0, cell12); AskPtr(g, n, 0, &cell); return LRESULT(cell); }, cell12 },
    { 1351, [](HWND g, UINT n) { Ask(g, n, 0, cell12); return Ask(g, 1350); }, cell12 },
    { 1385, [](HWND g, UINT n) { return Ask(g, n, 0, cell12); }, 1 },
    { 1384, [](HWND g, UINT n) { Ask(g, 1385, 0, cell12); return Ask(g, n); }, cell12 },
    { 1353, [](HWND g, UINT n) { Ask(g, n, 1, HGC_RANGE); return Ask(g, 1352) & HGC_RANGE; }, HGC_RANGE },
    { 1352, [](HWND g, UINT n) { return Ask(g, n) & HGC_VIRTUAL; }, 0 },
    { 1386, [](HWND g, UINT n) { return Ask(g, n); }, 0 },
    { 1387, [](HWND g, UINT n) { return Ask(g, n); }, 0 },
    { 1388, [](HWND g, UINT n) { Ask(g, 1439, 0, 900); Ask(g, 1329); return Ask(g, n, 25); }, 25 },
    { 1389, [](HWND g, UINT n) { for (int i = 0; i < 40; ++i) { Ask(g, 1360); } Ask(g, 1329); return Ask(g, n, 7); }, 7 },
    { 1390, [](HWND g, UINT n) { return Ask(g, n); }, 0 },
    { 1391, [](HWND g, UINT n) { Ask(g, 1439, 0, 900); Ask(g, 1329); return Ask(g, n); }, 980 },
    { 1392, [](HWND g, UINT n) { int found[4] = { -1 }; Ask(g, 1351, 0, cell12); return AskPtr(g, n, 4, found) * 10 + found[0]; }, 12 },
    { 1393, [](HWND g, UINT n) { Ask(g, 1351, 0, cell12); return Ask(g, n); }, 1 },
    { 1394, [](HWND g, UINT n) { Ask(g, 1380, 1, HGS_ROWSELECT); return Ask(g, n, 3) * 10 + Ask(g, 1411, 3); }, 11 },
    { 1411, [](HWND g, UINT n) { Ask(g, 1351, 0, cell12); return Ask(g, n, 2) * 10 + Ask(g, n, 3); }, 10 },
    { 1395, [](HWND g, UINT n) { Ask(g, 1351, 0, cell12); Ask(g, n); return Ask(g, 1350); }, 1 },
    { 1396, [](HWND g, UINT n) { Ask(g, 1351, 0, 1); Ask(g, n); return Ask(g, 1350); }, (3 << 16) | 1 },
    { 1397, [](HWND g, UINT n) { Ask(g, 1380, 1, HGS_NEWROW); Ask(g, n); return LRESULT{ HIWORD(Ask(g, 1350)) }; }, 3 },
    { 1398, [](HWND g, UINT n) { Ask(g, 1351, 0, cell12); Ask(g, n); return Ask(g, 1350); }, (1 << 16) | 1 },
    { 1399, [](HWND g, UINT n) { Ask(g, 1351, 0, cell12); Ask(g, n); return Ask(g, 1350); }, (3 << 16) | 1 },
    { 1414, [](HWND g, UINT n) { Ask(g, n, 0, 3); return LRESULT{ HIWORD(Ask(g, 1350)) }; }, 3 },
    // Rows
    { 1360, [](HWND g, UINT n) { return Ask(g, n); }, 5 },
    { 1361, [](HWND g, UINT n) { return Ask(g, n, 1) * 10 + Ask(g, 1341); }, 13 },
    { 1362, [](HWND g, UINT n) { return Ask(g, n, 1) * 10 + Ask(g, 1341); }, 15 },
    { 1363, [](HWND g, UINT n) { Ask(g, n, 2, 0); return Written(g, 1454, 1, "42"); }, 2 },
    { 1364, [](HWND g, UINT n) { return Ask(g, n); }, 0 },
    { 1365, [](HWND g, UINT n) { Ask(g, n, 5, 8); return Ask(g, 1364); }, 8 },
    { 1368, [](HWND g, UINT n) { char row[64] = {}; return AskPtr(g, n, 0, row); }, 1 },
    { 1406, [](HWND g, UINT n) { char row[64] = {}; return AskPtr(g, n, 3, row) * 10 + AskPtr(g, n, 4, row); }, 10 },
    { 1407, [](HWND g, UINT n) { char row[64] = {}; AskPtr(g, 1406, 2, row); AskPtr(g, n, 0, row); return Written(g, 1454, 1, "42"); }, 2 },
    { 1408, [](HWND g, UINT n) { return Ask(g, n); }, 0 },
    { 1409, [](HWND g, UINT n) { static char row[64] = {}; AskPtr(g, n, 0, row); return Ask(g, 1408) - reinterpret_cast<LRESULT>(row); }, 0 },
    { 1410, [](HWND g, UINT n) { return Ask(g, n); }, 11 + 4 + 5 },
    { 1405, [](HWND g, UINT n) { return Ask(g, n, 1, MAKELPARAM(1, HGR_SELECTED)) & HGR_SELECTED; }, HGR_SELECTED },
    { 1404, [](HWND g, UINT n) { return Ask(g, n, 2) & HGR_DIRTY; }, HGR_DIRTY },
    { 1423, [](HWND g, UINT n) { return LRESULT{ Ask(g, n, 2 << 16) != 0 }; }, 1 },
    { 1383, [](HWND g, UINT n) { return Ask(g, n, 0, 3) * 10 + Ask(g, n, 0, 9); }, 29 },
    { 1373, [](HWND g, UINT n) { return Ask(g, n); }, 0 },
    { 1374, [](HWND g, UINT n) { AskPtr(g, n, 0, reinterpret_cast<const void*>(NoRecords));
                                 return Ask(g, 1373) - reinterpret_cast<LRESULT>(NoRecords); }, 0 },
    { 1375, [](HWND g, UINT n) { return Ask(g, n); }, 4 },
    { 1376, [](HWND g, UINT n) { return Ask(g, n, 0, 100); }, 0 },
    { 1377, [](HWND g, UINT n) { return Ask(g, n); }, 4 },
    { 1378, [](HWND g, UINT n) { return Ask(g, n, 0, 100); }, 0 },
    { 1412, [](HWND g, UINT n) { return Ask(g, n, 0, 1) * 10 + RecordOf(g)->nSortCol; }, 11 },
    { 1413, [](HWND g, UINT n) { return Ask(g, n, 0, 2) * 10 + RecordOf(g)->nSortCol2; }, 12 },
    { 1422, [](HWND g, UINT n) { Ask(g, n, MAKEWPARAM(1, 0)); return Written(g, 1454, 1, "42"); }, 2 },
    { 1454, [](HWND g, UINT n) { return Written(g, n, cell12, "42"); }, 2 },
    // Columns, by index
    { 1356, [](HWND g, UINT n) { return AskPtr(g, n, 0, HGFieldCreate("X", 0, 40, 0, 'n', 'l', 0, 0, 0, 'e', 0, nullptr, 0)); }, 3 },
    { 1357, [](HWND g, UINT n) { return Ask(g, n, 2) * 10 + Ask(g, 1340); }, 12 },
    { 1358, [](HWND g, UINT n) { return AskPtr(g, n, 1, HGFieldCreate("X", 0, 40, 0, 'n', 'l', 0, 0, 0, 'e', 0, nullptr, 0)) * 10 + Ask(g, 1340); }, 14 },
    { 1359, [](HWND g, UINT n) { Ask(g, n, 1, 0); return AskPtr(g, 1370, 0, "Amount"); }, 0 },
    { 1370, [](HWND g, UINT n) { return AskPtr(g, n, 0, "Amount") * 10 + AskPtr(g, n, 0, "none"); }, 9 },
    { 1455, [](HWND g, UINT n) { return AskPtr(g, n, 0, "Amount") * 10 + AskPtr(g, n, 0, "Note"); }, 9 },
    { 1371, [](HWND g, UINT n) { int order[3] = {}; return AskPtr(g, n, 0, order) * 10 + order[1]; }, 11 },
    { 1372, [](HWND g, UINT n) { const int order[3] = { 1, 0, 2 }; AskPtr(g, n, 0, order); return AskPtr(g, 1370, 0, "Name"); }, 1 },
    { 1381, [](HWND g, UINT n) { return Ask(g, n, 1); }, 1 },
    { 1382, [](HWND g, UINT n) { return Ask(g, n, 2) * 10 + Ask(g, n, 3); }, 19 },
    // Columns, by position
    { 1252, [](HWND g, UINT n) { return Ask(g, n, 1); }, 0 },
    { 1253, [](HWND g, UINT n) { Ask(g, 1251, 0, 2); return Ask(g, n, 1, 1) * 10 + Ask(g, 1252, 1); }, 11 },
    { 1424, [](HWND g, UINT n) { return Ask(g, n, 1) - reinterpret_cast<LRESULT>(gAmount->pCtl->hWnd); }, 0 },
    { 1425, [](HWND g, UINT n) { return Ask(g, n, 1); }, HES_RIGHT | HES_EDITRIGHT }, // a right-aligned column is edited so too
    { 1426, [](HWND g, UINT n) { return Ask(g, n, 1); }, 'e' },
    { 1427, [](HWND g, UINT n) { return Ask(g, n, 1); }, 'n' },
    { 1428, [](HWND g, UINT n) { return Ask(g, n, 1); }, 's' },
    { 1429, [](HWND g, UINT n) { return Ask(g, n, 1); }, 'n' },
    { 1430, [](HWND g, UINT n) { return Ask(g, n, 1); }, 4 },
    { 1431, [](HWND g, UINT n) { return Ask(g, n, 1); }, 'l' },
    { 1432, [](HWND g, UINT n) { return Written(g, n, 1, "*0"); }, 2 },
    { 1433, [](HWND g, UINT n) { AskPtr(g, n, 1, "*0.0"); return Ask(g, 1434, 1); }, 4 },
    { 1434, [](HWND g, UINT n) { return Ask(g, n, 1); }, 2 },
    { 1435, [](HWND g, UINT n) { return Written(g, n, 1, "Amount"); }, 6 },
    { 1436, [](HWND g, UINT n) { return Ask(g, n, 1); }, 6 },
    { 1437, [](HWND g, UINT n) { AskPtr(g, n, 1, "Sum"); return Ask(g, 1436, 1); }, 3 },
    { 1438, [](HWND g, UINT n) { return Ask(g, n, 1); }, 80 },
    { 1439, [](HWND g, UINT n) { Ask(g, n, 1, 123); return Ask(g, 1438, 1); }, 123 },
    { 1440, [](HWND g, UINT n) { return Ask(g, n, 1); }, 7 },
    { 1441, [](HWND g, UINT n) { Ask(g, n, 1, 9); return Ask(g, 1440, 1); }, 9 },
    { 1442, [](HWND g, UINT n) { return Ask(g, n, 2) & HFF_HIDDEN; }, HFF_HIDDEN },
    { 1443, [](HWND g, UINT n) { Ask(g, n, 1, MAKELPARAM(1, HFF_READONLY)); return Ask(g, 1442, 1) & HFF_READONLY; }, HFF_READONLY },
    { 1446, [](HWND g, UINT n) { return Ask(g, n, 1); }, 11 },
    { 1447, [](HWND g, UINT n) { return Ask(g, n, 1); }, 0 },
    { 1449, [](HWND g, UINT n) { Ask(g, n, 1); return LRESULT{ gAmount->fBold }; }, 1 },
    { 1452, [](HWND g, UINT n) { return Written(g, n, 1, "Amount"); }, 6 },
    { 1453, [](HWND g, UINT n) { return Ask(g, n, 1); }, 6 },
};
// clang-format on

TEST_F(DllGridMessages, EachNumberDoesWhatItsNameSays)
{
    for (const MessageRow& row : rows) {
        SCOPED_TRACE(row.number);
        ASSERT_NO_FATAL_FAILURE(Make());
        EXPECT_EQ(row.expected, row.ask(grid, row.number));
        DestroyWindow(grid);
    }
}

} // namespace
