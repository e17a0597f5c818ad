// The stand-ins of grid_fakes.h: each counts its calls and answers what the test has set.
#include "grid_fakes.h"

#include "griddata/grid_services.h"

namespace {

GridFakes gFakes;

} // namespace

GridFakes& Fakes()
{
    return gFakes;
}

void FakesReset()
{
    gFakes = GridFakes();
}

int HGDetachEditor(HGridCtl* ctl)
{
    ++gFakes.detaches;
    return gFakes.onDetachEditor ? gFakes.onDetachEditor(ctl) : 1;
}

int HGLoadEditor(HGridCtl*)
{
    ++gFakes.editorLoads;
    return 1;
}

void HGRedrawSelection(HGridCtl*)
{
    ++gFakes.selectionRedraws;
}

void HGInvalidateCell(HGridCtl*, int, int)
{
    ++gFakes.invalidations;
}

void HGInvalidateRange(HGridCtl*, int, int, int, int)
{
    ++gFakes.invalidations;
}

int HGItemSize(HWND, int)
{
    return 0; // the lists of these tests have short items
}

int HGItemCodeSize(HWND, int)
{
    return 0; // the lists of these tests have short items
}

int HGAddRow(HGridCtl* ctl, const void* data, bool markNew)
{
    ++gFakes.rowsAdded;
    return gFakes.onAddRow ? gFakes.onAddRow(ctl, data, markNew) : 0;
}
