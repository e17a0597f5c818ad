// Grid definitions from resources; files and transfer functions are exports.
#pragma once

#include <widgets/widgets.h>

// Loads the resource of that name and of type 300; null if it can't be found, loaded or read.
HGridData* HGLoadResource(HINSTANCE module, const char* name);
