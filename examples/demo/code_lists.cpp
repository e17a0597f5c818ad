// The sizes of animals: the file has their texts, and the cells their codes.
#include "code_lists.h"

namespace {

constexpr const char* sizeTitle = "Size";

struct CodedText {
    const char* text;
    WORD        code;
};

constexpr CodedText sizes[] = { { "Small", 1 }, { "Medium", 2 }, { "Large", 3 } };

} // namespace

void FillCodeLists(HWND grid)
{
    const LRESULT column = SendMessageA(grid, HGM_FINDFIELD, 0, reinterpret_cast<LPARAM>(sizeTitle));
    if (column < 0 || SendMessageA(grid, HGM_GETFIELDKIND, static_cast<WPARAM>(column), 0) != 'l') {
        return;
    }
    const HWND list = reinterpret_cast<HWND>(SendMessageA(grid, HGM_GETFIELDCHILD, static_cast<WPARAM>(column), 0));
    for (const CodedText& size : sizes) {
        HLAddItemEx(list, size.text, &size.code);
    }
}
