// Reads any bytes as a dialog template. What comes of it lies inside the bytes, in as many items as they have room for.
#include "dialog/dialog_template.h"

#include "fuzz_input.h"

#include <cstdint>

namespace {

constexpr size_t smallestItem = 24; // with an empty class and title

struct Walk {
    const uint8_t* first;
    const uint8_t* end;
    size_t         items;
};

// Reads each character, so that the sanitizer sees the text.
void RequireText(const Walk& walk, const TemplateText& text)
{
    Require(text.length == 0 || (text.first >= walk.first && text.first < walk.end));
    for (size_t i = 0; i < text.length; ++i) {
        Require(text.At(i) != 0);
    }
}

void RequireItem(const TemplateItem& item, void* context)
{
    Walk* const walk = static_cast<Walk*>(context);
    ++walk->items;
    RequireText(*walk, item.className);
    RequireText(*walk, item.title);
    Require(item.data > walk->first && item.data <= walk->end);
    const PixelPlace place = PlaceOf(item, { 65535, 65535 });
    Require((place.x < 0) == (item.x < 0) && (place.height < 0) == (item.cy < 0));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    TemplateBytes  bytes = { data, size, 0 };
    TemplateHeader header;
    if (!ReadTemplateHeader(&bytes, &header)) {
        return 0;
    }
    Walk walk = { data, data + size, 0 };
    RequireText(walk, header.title);
    RequireText(walk, header.face);
    const int height = -TemplateFontHeight(header, 96);
    Require(height * 72 <= header.points * 96 && header.points * 96 < (height + 1) * 72);
    ReadTemplateItems(&bytes, header, RequireItem, &walk);
    Require(walk.items <= size / smallestItem);
    Require(header.count > 255 || walk.items <= header.count);
    Require(bytes.at <= size);
    return 0;
}
