// The models of the two entry steps of numbers. The separator is the point.
#include "entry_script_shapes.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <utility>

namespace {

// What one section of a picture asks for, with the limits that an unlimited side has.
struct Places {
    int intZeros; // of the edit form, so one at the most
    int intMost;
    int fracZeros;
    int fracMost;
};

struct Picture {
    const char* text;
    Places      positive;
    Places      negative;
    bool        hasPoint; // anywhere
};

constexpr Picture pictures[] = {
    { "*0", { 1, 127, 0, 0 }, { 1, 127, 0, 0 }, false },
    { "*0.0*", { 1, 63, 1, 64 }, { 1, 63, 1, 64 }, true },
    { "##0", { 1, 3, 0, 0 }, { 1, 3, 0, 0 }, false },
    { "###", { 0, 3, 0, 0 }, { 0, 3, 0, 0 }, false },
    { "#,##0.00", { 1, 4, 2, 2 }, { 1, 4, 2, 2 }, true },
    { "0000.##", { 1, 4, 0, 2 }, { 1, 4, 0, 2 }, true },
    { "$ ##0.0# kg", { 1, 3, 1, 2 }, { 1, 3, 1, 2 }, true },
    { "[red](##0.0);[blue]0.000", { 1, 3, 1, 1 }, { 1, 1, 3, 3 }, true },
    { "0;-0.0", { 1, 1, 0, 0 }, { 1, 1, 1, 1 }, true },
};

constexpr Picture calculatorPictures[] = {
    { "0.00", { 1, 1, 2, 2 }, { 1, 1, 2, 2 }, true },      { "#,##0.000", { 1, 4, 3, 3 }, { 1, 4, 3, 3 }, true },
    { "0", { 1, 1, 0, 0 }, { 1, 1, 0, 0 }, false },        { "#.00", { 0, 1, 2, 2 }, { 0, 1, 2, 2 }, true },
    { "0.0;(0.0)", { 1, 1, 1, 1 }, { 1, 1, 1, 1 }, true },
};

constexpr int noPlace = -1;

bool IsDigit(char ch)
{
    return ch >= '0' && ch <= '9';
}

int Find(const std::string& text, char ch)
{
    const size_t at = text.find(ch);
    return at == std::string::npos ? noPlace : static_cast<int>(at);
}

char At(const std::string& text, int pos)
{
    return pos < static_cast<int>(text.size()) ? text[static_cast<size_t>(pos)] : '\0';
}

void Erase(std::string* text, int pos)
{
    text->erase(static_cast<size_t>(pos), 1);
}

void Insert(std::string* text, int pos, char ch)
{
    text->insert(static_cast<size_t>(pos), 1, ch);
}

double Read(const std::string& text)
{
    std::string kept;
    for (const char ch : text) {
        kept += IsDigit(ch) || ch == '-' || ch == '.' ? std::string(1, ch) : "";
    }
    double value = 0;
    std::from_chars(kept.data(), kept.data() + kept.size(), value);
    return value;
}

double Narrow(double value, char dataType)
{
    if (dataType == 'd') {
        return value;
    }
    if (dataType == 'f') {
        return static_cast<double>(static_cast<float>(value));
    }
    const int64_t cut = value > 4294967295.0 || value < -2147483648.0 ? 0 : static_cast<int64_t>(value);
    switch (dataType) {
    case 'b': return static_cast<uint8_t>(cut);
    case 'h': return static_cast<int8_t>(cut);
    case 's': return static_cast<int16_t>(cut);
    case 'w': return static_cast<uint16_t>(cut);
    case 'u':
    case 'W': return static_cast<uint32_t>(cut);
    default: return static_cast<int32_t>(cut);
    }
}

class FigureModel : public EntryModel {
public:
    FigureModel(const Picture& picture, char dataType) : picture_(picture), dataType_(dataType) {}
    std::string Value(const std::string& text) const override
    {
        char out[64];
        std::snprintf(out, sizeof out, "%.17g", Narrow(Read(text), dataType_) + 0.0);
        return out;
    }
    // A big number prints with an exponent, which isn't read. Without its sign a number may have more decimals than the
    // section for positive values.
    bool ReadsBack(const std::string& text) const override
    {
        const int point = Find(text, '.');
        const int decimals = point == noPlace ? 0 : static_cast<int>(text.size()) - point - 1;
        return std::fabs(Read(text)) < 1e18 && decimals <= PlacesFor(text).fracMost;
    }

protected:
    const Places& PlacesFor(const std::string& text) const
    {
        return Find(text, '-') == noPlace ? picture_.positive : picture_.negative;
    }

    Picture picture_;
    char    dataType_;
};

class NumberModel : public FigureModel {
public:
    using FigureModel::FigureModel;

    ScriptEntered Filter(std::string* text, int pos, char ch) override
    {
        if (At(*text, pos) == '-' && ch != '-') {
            Erase(text, pos);
        }
        if (ch == '-') {
            return Sign(text, pos);
        }
        if (ch == '.') {
            return Point(text, pos);
        }
        if (ch == ' ') {
            return { false, Delete(text, pos) };
        }
        return IsDigit(ch) ? Digit(text, pos, ch) : ScriptEntered{ true, 0 };
    }

    int Delete(std::string* text, int pos) override
    {
        const char at = At(*text, pos);
        if (!at || at == '.') {
            return at ? 1 : 0;
        }
        const int     found = Find(*text, '.');
        const int     point = found == noPlace ? static_cast<int>(text->size()) : found;
        const Places& places = PlacesFor(*text);
        if (at == '-' || (pos < point ? point > places.intZeros : pos - point > places.fracZeros)) {
            Erase(text, pos);
            return 0;
        }
        (*text)[static_cast<size_t>(pos)] = '0';
        return 1;
    }

    size_t MostCharacters() const override
    {
        const int whole = std::max(picture_.positive.intMost, picture_.negative.intMost);
        const int behind = std::max(picture_.positive.fracMost, picture_.negative.fracMost);
        return static_cast<size_t>(1 + whole + (picture_.hasPoint ? 1 : 0) + behind);
    }

private:
    static ScriptEntered Sign(std::string* text, int pos)
    {
        if (pos != 0) {
            return { true, 0 };
        }
        if (At(*text, 0) != '-') {
            Insert(text, 0, '-');
        }
        return { false, 1 };
    }

    ScriptEntered Point(std::string* text, int pos)
    {
        const int point = Find(*text, '.');
        if (point == noPlace) {
            if (!picture_.hasPoint) {
                return { true, 0 };
            }
            if (!At(*text, pos)) {
                *text += '.';
            } else {
                Delete(text, pos);
            }
            return { false, 1 };
        }
        if (point < pos) {
            return { true, 0 };
        }
        int advance = 1;
        while (At(*text, pos + advance - 1) != '.') {
            advance += Delete(text, pos + advance - 1);
        }
        return { false, advance };
    }

    ScriptEntered Digit(std::string* text, int pos, char ch) const
    {
        const char    at = At(*text, pos);
        const Places& places = PlacesFor(*text);
        const int     point = Find(*text, '.');
        const bool    isFull = pos - (Find(*text, '-') == noPlace ? 0 : 1) >= places.intMost;
        if (IsDigit(at)) {
            (*text)[static_cast<size_t>(pos)] = ch;
            return { false, 1 };
        }
        if (at && at != '.') {
            return { true, 0 };
        }
        if (!at && (point == noPlace ? isFull : pos - point >= places.fracMost + 1)) {
            return { true, 0 };
        }
        if (at != '.' || !isFull) {
            Insert(text, pos, ch);
            return { false, 1 };
        }
        if (places.fracMost == 0) {
            return { true, 0 };
        }
        if (At(*text, pos + 1)) {
            Erase(text, pos + 1);
        }
        Insert(text, pos + 1, ch);
        return { false, 2 };
    }
};

class CalculatorModel : public FigureModel {
public:
    using FigureModel::FigureModel;

    ScriptEntered Filter(std::string* text, int pos, char ch) override
    {
        if (IsDigit(ch)) {
            return { false, Push(text, pos, ch) };
        }
        if (ch == '-' && Find(*text, '-') == noPlace) {
            Insert(text, 0, '-');
        }
        if (ch == '+' && At(*text, 0) == '-') {
            Erase(text, 0);
        }
        const bool taken = ch == '-' || ch == '+' || ch == '.';
        return { !taken, taken ? 1 : 0 };
    }

    int Delete(std::string* text, int pos) override
    {
        const char   at = At(*text, pos);
        const Places places = PlacesFor(*text);
        if (IsDigit(at)) {
            Erase(text, pos);
        }
        const bool minus = TakeOff(text, '-');
        TakeOff(text, '.');
        const bool padded = static_cast<int>(text->size()) - places.fracZeros < places.intZeros;
        if (padded) {
            Insert(text, 0, '0');
        }
        if (places.fracZeros) {
            Insert(text, std::max(0, static_cast<int>(text->size()) - places.fracZeros), '.');
        }
        if (minus) {
            Insert(text, 0, '-');
        }
        if (!padded && at == '-') {
            Erase(text, pos);
        }
        return padded || (at && at != '-' && !IsDigit(at)) ? 1 : 0;
    }

private:
    static bool TakeOff(std::string* text, char ch)
    {
        const int at = Find(*text, ch);
        if (at != noPlace) {
            Erase(text, at);
        }
        return at != noPlace;
    }

    int Push(std::string* text, int pos, char ch) const
    {
        Insert(text, pos, ch);
        const int point = Find(*text, '.');
        if (point != noPlace && point < pos && At(*text, point + 1)) {
            std::swap((*text)[static_cast<size_t>(point)], (*text)[static_cast<size_t>(point) + 1]);
        }
        const int first = At(*text, 0) == '-' ? 1 : 0;
        const int moved = Find(*text, '.');
        const int needed = PlacesFor(*text).intZeros;
        if (At(*text, first) == '0' && (moved == noPlace ? needed > 0 : moved - first - 1 >= needed)) {
            Erase(text, first);
            return moved != noPlace && moved - 1 < pos ? 0 : 1;
        }
        return 1;
    }
};

} // namespace

std::vector<ScriptShape> NumberScriptShapes(char dataClass)
{
    constexpr char           types[] = "dlfshbwuWi";
    std::vector<ScriptShape> shapes;
    for (const Picture& picture : pictures) {
        for (const char* type = types; *type; ++type) {
            // Starts within each picture, also where a negative number would become a big one.
            shapes.push_back({ dataClass,
                               *type,
                               picture.text,
                               std::make_shared<NumberModel>(picture, *type),
                               { "0", "1", "7.5", std::strchr("bwuW", *type) ? "9" : "-1.25" } });
        }
    }
    return shapes;
}

std::vector<ScriptShape> CalculatorScriptShapes()
{
    std::vector<ScriptShape> shapes;
    for (const Picture& picture : calculatorPictures) {
        for (const char type : { 'd', 'f' }) {
            shapes.push_back({ 'z',
                               type,
                               picture.text,
                               std::make_shared<CalculatorModel>(picture, type),
                               { "0", "1", "-1", "7.5", "-12.25", "1234.5" } });
        }
    }
    return shapes;
}
