// The second names of data-list functions.
#include <widgets/widgets.h>

DataList* WINAPI HCDLCreate(int sortMode, char dataClass, char dataType, char class2, char type2, const char* format)
{
    return HDLCreate(sortMode, dataClass, dataType, class2, type2, format);
}

int WINAPI HCDLDestroy(DataList* dl)
{
    return HDLDestroy(dl);
}

int WINAPI HCDLEmpty(DataList* dl)
{
    return HDLEmpty(dl);
}

int WINAPI HCDLInsertItem(DataList* dl, int index, const void* data, const void* code)
{
    return HDLInsertItem(dl, index, data, code);
}

int WINAPI HCDLDeleteItem(DataList* dl, int index)
{
    return HDLDeleteItem(dl, index);
}

int WINAPI HCDLFindData(DataList* dl, int start, const void* data)
{
    return HDLFindData(dl, start, data);
}

int WINAPI HCDLFindCode(DataList* dl, int start, const void* code)
{
    return HDLFindCode(dl, start, code);
}

int WINAPI HCDLGetData(DataList* dl, int index, void* out)
{
    return HDLGetData(dl, index, out);
}

int WINAPI HCDLGetCode(DataList* dl, int index, void* out)
{
    return HDLGetCode(dl, index, out);
}

int WINAPI HCDLGetDataSize(DataList* dl, int index)
{
    return HDLGetDataSize(dl, index);
}
