// Stand-ins for what the data side of a grid asks of its window. A test sets what they answer and sees how often they
// were called.
#pragma once

#include <widgets/widgets.h>

#include <functional>

struct GridFakes {
    // Set by tests
    std::function<int(HGridCtl*)>                    onDetachEditor;
    std::function<int(HGridCtl*, const void*, bool)> onAddRow;

    // Seen by tests
    int detaches = 0;
    int editorLoads = 0;
    int selectionRedraws = 0;
    int invalidations = 0;
    int rowsAdded = 0;
};

GridFakes& Fakes();
// Back to the start values above.
void FakesReset();
