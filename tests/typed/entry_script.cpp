// The field of a script, and the models of the entry steps of text, truth values, characters and masks.
#include "entry_script.h"

#include "entry_script_shapes.h"

#include "typed/date_time.h"
#include "typed/numbers.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstring>

namespace {

char Lower(char ch)
{
    return static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
}

class TextModel : public EntryModel {
public:
    ScriptEntered Filter(std::string* text, int pos, char ch) override
    {
        text->insert(static_cast<size_t>(pos), 1, ch);
        return { false, 1 };
    }
    int Delete(std::string* text, int pos) override
    {
        if (pos < static_cast<int>(text->size())) {
            text->erase(static_cast<size_t>(pos), 1);
        }
        return 0;
    }
    std::string Value(const std::string& text) const override { return text; }
};

class TruthModel : public EntryModel {
public:
    TruthModel(const char* yes, const char* no, bool isSingle) : yes_(yes), no_(no), isSingle_(isSingle) {}
    ScriptEntered Filter(std::string* text, int, char ch) override
    {
        if (!yes_.empty() && Lower(ch) == Lower(yes_[0])) {
            *text = yes_;
        } else if (!no_.empty() && Lower(ch) == Lower(no_[0])) {
            *text = no_;
        } else if (ch == ' ') {
            *text = IsTrue(*text) ? no_ : yes_;
        }
        return { false, 0 };
    }
    int         Delete(std::string*, int) override { return 0; }
    void        Rewrite(std::string* text) override { *text = IsTrue(*text) ? yes_ : no_; }
    std::string Value(const std::string& text) const override { return IsTrue(text) ? "1" : "0"; }
    size_t      MostCharacters() const override { return std::max(yes_.size(), no_.size()); }

private:
    bool IsTrue(const std::string& text) const
    {
        const size_t length = std::min(text.size(), yes_.size());
        for (size_t i = 0; !isSingle_ && i < length; ++i) {
            if (Lower(text[i]) != Lower(yes_[i])) {
                return false;
            }
        }
        return true;
    }

    std::string yes_;
    std::string no_;
    bool        isSingle_; // one text for both values, which stands for true
};

class CharacterModel : public EntryModel {
public:
    ScriptEntered Filter(std::string* text, int, char ch) override
    {
        *text = ch;
        return { false, 0 };
    }
    int Delete(std::string* text, int) override
    {
        *text = ' ';
        return 0;
    }
    std::string Value(const std::string& text) const override { return text; }
    size_t      MostCharacters() const override { return 1; }
};

// shown: the empty mask. kinds: under each place the letter of its placeholder, or a point under a literal.
class MaskModel : public EntryModel {
public:
    MaskModel(const char* shown, const char* kinds) : shown_(shown), kinds_(kinds) {}
    ScriptEntered Filter(std::string* text, int pos, char ch) override
    {
        size_t at = static_cast<size_t>(pos);
        for (; at < kinds_.size() && kinds_[at] == '.'; ++at) {
            if (shown_[at] == ch) {
                return { false, static_cast<int>(at) + 1 - pos };
            }
        }
        if (at < kinds_.size()) {
            if (!Fits(kinds_[at], ch)) {
                return { true, 0 };
            }
            (*text)[at++] = ch;
        }
        return { false, static_cast<int>(at) - pos };
    }
    int Delete(std::string* text, int pos) override
    {
        const size_t at = static_cast<size_t>(pos);
        if (at >= kinds_.size()) {
            return 0;
        }
        if (at < text->size()) {
            (*text)[at] = shown_[at];
        }
        return 1;
    }
    std::string Blank() override { return shown_; }
    std::string Value(const std::string& text) const override
    {
        std::string bare;
        for (size_t i = 0; i < kinds_.size() && i < text.size(); ++i) {
            if (kinds_[i] == '.') {
                continue;
            }
            if (!Fits(kinds_[i], text[i])) {
                break;
            }
            bare += text[i];
        }
        return bare;
    }
    size_t MostCharacters() const override { return kinds_.size(); }

private:
    static bool Fits(char kind, char ch)
    {
        const int code = static_cast<unsigned char>(ch);
        switch (kind) {
        case '@': return std::isalpha(code) != 0;
        case '#': return std::isdigit(code) != 0;
        case '!': return std::ispunct(code) != 0;
        case '&': return std::isalnum(code) != 0;
        default: return std::isprint(code) != 0;
        }
    }

    std::string shown_;
    std::string kinds_;
};

std::vector<ScriptShape> TruthShapes()
{
    const std::vector<std::string> starts = { "", "~" };
    return {
        { 'b', 'l', nullptr, std::make_shared<TruthModel>("TRUE", "FALSE", false), starts },
        { 'b', 'b', "yes;no", std::make_shared<TruthModel>("yes", "no", false), starts },
        { 'b', 'w', "On;oFF", std::make_shared<TruthModel>("On", "oFF", false), starts },
        { 'b', 'u', "yes;yesno", std::make_shared<TruthModel>("yes", "yesno", false), starts },
        { 'b', 's', ";no", std::make_shared<TruthModel>("", "no", false), starts },
        { 'b', 'i', "yes;", std::make_shared<TruthModel>("yes", "", false), starts },
        { 'b', 'h', "x", std::make_shared<TruthModel>("x", "x", true), starts },
    };
}

std::vector<ScriptShape> MaskShapes()
{
    const std::vector<std::string> starts = { "", "1", "17aZ9", "aB1-2.3" };
    return {
        { 'm', 's', "##-##", std::make_shared<MaskModel>("__-__", "##.##"), starts },
        { 'm', 's', "(###) @@", std::make_shared<MaskModel>("(___)   ", ".###..@@"), starts },
        { 'm', 's', "A#&-@7", std::make_shared<MaskModel>("A_ - 7", ".#&.@."), starts },
        { 'm', 's', "\\##[x#]\\@@", std::make_shared<MaskModel>("#_@ ", ".#.@"), starts },
        { 'm', 's', "@!##", std::make_shared<MaskModel>(" -__", "@!##"), starts },
        { 'm', 's', "***", std::make_shared<MaskModel>("   ", "***"), starts },
        { 'm', 's', "--", std::make_shared<MaskModel>("--", ".."), starts },
        { 'm', 's', "[red]#", std::make_shared<MaskModel>("_", "#"), starts },
    };
}

const char* KeysOf(char dataClass)
{
    switch (dataClass) {
    case 's': return "abcXYZ 019.,;-\xE4\xFF";
    case 'b': return "tTfFyYnNoOx  1";
    case 'h': return "abcXYZ 019.,;-\xE4\xFF";
    case 'm': return "1234567890aZbY--() .#@A7";
    case 'c':
    case 'n': return "12345678900000--....  x,+";
    case 'z': return "12345678900000--++..  x,";
    default: return "01234567890123456789  ..::/-apAPx";
    }
}

bool IsStamped(const ScriptShape& shape)
{
    return (shape.dataClass == 'd' && shape.dataType == 'd') || (shape.dataClass == 'a' && shape.dataType == 's');
}

} // namespace

void EntryField::Place(int index)
{
    const int length = static_cast<int>(text.size());
    inRange = inRange && index >= 0;
    caret = std::clamp(index, 0, length);
}

void EntryField::TypeChar(char ch, bool replacing)
{
    if (overwrites_ && !replacing && caret < static_cast<int>(text.size())) {
        text[static_cast<size_t>(caret)] = ch;
        Place(caret + 1);
        return;
    }
    const bool wasEmpty = text.empty();
    text = wasEmpty ? steps_->Blank() : text;
    const ScriptEntered entered = steps_->Filter(&text, caret, ch);
    text = wasEmpty && entered.refused ? "" : text;
    inRange = inRange && (entered.refused ? entered.advance == 0 : entered.advance >= 0);
    if (entered.refused) {
        Place(caret);
    } else if (dataClass_ == 'b') {
        steps_->Rewrite(&text);
        Place(0);
    } else {
        Place(caret + entered.advance);
    }
}

void EntryField::DeleteChar(bool stepForward)
{
    const int step = steps_->Delete(&text, caret);
    inRange = inRange && (step == 0 || step == 1);
    Place(caret + (stepForward ? step : 0));
}

void EntryField::DeleteBackwards()
{
    if (caret > 0) {
        Place(caret - 1);
        DeleteChar(dataClass_ == 'z');
    }
}

void EntryField::DeleteRange(int from, int to)
{
    Place(from);
    for (int i = from; i < to; ++i) {
        DeleteChar(true);
    }
    if (dataClass_ != 'z') {
        Place(from);
    }
}

// By the delete key: a text that goes as a whole may leave the null value.
void EntryField::DeleteSelected(int from, int to)
{
    if (clearAll && from == 0 && to == static_cast<int>(text.size())) {
        text.clear();
        isNull = true;
        Place(0);
    } else {
        DeleteRange(from, to);
    }
}

void EntryField::Press(const ScriptKey& key)
{
    const int length = static_cast<int>(text.size());
    const int from = std::min(key.from, length);
    const int to = std::min(key.to, length);
    switch (key.kind) {
    case ScriptKey::Type: TypeChar(key.ch, false); break;
    case ScriptKey::Delete: DeleteChar(true); break;
    case ScriptKey::Backspace: DeleteBackwards(); break;
    case ScriptKey::Move: Place(from); break;
    case ScriptKey::TypeOver:
        Place(to); // an empty selection is a caret
        DeleteRange(from, to);
        TypeChar(key.ch, from < to);
        break;
    case ScriptKey::DeleteOver:
        if (from < to) {
            DeleteSelected(from, to);
        } else {
            Place(to);
            DeleteChar(true);
        }
        break;
    case ScriptKey::Overwrite: overwrites_ = !overwrites_; break;
    case ScriptKey::DeleteAll:
        if (length > 0) {
            DeleteSelected(0, length);
        } else {
            DeleteChar(true);
        }
        break;
    }
}

std::vector<ScriptShape> ScriptShapesOf(char dataClass)
{
    switch (dataClass) {
    case 's': return { { 's', 's', nullptr, std::make_shared<TextModel>(), { "", "abc", "Quick fox" } } };
    case 'h': return { { 'h', 'h', nullptr, std::make_shared<CharacterModel>(), { "", "x", " ", "\xE4" } } };
    case 'b': return TruthShapes();
    case 'm': return MaskShapes();
    case 'c':
    case 'n': return NumberScriptShapes(dataClass);
    case 'z': return CalculatorScriptShapes();
    default: return DateScriptShapes(dataClass);
    }
}

std::string StoredText(char dataClass, char dataType, const void* data)
{
    char        text[64] = "";
    DateTimeRec rec = {};
    switch (dataClass) {
    case 'm':
    case 's': return static_cast<const char*>(data);
    case 'h': return std::string(static_cast<const char*>(data), *static_cast<const char*>(data) ? 1 : 0);
    case 'a':
    case 'd':
    case 'k':
    case 't':
        DataToDateTime(&rec, data, dataType);
        return ScriptDateText(rec.year, rec.month, rec.day, rec.hour, rec.minute, rec.second);
    default: std::snprintf(text, sizeof text, "%.17g", NumToDouble(data, dataType) + 0.0); return text;
    }
}

std::vector<ScriptKey> RandomScript(std::mt19937* random, const ScriptShape& shape, bool deletesAll)
{
    const std::string keys = KeysOf(shape.dataClass);
    const auto        pick = [&](size_t count) { return static_cast<int>((*random)() % count); };
    // Most scripts are short, as entries are.
    const int              most = pick(14) ? 6 : 40;
    std::vector<ScriptKey> script(static_cast<size_t>(1 + pick(static_cast<size_t>(most))));
    for (ScriptKey& key : script) {
        constexpr ScriptKey::Kind kinds[] = { ScriptKey::Delete, ScriptKey::Backspace, ScriptKey::Move,
                                              ScriptKey::Move,   ScriptKey::TypeOver,  ScriptKey::DeleteOver };
        const int                 kind = pick(24);
        key.kind = kind < 6                               ? kinds[kind]
                   : kind == 6 && shape.dataClass == 's' ? ScriptKey::Overwrite
                   : kind == 7 && deletesAll             ? ScriptKey::DeleteAll
                                                         : ScriptKey::Type;
        key.ch = keys[static_cast<size_t>(pick(keys.size()))];
        // A blank puts in the date of today there.
        key.ch = key.ch == ' ' && IsStamped(shape) ? '.' : key.ch;
        key.from = pick(13);
        key.to = key.from + pick(6);
    }
    return script;
}

std::string KeyText(const ScriptKey& key)
{
    const std::string range = std::to_string(key.from) + "-" + std::to_string(key.to);
    switch (key.kind) {
    case ScriptKey::Delete: return "{Del}";
    case ScriptKey::Backspace: return "{Back}";
    case ScriptKey::Move: return "{To " + std::to_string(key.from) + "}";
    case ScriptKey::TypeOver: return "{Over " + range + "}" + key.ch;
    case ScriptKey::DeleteOver: return "{Del " + range + "}";
    case ScriptKey::Overwrite: return "{Ins}";
    case ScriptKey::DeleteAll: return "{All}{Del}";
    default: return std::string(1, key.ch);
    }
}
