// A host in C++17.
#include "dll/host_header.h"

int CheckHeaderInCxx17();

int CheckHeaderInCxx17()
{
#if defined(_MSVC_LANG) ? _MSVC_LANG != 201703L : __cplusplus != 201703L
    return -1;
#else
    return CheckHeader();
#endif
}
