// Dialog templates in the classic form, read from bytes: what is in them, and where it goes in pixels.
// Nothing outside the bytes is read. What becomes of the items is up to an operation of the caller.
#pragma once

#include <windows.h>

#include <cstddef>

// A wide text in a template, at any address and without an end.
struct TemplateText {
    const BYTE* first;
    size_t      length; // characters

    WORD At(size_t index) const;
};

struct TemplateHeader {
    DWORD        style;
    WORD         count; // of the items that the template tells of
    int          cx;    // dialog units
    int          cy;
    TemplateText title;
    WORD         points; // of the font; 0, and an empty face, where the template names none
    TemplateText face;
};

struct TemplateItem {
    DWORD        style;
    int          x; // dialog units
    int          y;
    int          cx;
    int          cy;
    WORD         id;
    const char*  systemClass; // a class of the system's, or null, and then the text tells the class
    TemplateText className;
    TemplateText title;
    const BYTE*  data; // creation data; also without any, the place behind the item
};

// What is left of a template.
struct TemplateBytes {
    const BYTE* first;
    size_t      size;
    size_t      at;
};

// What a dialog's units measure, in pixels times four and eight.
struct DialogUnits {
    int x;
    int y;
};

// 0 for a header that the bytes cut off.
int ReadTemplateHeader(TemplateBytes* bytes, TemplateHeader* out);

// Runs an operation for each item behind the header.
using TemplateItemOperation = void (*)(const TemplateItem& item, void* context);
void ReadTemplateItems(TemplateBytes* bytes, const TemplateHeader& header, TemplateItemOperation operation,
                       void* context);

bool NamesFont(const TemplateHeader& header);
// The lfHeight of the template's font at a resolution.
int TemplateFontHeight(const TemplateHeader& header, int dpi);

// The upper left corner and the size in pixels: left, top, width and height.
struct PixelPlace {
    int x;
    int y;
    int width;
    int height;
};
PixelPlace PlaceOf(const TemplateItem& item, DialogUnits units);
RECT       SizeOf(const TemplateHeader& header, DialogUnits units);
