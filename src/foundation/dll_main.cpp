// The entry point of widgets.dll.
#include "foundation/startup.h"

BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void*)
{
    if (reason == DLL_PROCESS_ATTACH) {
        LibraryAttach(module);
        WidgetsInit();
    } else if (reason == DLL_PROCESS_DETACH) {
        LibraryDetach();
    }
    return TRUE;
}
