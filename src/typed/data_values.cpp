// Stored values as bytes: copied and told apart without a look at what they mean.
#include "typed/data_types.h"

#include <cstring>

int HCopyValue(void* dest, const void* src, char dataClass, char dataType, int maxSize)
{
    if (!dest || !src) {
        return 0;
    }
    const int size = GetDataSize(dataClass, dataType);
    if (size < 0) {
        return _fstrnzcpy(static_cast<char*>(dest), static_cast<const char*>(src), maxSize);
    }
    std::memmove(dest, src, static_cast<size_t>(size));
    return size;
}

int HValuesDiffer(const void* a, const void* b, char dataClass, char dataType)
{
    if (!a || !b) {
        return 0;
    }
    const int  size = GetDataSize(dataClass, dataType);
    const bool differ = size < 0 ? std::strcmp(static_cast<const char*>(a), static_cast<const char*>(b)) != 0
                                 : std::memcmp(a, b, static_cast<size_t>(size)) != 0;
    return differ ? 1 : 0;
}
