// Values and texts of any kind through FormatData, ParseData and the keyboard, for every class and type.
// The input: class, type, choices, 36 bytes of a value, then texts that end at a zero: format and text; what is left
// are keystrokes.
#include "fuzz_input.h"

#include "typed/data_types.h"
#include "typed/intl.h"

namespace {

constexpr size_t valueSize = 36; // of the largest type

struct Pair {
    char dataClass;
    char dataType;

    bool IsDate() const { return dataClass != 0 && std::strchr("adkt", dataClass) != nullptr; }
    bool IsText() const { return GetDataSize(dataClass, dataType) < 0; }
    // Pairs that aren't valid go by their type alone.
    size_t Size() const
    {
        const int size = GetDataSize(dataClass, dataType);
        return size > 0 && ValidType(dataClass, dataType) ? static_cast<size_t>(size) : valueSize;
    }
};

// A date's result counts what was cut off from its text.
bool FitsRoom(const Pair& pair, const FuzzBuffer& out, int length)
{
    if (length <= 0 || !pair.IsDate()) {
        return length >= 0 && length < std::max(out.Size(), 2);
    }
    const int shown = static_cast<int>(out.Text().size());
    return shown == std::min(length, out.Size() - 1);
}

void Format(const Pair& pair, char* value, const char* format, int editForm)
{
    for (const size_t size : { 1u, 2u, 5u, 40u, 400u }) {
        FuzzBuffer out(size);
        int        negative = 7;
        const int  length =
            FormatData(value, pair.dataClass, pair.dataType, format, out.Get(), out.Size(), &negative, editForm);
        Require(FitsRoom(pair, out, length));
        Require(size < 2 || negative == 0 || negative == 1);
        Require(length == 0 || !out.Text().empty() || pair.dataClass != 's');
    }
}

// What was parsed is formatted again.
void Parse(const Pair& pair, const std::string& text, const char* format, int noCheck)
{
    FuzzBuffer exact(text, 0);
    FuzzBuffer data = pair.IsText() ? FuzzBuffer(text.size() + 1) : FuzzBuffer(pair.Size());
    ParseData(data.Get(), pair.dataClass, pair.dataType, format, exact.Get(), noCheck);
    if (ValidClass(pair.dataClass)) {
        Format(pair, data.Get(), format, noCheck);
    }
}

// A boolean's field holds its whole picture. The key 127 deletes.
void Type(const Pair& pair, std::string text, const char* format, FuzzInput keys)
{
    constexpr char deleteKey = 127;
    const size_t   longestTruth = pair.dataClass == 'b' ? std::strlen(format ? format : "") + sizeof "TRUE;FALSE" : 0;
    int            caret = 0;
    while (!keys.IsEmpty() && text.size() < 300) {
        const char key = static_cast<char>(keys.Byte());
        const bool deletes = key == deleteKey;
        FuzzBuffer exact(text, std::max<size_t>(longestTruth, deletes ? 2 : 1));
        int        advance = 0, repaint = 0;
        if (deletes) {
            advance = DataCharDelete(pair.dataClass, pair.dataType, exact.Get(), format, caret);
            Require(advance == 0 || advance == 1);
        } else {
            DataCharFilter(pair.dataClass, pair.dataType, exact.Get(), format, caret, key, &advance, &repaint);
        }
        text = exact.Text();
        caret = std::min(std::max(caret + advance, 0), static_cast<int>(text.size()));
    }
}

// The locale is asked once: that is slow.
const IntlSettings& StartSettings()
{
    static const IntlSettings settings = (GetIntlSettings(), *WWGetIntlInfo());
    return settings;
}

void UseSettings(BYTE choices)
{
    gIntl = StartSettings();
    gIntl.chThousandSep = choices & 4 ? ',' : ' ';
    gIntl.chDecimalSep = choices & 8 ? ',' : '.';
    SetDateSep(choices & 16 ? '/' : '.');
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const BYTE* data, size_t size)
{
    FuzzInput  input = { data, data + size };
    Pair       pair;
    FuzzBuffer value(valueSize);
    pair.dataClass = static_cast<char>(input.Byte());
    pair.dataType = static_cast<char>(input.Byte());
    const BYTE choices = input.Byte();
    for (size_t i = 0; i < valueSize; ++i) {
        value.Get()[i] = static_cast<char>(input.Byte());
    }
    const std::string format = input.Text();
    const std::string text = input.Text();
    FuzzBuffer        exactFormat(format, 0);
    const char* const given = choices & 2 ? exactFormat.Get() : nullptr;
    UseSettings(choices);

    FuzzBuffer stored = pair.IsText() ? FuzzBuffer(text, 0) : FuzzBuffer(pair.Size());
    if (!pair.IsText()) {
        std::memcpy(stored.Get(), value.Get(), pair.Size());
    }
    Format(pair, stored.Get(), given, choices & 1);
    Parse(pair, text, given, choices & 1);
    Type(pair, text, given, input);
    return 0;
}
