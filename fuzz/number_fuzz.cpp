// Numeric pictures, numbers and keystrokes of any kind through printing, reading and editing.
// The input: two separators, a double, then texts that end at a zero: picture and text; what is left are keystrokes.
#include "fuzz_input.h"

#include "typed/data_types.h"
#include "typed/intl.h"
#include "typed/numbers.h"

#include <cmath>

namespace {

void Print(double value, const std::string& picture, int editForm)
{
    FuzzBuffer exact(picture, 0);
    for (const size_t size : { 1u, 2u, 3u, 8u, 20u, 400u }) {
        FuzzBuffer out(size);
        const int  length = DoubleToString(value, exact.Get(), out.Get(), out.Size(), editForm);
        Require(length >= 0 && length < out.Size());
        Require(size < 2 || out.Text().size() < size);
    }
}

void Analyse(const std::string& picture)
{
    FuzzBuffer exact(picture, 0);
    for (int choice = 0; choice < 4; ++choice) {
        NumPicture        parsed;
        const char* const section = ParseNumPicture(exact.Get(), choice & 1, choice & 2, &parsed);
        Require(section >= exact.Get() && section + parsed.cbTotal <= exact.Get() + picture.size());
        Require(parsed.cbTotal == parsed.cbInt + parsed.cbFrac);
    }
}

void Read(const std::string& text)
{
    const FuzzBuffer exact(text, 0);
    Require(std::isfinite(StringToDouble(exact.Text().c_str())));
}

void Store(double value)
{
    constexpr char types[] = "MWbdfhilsuw";
    for (const char* type = types; *type; ++type) {
        FuzzBuffer data(static_cast<size_t>(GetDataSize('n', *type)));
        if (DoubleToNum(data.Get(), *type, value)) {
            const double back = NumToDouble(data.Get(), *type);
            Require(*type != 'd' || back == value || std::isnan(value));
        }
    }
}

// The keys go to the text one by one; 127 is the delete key.
void Type(char dataClass, std::string text, const std::string& picture, FuzzInput keys)
{
    constexpr char deleteKey = 127;
    int            caret = 0;
    while (!keys.IsEmpty() && text.size() < 300) {
        const char key = static_cast<char>(keys.Byte());
        const bool deletes = key == deleteKey;
        FuzzBuffer room(text, deletes ? 2 : 1);
        int        advance = 0, repaint = 0;
        if (deletes) {
            advance = DataCharDelete(dataClass, 'd', room.Get(), picture.c_str(), caret);
        } else if (DataCharFilter(dataClass, 'd', room.Get(), picture.c_str(), caret, key, &advance, &repaint)) {
            Require(advance == 0 && repaint == 0);
        }
        text = room.Text();
        Require(advance >= 0 && repaint >= 0);
        const int length = static_cast<int>(text.size());
        caret = key & 0x40 ? std::min(caret + advance, length) : (key * 7 & 0xFF) % (length + 1);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const BYTE* data, size_t size)
{
    FuzzInput input = { data, data + size };
    gIntl.chDecimalSep = static_cast<char>(input.Byte());
    gIntl.chThousandSep = static_cast<char>(input.Byte());
    const auto        value = input.Number<double>();
    const std::string picture = input.Text();
    const std::string text = input.Text();
    Print(value, picture, 0);
    Print(value, picture, 1);
    Analyse(picture);
    Read(text);
    Store(value);
    Type('n', text, picture, input);
    Type('z', text, picture, input);
    return 0;
}
