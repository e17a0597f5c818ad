// The default description texts of buttons, put together from the library's string resources.
#include "foundation/startup.h"

#include <cstring>

namespace {

constexpr UINT noImages = 0;

struct KindStrings {
    int  kind;
    UINT layout; // string resources
    UINT caption;
    UINT images;
};
constexpr KindStrings kindStrings[] = {
    { 0, 1254, 1255, noImages },
    { 1, 1254, 1255, noImages },
    { 2, 1262, 1258, 1251 },
    { 4, 1253, 1259, 1252 },
};

const KindStrings* FindKind(int kind)
{
    for (const KindStrings& row : kindStrings) {
        if (row.kind == kind) {
            return &row;
        }
    }
    return nullptr;
}

// A text that grows in a buffer.
struct Target {
    char* buffer;
    int   size;
    int   length;
};

// Nothing is loaded into a buffer that a caption has filled already.
void AppendString(Target* target, UINT id)
{
    const int room = target->size - target->length;
    if (room > 1) {
        target->length += LoadStringA(hInstance, id, target->buffer + target->length, room);
    }
}

// Settled: a caption of the caller's is appended whole; the caller knows that there is room for it.
void AppendCaption(Target* target, const char* caption)
{
    const size_t length = std::strlen(caption);
    std::memcpy(target->buffer + target->length, caption, length + 1);
    target->length += static_cast<int>(length);
}

// Bounded: behind a caption that takes all of the size there is no room that the caller promised, so even the
// separator stays away.
void AppendImages(Target* target, UINT id)
{
    if (id == noImages || target->size - target->length < 2) {
        return;
    }
    target->buffer[target->length++] = ';';
    target->buffer[target->length] = 0;
    AppendString(target, id);
}

} // namespace

int WINAPI LoadDefTypeText(int kind, char* buffer, int size, const char* caption)
{
    const KindStrings* const strings = FindKind(kind);
    if (!strings || !buffer || size < 1) {
        return 0;
    }
    Target target = { buffer, size, 0 };
    buffer[0] = 0;
    AppendString(&target, strings->layout);
    if (caption) {
        AppendCaption(&target, caption);
    } else {
        AppendString(&target, strings->caption);
    }
    AppendImages(&target, strings->images);
    return target.length;
}
