// Random scripts of keystrokes: after each key, text, caret and value of the field are those of its class's model.
#include "entry_script.h"
#include "typed/date_time.h"
#include "typed/typed_test_support.h"

#include <algorithm>
#include <array>

namespace {

constexpr int    scriptsOfAClass = 10000;
constexpr size_t valueSize = 256;

using Value = std::array<char, valueSize>;

// The entry steps of the library in a buffer with the room that they may use, and not a byte besides.
class LibrarySteps : public EntrySteps {
public:
    explicit LibrarySteps(const ScriptShape& shape) : shape_(shape) {}

    ScriptEntered Filter(std::string* text, int pos, char ch) override
    {
        int advance = 0, repaint = 0;
        Open(*text, 1);
        int refused =
            DataCharFilter(shape_.dataClass, shape_.dataType, buffer_, shape_.format, pos, ch, &advance, &repaint);
        if (shape_.dataClass == 's' && refused) { // that class is the edit control's own
            HInsertChars(buffer_, ch, 1, pos);
            advance = 1;
            refused = 0;
        }
        Close(text);
        return { refused != 0, advance };
    }
    int Delete(std::string* text, int pos) override
    {
        Open(*text, roomForDelete);
        const int step = DataCharDelete(shape_.dataClass, shape_.dataType, buffer_, shape_.format, pos);
        Close(text);
        return step;
    }
    void Rewrite(std::string* text) override
    {
        int value = 0;
        ParseData(&value, 'b', 'i', shape_.format, text->c_str(), 1);
        FormatData(&value, 'b', 'w', shape_.format, buffer_, sizeof buffer_, nullptr, 0);
        *text = buffer_;
    }
    bool StayedInside() const { return inside_; }

private:
    void Open(const std::string& text, size_t more)
    {
        constexpr size_t longestTruth = 16;
        room_ = std::max(text.size() + 1 + more, shape_.dataClass == 'b' ? longestTruth : 0);
        std::memcpy(buffer_, text.c_str(), text.size() + 1);
        std::memset(buffer_ + text.size() + 1, '~', sizeof buffer_ - text.size() - 1);
    }
    void Close(std::string* text)
    {
        inside_ = inside_ && buffer_[room_] == '~' && std::memchr(buffer_, 0, room_);
        *text = inside_ ? buffer_ : "";
    }

    const ScriptShape& shape_;
    char               buffer_[valueSize];
    size_t             room_ = 0;
    bool               inside_ = true;
};

std::string Shown(const ScriptShape& shape, const void* value)
{
    char text[valueSize] = "";
    FormatData(value, shape.dataClass, shape.dataType, shape.format, text, sizeof text, nullptr, 1);
    return text;
}

std::string Stored(const ScriptShape& shape, const char* text, Value* value)
{
    ParseData(value->data(), shape.dataClass, shape.dataType, shape.format, text, 0);
    return StoredText(shape.dataClass, shape.dataType, value->data());
}

// What is wrong with the text of a field; empty if nothing is.
std::string TextFault(const ScriptShape& shape, const std::string& text)
{
    if (!shape.model->HoldsValue(text)) {
        return "";
    }
    Value value = {};
    // Unrepaired, two digits of a year are none of a clock.
    const bool isClock = shape.dataType == 'T' || shape.dataType == 'm';
    if (!isClock && ParseData(value.data(), shape.dataClass, shape.dataType, shape.format, text.c_str(), 1)) {
        return "can't be read";
    }
    const std::string stored = Stored(shape, text.c_str(), &value);
    const std::string expected = shape.model->Value(text);
    if (stored != expected) {
        return "reads as " + stored + " instead of " + expected;
    }
    if (!shape.model->ReadsBack(text)) {
        return "";
    }
    const std::string shown = Shown(shape, value.data());
    const std::string back = Stored(shape, shown.c_str(), &value);
    return back == stored ? "" : "shows as \"" + shown + "\", which reads as " + back + " instead of " + stored;
}

std::string At(const EntryField& field)
{
    std::string text = field.text;
    text.insert(static_cast<size_t>(field.caret), 1, '|');
    return "\"" + text + "\"";
}

std::string Fault(const LibrarySteps& steps, const EntryField& field, const EntryField& model, size_t most)
{
    if (!steps.StayedInside() || !field.inRange || field.caret > static_cast<int>(field.text.size())) {
        return "out of range";
    }
    if (field.text != model.text || field.caret != model.caret) {
        return "instead of " + At(model);
    }
    return field.text.size() > most ? "is too long" : "";
}

std::string KeysText(const std::vector<ScriptKey>& script, size_t count)
{
    std::string text;
    for (size_t i = 0; i < count; ++i) {
        text += KeyText(script[i]);
    }
    return text;
}

std::string RunScript(const ScriptShape& shape, const std::string& start, const std::vector<ScriptKey>& script)
{
    LibrarySteps steps(shape);
    EntryField   field(shape.dataClass, &steps, start);
    EntryField   model(shape.dataClass, shape.model.get(), start);
    const size_t bound = shape.model->MostCharacters();
    const size_t most = bound ? bound : start.size() + script.size();
    size_t       pressed = 0;
    for (const ScriptKey& key : script) {
        const std::string before = field.text;
        ++pressed;
        field.Press(key);
        model.Press(key);
        std::string fault = Fault(steps, field, model, most);
        if (fault.empty() && field.text != before) {
            fault = TextFault(shape, field.text);
        }
        if (!fault.empty()) {
            return "from \"" + start + "\" by " + KeysText(script, pressed) + ": " + At(field) + " " + fault;
        }
    }
    return "";
}

class EntryScript : public NumberTest {
protected:
    void SetUp() override
    {
        NumberTest::SetUp();
        ASSERT_EQ(1, SetDateSep('.'));
        ASSERT_EQ(1, SetTimeSep(':'));
    }

    void ExpectAsModelled(char dataClass)
    {
        std::mt19937                   random(static_cast<uint32_t>(dataClass));
        const std::vector<ScriptShape> shapes = ScriptShapesOf(dataClass);
        for (int i = 0; i < scriptsOfAClass; ++i) {
            const ScriptShape& shape = shapes[static_cast<size_t>(i) % shapes.size()];
            const std::string& read = shape.starts[random() % shape.starts.size()];
            Value              value = {};
            ParseData(value.data(), shape.dataClass, shape.dataType, shape.format, read.c_str(), 0);
            const std::string fault = RunScript(shape, Shown(shape, value.data()), RandomScript(&random, shape));
            ASSERT_EQ("", fault) << "%" << shape.dataClass << shape.dataType << (shape.format ? shape.format : "(none)")
                                 << ", script " << i;
        }
    }
};

} // namespace

TEST_F(EntryScript, DatesWithTimesAreTypedAsModelled)
{
    ExpectAsModelled('a');
}

TEST_F(EntryScript, TruthValuesAreTypedAsModelled)
{
    ExpectAsModelled('b');
}

TEST_F(EntryScript, NumbersOfClassCAreTypedAsModelled)
{
    ExpectAsModelled('c');
}

TEST_F(EntryScript, DatesAreTypedAsModelled)
{
    ExpectAsModelled('d');
}

TEST_F(EntryScript, CharactersAreTypedAsModelled)
{
    ExpectAsModelled('h');
}

TEST_F(EntryScript, ClocksAreTypedAsModelled)
{
    ExpectAsModelled('k');
}

TEST_F(EntryScript, MasksAreTypedAsModelled)
{
    ExpectAsModelled('m');
}

TEST_F(EntryScript, NumbersOfClassNAreTypedAsModelled)
{
    ExpectAsModelled('n');
}

TEST_F(EntryScript, TextIsTypedAsModelled)
{
    ExpectAsModelled('s');
}

TEST_F(EntryScript, TimesAreTypedAsModelled)
{
    ExpectAsModelled('t');
}

TEST_F(EntryScript, CalculatorNumbersAreTypedAsModelled)
{
    ExpectAsModelled('z');
}
