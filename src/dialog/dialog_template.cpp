// Reads dialog templates in the classic form. Each step takes its bytes if they are there and fails if not.
#include "dialog/dialog_template.h"

#include "foundation/memory.h"

namespace {

constexpr DWORD  fontFollows = 0x40;      // DS_SETFONT
constexpr WORD   atomFollows = 0xFFFF;    // in place of a class name
constexpr BYTE   firstSystemClass = 0x80; // codes of the system's classes go on from here
constexpr size_t itemAlignment = 4;
constexpr int    pointsPerInch = 72;

constexpr const char* systemClasses[] = { "BUTTON", "EDIT", "STATIC", "LISTBOX", "SCROLLBAR", "COMBOBOX" };

template <typename T>
bool Take(TemplateBytes* bytes, T* out)
{
    if (bytes->size - bytes->at < sizeof(T)) {
        return false;
    }
    *out = LoadAs<T>(bytes->first + bytes->at);
    bytes->at += sizeof(T);
    return true;
}

bool TakeNumber(TemplateBytes* bytes, int* out)
{
    SHORT      number = 0;
    const bool taken = Take(bytes, &number);
    *out = number;
    return taken;
}

bool Skip(TemplateBytes* bytes, size_t count)
{
    if (bytes->size - bytes->at < count) {
        return false;
    }
    bytes->at += count;
    return true;
}

bool Align(TemplateBytes* bytes)
{
    return Skip(bytes, (itemAlignment - bytes->at % itemAlignment) % itemAlignment);
}

// Bounded: a text without an end fails, where its bytes end.
bool TakeText(TemplateBytes* bytes, TemplateText* out)
{
    *out = { bytes->first + bytes->at, 0 };
    for (WORD character = 0; Take(bytes, &character);) {
        if (!character) {
            return true;
        }
        ++out->length;
    }
    return false;
}

const char* SystemClass(WORD code)
{
    // Settled: the low byte alone decides, also of the first character of a name.
    const size_t index = static_cast<size_t>(LOBYTE(code)) - firstSystemClass;
    return index < sizeof systemClasses / sizeof *systemClasses ? systemClasses[index] : nullptr;
}

bool TakeClass(TemplateBytes* bytes, TemplateItem* out)
{
    const size_t start = bytes->at;
    WORD         code = 0;
    if (!Take(bytes, &code)) {
        return false;
    }
    if (code == atomFollows) {
        out->className = { bytes->first + bytes->at, 0 };
        const bool taken = Take(bytes, &code);
        out->systemClass = SystemClass(code);
        return taken;
    }
    out->systemClass = SystemClass(code);
    bytes->at = start;
    return TakeText(bytes, &out->className);
}

bool TakePlace(TemplateBytes* bytes, TemplateItem* out)
{
    return TakeNumber(bytes, &out->x) && TakeNumber(bytes, &out->y) && TakeNumber(bytes, &out->cx) &&
           TakeNumber(bytes, &out->cy);
}

bool TakeData(TemplateBytes* bytes, TemplateItem* out)
{
    WORD size = 0;
    if (!Take(bytes, &size)) {
        return false;
    }
    out->data = bytes->first + bytes->at;
    return Skip(bytes, size);
}

bool TakeItem(TemplateBytes* bytes, TemplateItem* out)
{
    DWORD extendedStyle = 0; // no item gets it
    return Align(bytes) && Take(bytes, &out->style) && Take(bytes, &extendedStyle) && TakePlace(bytes, out) &&
           Take(bytes, &out->id) && TakeClass(bytes, out) && TakeText(bytes, &out->title) && TakeData(bytes, out);
}

bool TakeFont(TemplateBytes* bytes, TemplateHeader* out)
{
    out->points = 0;
    out->face = {};
    return !NamesFont(*out) || (Take(bytes, &out->points) && TakeText(bytes, &out->face));
}

bool TakeSize(TemplateBytes* bytes, TemplateHeader* out)
{
    constexpr size_t position = 2 * sizeof(WORD); // of the dialog, which the window has already
    return Skip(bytes, position) && TakeNumber(bytes, &out->cx) && TakeNumber(bytes, &out->cy);
}

} // namespace

WORD TemplateText::At(size_t index) const
{
    return LoadAs<WORD>(first + index * sizeof(WORD));
}

int ReadTemplateHeader(TemplateBytes* bytes, TemplateHeader* out)
{
    DWORD        extendedStyle = 0;
    TemplateText menu;
    TemplateText className;
    return Take(bytes, &out->style) && Take(bytes, &extendedStyle) && Take(bytes, &out->count) &&
           TakeSize(bytes, out) && TakeText(bytes, &menu) && TakeText(bytes, &className) &&
           TakeText(bytes, &out->title) && TakeFont(bytes, out);
}

void ReadTemplateItems(TemplateBytes* bytes, const TemplateHeader& header, TemplateItemOperation operation,
                       void* context)
{
    // Settled: the counter has eight bits, so more than 255 items never come to an end by their number.
    // Bounded: they end with the bytes.
    TemplateItem item;
    for (BYTE i = 0; i < header.count && TakeItem(bytes, &item); ++i) {
        operation(item, context);
    }
}

bool NamesFont(const TemplateHeader& header)
{
    return (header.style & fontFollows) != 0;
}

int TemplateFontHeight(const TemplateHeader& header, int dpi)
{
    return -(header.points * dpi) / pointsPerInch;
}

PixelPlace PlaceOf(const TemplateItem& item, DialogUnits units)
{
    return { item.x * units.x / 4, item.y * units.y / 8, item.cx * units.x / 4, item.cy * units.y / 8 };
}

RECT SizeOf(const TemplateHeader& header, DialogUnits units)
{
    return { 0, 0, header.cx * units.x / 4, header.cy * units.y / 8 };
}
