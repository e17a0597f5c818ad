// The window text of a control: type descriptors, colour groups, fields and the two texts of a boolean.
// The input: five characters for the splitter, a data type, then two texts that end at a zero.
#include "fuzz_input.h"

#include "typed/data_types.h"
#include "typed/masks.h"

namespace {

// Two stored values of a pair that a descriptor named, made of the text's own bytes.
void Compare(char dataClass, char dataType, const std::string& a, const std::string& b)
{
    const int            size = GetDataSize(dataClass, dataType);
    const HLLDATACOMPARE compare = GetDataCompare(dataClass, dataType);
    Require(compare && size != 0);
    FuzzBuffer first(a, static_cast<size_t>(size > 0 ? size : 0)), second(b, static_cast<size_t>(size > 0 ? size : 0));
    const int  order = compare(first.Get(), second.Get());
    Require(order >= -1 && order <= 1);
    const bool ordered = dataType != 'd' && dataType != 'f' && dataType != 'u'; // numbers that may be none
    Require(!ordered || compare(second.Get(), first.Get()) == -order);
}

void ReadDescriptor(const std::string& text, const std::string& other)
{
    FuzzBuffer        exact(text, 0);
    char              dataClass = '?', dataType = '?', dataClass2 = '?', dataType2 = '?';
    const char* const rest = GetDataTypes(exact.Get(), &dataClass, &dataType, &dataClass2, &dataType2);
    const auto        length = rest - exact.Get();
    Require(length == 0 || length == 3 || length == 6);
    Require(length <= static_cast<int>(text.size()) && ValidType(dataClass, dataType));
    Compare(dataClass, dataType, text, other);
    if (length == 6) {
        Require(ValidType(dataClass2, dataType2));
        Compare(dataClass2, dataType2, text, other);
    }
}

void ReadColors(const std::string& text)
{
    FuzzBuffer exact(text, 0);
    COLORREF   color = 0, negative = 0;
    StringToColor(exact.Get(), &color);
    Require(color <= 0xFFFFFF);
    ParseColorPrefix(&color, text.size() & 1 ? &negative : nullptr, exact.Get());
    Require(exact.Text().size() <= text.size() && color <= 0xFFFFFF && negative <= 0xFFFFFF);
    Require(exact.Text().find('[') == std::string::npos);
}

void Split(const std::string& text, const char (&characters)[4])
{
    FuzzBuffer exact(text, 0);
    char*      at = exact.Get();
    char*      end = at + text.size();
    for (char* next = nullptr; at < end; at = next) {
        const char* const field = StringParse(at, characters[0], characters[1], characters[2], characters[3], &next);
        Require(std::strlen(field) <= 255 && next > at && next <= end);
    }
}

void ConvertBool(const std::string& format, const std::string& text, char dataType, char ch)
{
    const size_t room = (format.empty() ? std::string("TRUE;FALSE") : format).size();
    FuzzBuffer   exactFormat(format, 0), field(text, room);
    const int    value = BoolFromText(exactFormat.Get(), field.Get());
    FuzzBuffer   out(room + 1), small(2);
    BoolToString(value, exactFormat.Get(), out.Get(), out.Size());
    BoolToString(value, exactFormat.Get(), small.Get(), small.Size());
    Require(BoolFromText(exactFormat.Get(), out.Text().c_str()) == 1 || !value);
    Require(BoolCharFilter(field.Get(), exactFormat.Get(), ch) == 0);
    Require(small.Text().size() < 2 && field.Text().size() <= std::max(room, text.size()));
    FuzzBuffer data(4);
    Require(!SetBoolValue(dataType, data.Get(), value) || GetBoolValue(dataType, data.Get()) == value);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const BYTE* data, size_t size)
{
    FuzzInput         input = { data, data + size };
    const auto        character = [&input] { return static_cast<char>(input.Byte()); };
    const char        characters[4] = { character(), character(), character(), character() };
    const char        ch = character();
    const char        dataType = character();
    const std::string text = input.Text();
    const std::string other = input.Text();
    ReadDescriptor(text, other);
    ReadColors(text);
    Split(text, characters);
    ConvertBool(text, other, dataType, ch);
    return 0;
}
