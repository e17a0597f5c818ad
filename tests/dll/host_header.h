/* What both hosts, in C11 and in C++17, check of widgets.h: 0, or the line of the first check that failed. */
#ifndef TESTS_DLL_HOST_HEADER_H
#define TESTS_DLL_HOST_HEADER_H

#include <widgets/widgets.h>

#include <stddef.h>

#define CHECK(condition)                                                                                               \
    if (!(condition)) {                                                                                                \
        return __LINE__;                                                                                               \
    }

static int CheckHeader(void)
{
    HLList* list = HLListCreate(-1, NULL, NULL, NULL, NULL, NULL, 1);
    CHECK(list != NULL)
    CHECK(HLListAdd(list, "second") == 0)
    CHECK(HLListAdd(list, "first") == 0)
    CHECK(list->cItems == 2)
    CHECK(HLListDestroy(list) == 1)
    CHECK(sizeof(DateTimeRec) == 10)
    CHECK(sizeof(IntlSettings) == 64)
    CHECK(CF_NULL == 0x4000)
    if (sizeof(void*) == 4) {
        CHECK(sizeof(ControlHeader) == 22)
        CHECK(offsetof(ControlHeader, dwStyle) == 18)
        CHECK(offsetof(HGridCtl, hBkBrush) == 18)
        CHECK(offsetof(HGridCtl, pData) == 52)
        CHECK(sizeof(Stream) == 44)
        CHECK(offsetof(Stream, nPos) == 28)
        CHECK(sizeof(DataList) == 20)
    }
    CHECK(offsetof(HGridCtl, wFlags) == offsetof(ControlHeader, wFlags))
    return 0;
}

#endif
