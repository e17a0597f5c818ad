// Reads a button's type text: places, value type, colours, caption, pictures, sound. Pictures decide the states.
#include "button/button_internal.h"
#include "foundation/memory.h"
#include "typed/masks.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr int  picStep = 4; // entries by which the array of pictures grows
constexpr int  maxPics = 255;
constexpr char valueClass = 'b';
constexpr char plainType = 'w';
constexpr WORD hasKey = 2; // of ParseColorPrefix: from there on the second group set a colour, perhaps more than once

bool IsPlaceDigit(char ch)
{
    return ch >= '0' && ch <= '9';
}

// Settled: a place that doesn't exist is the first one.
BYTE PlaceOf(char digit)
{
    const BYTE place = static_cast<BYTE>(digit - '0');
    return place <= lastPlace ? place : BYTE{ 0 };
}

// Reads the places that are there and gives what follows.
const char* ReadPlaces(HButtCtl* ctl, const char* text)
{
    BYTE places[] = { ctl->bTextPos, ctl->bPicPos, ctl->bRelPos };
    for (BYTE& place : places) {
        if (!IsPlaceDigit(*text)) {
            break;
        }
        place = PlaceOf(*text++);
    }
    ctl->bTextPos = places[0];
    ctl->bPicPos = places[1];
    ctl->bRelPos = places[2];
    return text;
}

// The fields begin behind the first ';'.
char* ReadHead(HButtCtl* ctl, char* text)
{
    const char* const letter = ReadPlaces(ctl, text);
    const bool        named = KindOf(ctl) == HBS_CHECK && *letter && ValidType(valueClass, *letter);
    ctl->chLinkType = named ? *letter : plainType;
    char* const separator = std::strchr(text + (letter - text), ';');
    return separator ? separator + 1 : text + std::strlen(text);
}

void TakeColors(HButtCtl* ctl, char* fields)
{
    COLORREF text = ctl->crText;
    COLORREF key = ctl->crPicKey;
    if (ParseColorPrefix(&text, &key, fields) < hasKey) {
        key = RGB(0, 255, 0);
    }
    ctl->crText = text;
    ctl->crPicKey = key;
}

// An array of count pictures that begins with those of another; null without memory.
Pic* CopyPics(const Pic* from, int used, int count)
{
    Pic* const array = static_cast<Pic*>(HBlockAlloc(static_cast<size_t>(count) * sizeof(Pic)));
    if (array && used > 0) {
        std::memcpy(array, from, static_cast<size_t>(used) * sizeof(Pic));
    }
    return array;
}

bool GrowPics(HButtCtl* ctl, int count)
{
    Pic* const array = CopyPics(ctl->pPics, ctl->cPics, count);
    if (!array) {
        return false;
    }
    HBlockFree(ctl->pPics);
    ctl->pPics = array;
    return true;
}

void FreePics(HButtCtl* ctl)
{
    for (int i = 0; i < ctl->cPics; ++i) {
        FreePic(&ctl->pPics[i], 0);
    }
    HBlockFree(ctl->pPics);
    ctl->pPics = nullptr;
    ctl->cPics = 0;
}

// names is cut at its separators. Names that lead nowhere are passed over. false: no memory.
bool LoadPics(HButtCtl* ctl, char* names)
{
    int capacity = picStep;
    ctl->pPics = CopyPics(nullptr, 0, capacity);
    if (!ctl->pPics) {
        return false;
    }
    // Bounded: a byte counts the pictures.
    for (char* name = names; *name && ctl->cPics < maxPics;) {
        char* const end = name + std::strcspn(name, ":");
        char* const next = *end ? end + 1 : end;
        *end = 0;
        if (*name && LoadPic(&ctl->pPics[ctl->cPics], ModuleOf(ctl), name)) {
            ++ctl->cPics;
        }
        if (ctl->cPics > capacity - 2) {
            capacity += picStep;
            if (!GrowPics(ctl, capacity)) {
                return false;
            }
        }
        name = next;
    }
    return true;
}

bool ReadFields(HButtCtl* ctl, char* fields)
{
    char* next = fields;
    if (!HBSetCaption(ctl, next, ';', &next)) {
        return false;
    }
    const bool loaded = LoadPics(ctl, StringParse(next, ';', '\\', '^', '\n', &next));
    HBLoadSound(ctl, StringParse(next, ';', '\\', '^', '\n', &next));
    return loaded;
}

int LeastStates(const HButtCtl* ctl)
{
    const DWORD kind = KindOf(ctl);
    return (kind == HBS_PUSH || kind == HBS_DEFPUSH ? 1 : 2) * StatesOfValue(ctl);
}

} // namespace

bool HBSetCaption(HButtCtl* ctl, const char* text, char delimiter, char** outNext)
{
    const char* const caption = StringParse(text, delimiter, '\\', '^', '\n', outNext);
    char* const       copy = *caption ? hstrdup(caption) : nullptr;
    if (*caption && !copy) {
        return false;
    }
    HBlockFree(ctl->pszCaption);
    ctl->pszCaption = copy;
    return true;
}

void HBFreeContent(HButtCtl* ctl)
{
    FreePics(ctl);
    HBFreeSound(ctl);
    HBlockFree(ctl->pszCaption);
    ctl->pszCaption = nullptr;
}

void HBCountStates(HButtCtl* ctl)
{
    // Bounded: a state that is no more would show a picture that isn't there. The host's variable isn't told: this is
    // no change of the value.
    ctl->cStates = static_cast<BYTE>(std::max<int>(ctl->cPics, LeastStates(ctl)));
    ctl->bState = static_cast<BYTE>(std::min<int>(ctl->bState, ctl->cStates - 1));
}

bool HBApplyType(HButtCtl* ctl, const char* text)
{
    // The text may be one that goes with the old content.
    char* const copy = hstrdup(text);
    HBFreeContent(ctl);
    bool applied = false;
    if (copy) {
        char* const fields = ReadHead(ctl, copy);
        TakeColors(ctl, fields);
        applied = ReadFields(ctl, fields);
    }
    HBlockFree(copy);
    HBCountStates(ctl);
    return applied;
}

int HBSetPicCount(HButtCtl* ctl, int count)
{
    // Bounded: a byte counts the pictures, and none can be fewer than none.
    const int wanted = std::clamp(count, 0, maxPics);
    if (wanted > ctl->cPics) {
        if (!GrowPics(ctl, wanted)) {
            return 0;
        }
    } else if (wanted < ctl->cPics) {
        Pic* const array = wanted > 0 ? CopyPics(nullptr, 0, wanted) : nullptr;
        if (wanted > 0 && !array) {
            return 0;
        }
        FreePics(ctl);
        ctl->pPics = array;
    }
    ctl->cPics = static_cast<BYTE>(wanted);
    HBCountStates(ctl);
    HBRepaint(ctl);
    return wanted;
}
