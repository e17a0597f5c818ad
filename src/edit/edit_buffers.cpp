// The buffers of an edit control: value and text, in blocks that grow while keeping their contents.
#include "edit/edit_internal.h"
#include "foundation/memory.h"
#include "typed/data_types.h"

#include <algorithm>

namespace {

// A block of newSize bytes that begins with what fits of the old one; null without memory.
void* Resized(const void* old, int oldSize, int newSize)
{
    void* const block = HBlockAlloc(static_cast<size_t>(newSize));
    if (block && old) {
        std::memcpy(block, old, static_cast<size_t>(std::min(oldSize, newSize)));
    }
    return block;
}

void CopyText(char* dest, const char* src, int size)
{
    if (size <= 0) {
        return;
    }
    const size_t length = std::min(std::strlen(src), static_cast<size_t>(size) - 1);
    std::memmove(dest, src, length);
    dest[length] = 0;
}

} // namespace

char* MakeFormat(const char* format, size_t used)
{
    const size_t length = std::strlen(format);
    char* const  block = static_cast<char*>(HBlockAlloc(length + 1 + used + 1));
    if (block) {
        std::memcpy(block, format, length);
        std::memcpy(block + length + 1, format, used);
    }
    return block;
}

void FreeBuffers(HEditCtl* ctl)
{
    HBlockFree(ctl->pData);
    HBlockFree(ctl->pszText);
    HBlockFree(ctl->pszFormat);
    HBlockFree(ctl->pszEmpty);
    ctl->pData = nullptr;
    ctl->pszText = nullptr;
    ctl->pszFormat = nullptr;
    ctl->pszEmpty = nullptr;
}

bool ResizeBuffers(HEditCtl* ctl, int size, const void* value)
{
    char* const data = static_cast<char*>(HBlockAlloc(static_cast<size_t>(size)));
    char* const text = static_cast<char*>(Resized(ctl->pszText, ctl->cbText, size));
    if (!data || !text) {
        HBlockFree(data);
        HBlockFree(text);
        return false;
    }
    if (value) {
        CopyText(data, static_cast<const char*>(value), size);
    }
    text[size - 1] = 0;
    HBlockFree(ctl->pData);
    HBlockFree(ctl->pszText);
    ctl->pData = data;
    ctl->pszText = text;
    ctl->cbData = size;
    ctl->cbText = size;
    return true;
}

// A block that a failure has left missing is made here too.
bool GrowText(HEditCtl* ctl, int size)
{
    if (ctl->pszText && size <= ctl->cbText) {
        return true;
    }
    const int wanted = std::max(size, static_cast<int>(ctl->cbText));
    char* const text = static_cast<char*>(Resized(ctl->pszText, ctl->cbText, wanted));
    if (!text) {
        return false;
    }
    HBlockFree(ctl->pszText);
    ctl->pszText = text;
    ctl->cbText = wanted;
    return true;
}

bool GrowData(HEditCtl* ctl, int size)
{
    if (ctl->pData && size <= ctl->cbData) {
        return true;
    }
    const int wanted = std::max(size, static_cast<int>(ctl->cbData));
    void* const data = Resized(ctl->pData, ctl->cbData, wanted);
    if (!data) {
        return false;
    }
    HBlockFree(ctl->pData);
    ctl->pData = data;
    ctl->cbData = wanted;
    return true;
}

void CopyValue(const HEditCtl* ctl, void* dest, const void* src)
{
    HCopyValue(dest, src, ctl->cClass, ctl->cType, ctl->cbData);
}
