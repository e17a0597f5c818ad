// Stand-ins for what block and rows of a grid ask of its window: the editor, and the layout after a change of totals.
#pragma once

#include <widgets/widgets.h>

#include <functional>

struct GridWindowFakes {
    // Set by tests
    std::function<void(HGridCtl*)> onRecalc;
    std::function<int(HGridCtl*)>  onCommitEdit;
    std::function<int(HGridCtl*)>  onReadEditor;
};

GridWindowFakes& WindowFakes();
// Back to the start values above.
void WindowFakesReset();
