// The stand-ins of grid_window_fakes.h: each does what the test has set.
#include "grid_window_fakes.h"

#include "gridctl/grid_control.h"

namespace {

GridWindowFakes gFakes;

} // namespace

GridWindowFakes& WindowFakes()
{
    return gFakes;
}

void WindowFakesReset()
{
    gFakes = GridWindowFakes();
}

void HGRecalc(HGridCtl* ctl)
{
    if (gFakes.onRecalc) {
        gFakes.onRecalc(ctl);
    }
}

int HGCommitEdit(HGridCtl* ctl)
{
    return gFakes.onCommitEdit ? gFakes.onCommitEdit(ctl) : 1;
}

int HGReadEditor(HGridCtl* ctl)
{
    return gFakes.onReadEditor ? gFakes.onReadEditor(ctl) : 1;
}

// The rig has no cell controls, so no cell is edited.
bool HGIsEditable(HGridCtl*, int)
{
    return false;
}

bool HGIsInEdit(const HGridCtl*)
{
    return false;
}

void HGTakeEditor(HGridCtl*) {}
