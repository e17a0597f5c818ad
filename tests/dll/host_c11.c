/* A host in C11. */
#include "dll/host_header.h"

int CheckHeaderInC11(void);

int CheckHeaderInC11(void)
{
#if __STDC_VERSION__ < 201112L || __STDC_VERSION__ > 201710L
    return -1;
#else
    return CheckHeader();
#endif
}
