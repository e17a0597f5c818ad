// The hooks for all threads that this program's code sets and takes off. They are set for their own thread alone, so
// that the library that is linked into a test program isn't carried into other programs.
#pragma once

#include <windows.h>

struct HookSet {
    int       kind; // WH_MOUSE
    HOOKPROC  proc;
    HINSTANCE module;
};

int     LiveHooks();
HookSet LastHook();
void    FailHooks(bool fail); // from now on none can be set
