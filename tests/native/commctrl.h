/* The small <commctrl.h> of the native build: the handles that shared records and variables name. */
#ifndef TESTS_NATIVE_COMMCTRL_H
#define TESTS_NATIVE_COMMCTRL_H

#include <windows.h>

typedef struct _IMAGELIST* HIMAGELIST;

#endif
