// Random scripts of keys in real fields: text, caret and value are those of the model of the field's class.
#include "edit_script.h"

namespace {

class EditScriptModel : public EditScript {
protected:
    void ExpectAsModelled(char dataClass, int scripts);

private:
    void        MakeField(const ScriptShape& shape, bool clearAll);
    std::string Begin(const ScriptShape& shape, const std::string* start);
    void        PressRandom(const ScriptKey& key) const;
    std::string StoredAs(const ScriptShape& shape) const;
    std::string Type(EntryField* model, const std::vector<ScriptKey>& script);
    std::string Leave(const ScriptShape& shape, const EntryField& model);
    std::string Reenter(const ScriptShape& shape, const std::string& typed);
    std::string RunRandom(const ScriptShape& shape, const std::string* start, const std::vector<ScriptKey>& script);

    bool clearAll_ = false;
    int  notLeft_ = 0; // scripts whose text is none to leave the field with
    int  left_ = 0;
};

void EditScriptModel::MakeField(const ScriptShape& shape, bool clearAll)
{
    const std::string winText =
        std::string("%") + shape.dataClass + shape.dataType + (shape.format ? shape.format : "");
    clearAll_ = clearAll;
    edit = nullptr;
    Create(winText.c_str(), HES_AUTOHSCROLL | (clearAll ? HES_CLEARALL : 0), 300);
    // Out of sight and without a caret on the screen the same steps take a third of the time.
    ShowWindow(edit, SW_HIDE);
}

// start null: the null value.
std::string EditScriptModel::Begin(const ScriptShape& shape, const std::string* start)
{
    seen.Clear();
    SetOverwriteMode(0);
    char value[64] = {};
    if (start) {
        ParseData(value, shape.dataClass, shape.dataType, shape.format, start->c_str(), 0);
    }
    HEditSetData(Ctl(), start ? value : nullptr);
    RefreshText(Ctl(), true);
    Send(EM_SETSEL, 0, 0);
    return Text();
}

void EditScriptModel::PressRandom(const ScriptKey& key) const
{
    switch (key.kind) {
    case ScriptKey::Type: Send(WM_CHAR, static_cast<BYTE>(key.ch)); break;
    case ScriptKey::Delete: Send(WM_KEYDOWN, VK_DELETE); break;
    case ScriptKey::Backspace: Send(WM_CHAR, VK_BACK); break;
    case ScriptKey::Move: Send(EM_SETSEL, static_cast<WPARAM>(key.from), key.from); break;
    case ScriptKey::TypeOver:
        Send(EM_SETSEL, static_cast<WPARAM>(key.from), key.to);
        Send(WM_CHAR, static_cast<BYTE>(key.ch));
        break;
    case ScriptKey::DeleteOver:
        Send(EM_SETSEL, static_cast<WPARAM>(key.from), key.to);
        Send(WM_KEYDOWN, VK_DELETE);
        break;
    case ScriptKey::Overwrite: Send(WM_KEYDOWN, VK_INSERT); break;
    case ScriptKey::DeleteAll:
        Send(EM_SETSEL, 0, -1);
        Send(WM_KEYDOWN, VK_DELETE);
        break;
    }
}

std::string EditScriptModel::StoredAs(const ScriptShape& shape) const
{
    char value[512] = {};
    Send(HEM_GETDATA, sizeof value, AsParam(value));
    return Send(WWM_ISNULL) ? "null" : StoredText(shape.dataClass, shape.dataType, value);
}

std::string EditScriptModel::Type(EntryField* model, const std::vector<ScriptKey>& script)
{
    std::string keys;
    for (const ScriptKey& key : script) {
        keys += KeyText(key);
        PressRandom(key);
        model->Press(key);
        std::string expected = model->text;
        expected.insert(static_cast<size_t>(model->caret), 1, '|');
        if (Shown() != expected) {
            return keys + ": \"" + Shown() + "\" instead of \"" + expected + "\"";
        }
    }
    return "";
}

// What the field stores when it is left. An emptied date stays null, and so does one with a text that is no date.
std::string EditScriptModel::Leave(const ScriptShape& shape, const EntryField& model)
{
    char      value[512] = {};
    const int unread = ParseData(value, shape.dataClass, shape.dataType, shape.format, model.text.c_str(), 0);
    Send(HEM_COMMIT, 1);
    if (model.isNull && (model.text.empty() || unread)) {
        return StoredAs(shape) == "null" ? "" : "stored " + StoredAs(shape) + " instead of null";
    }
    if (!shape.model->HoldsValue(model.text)) {
        ++notLeft_;
        return "";
    }
    const std::string expected = shape.model->Committed(model.text);
    return StoredAs(shape) == expected ? "" : "stored " + StoredAs(shape) + " instead of " + expected;
}

// The field shows its value when it is entered again, and keeps it when it is left without a key.
std::string EditScriptModel::Reenter(const ScriptShape& shape, const std::string& typed)
{
    const std::string stored = StoredAs(shape);
    const bool        isWhole = shape.model->HoldsValue(typed) && shape.model->ReadsBack(typed) &&
                         shape.model->Committed(typed) == shape.model->Value(typed);
    RefreshText(Ctl(), false);
    RefreshText(Ctl(), true);
    if (stored == "null" || HasFlag(Ctl(), HEF_DIRTY) || !isWhole) {
        return "";
    }
    ++left_;
    if (shape.model->Value(Text()) != stored) {
        return "stored " + stored + " shows as \"" + Text() + "\"";
    }
    Send(HEM_COMMIT, 1);
    return StoredAs(shape) == stored ? "" : "left without a key it became " + StoredAs(shape);
}

std::string EditScriptModel::RunRandom(const ScriptShape& shape, const std::string* start,
                                       const std::vector<ScriptKey>& script)
{
    EntryField model(shape.dataClass, shape.model.get(), Begin(shape, start));
    model.clearAll = clearAll_;
    model.isNull = !start;
    std::string fault = Type(&model, script);
    if (fault.empty() && HasFlag(Ctl(), HEF_DIRTY)) {
        fault = Leave(shape, model);
        fault = fault.empty() ? Reenter(shape, model.text) : fault;
        fault = fault.empty() ? "" : model.text + ": " + fault;
    }
    return fault.empty() ? "" : "from " + (start ? "\"" + *start + "\"" : "null") + " by " + fault;
}

void EditScriptModel::ExpectAsModelled(char dataClass, int scripts)
{
    std::mt19937                   random(static_cast<uint32_t>(dataClass) + 1000);
    const std::vector<ScriptShape> shapes = ScriptShapesOf(dataClass);
    for (size_t s = 0; s < shapes.size(); ++s) {
        const ScriptShape& shape = shapes[s];
        if (!shape.format && std::strchr("adt", dataClass)) {
            continue; // a field always has a format
        }
        for (const bool clearAll : { false, true }) {
            MakeField(shape, clearAll);
            for (int i = 0; i < 1 + scripts / static_cast<int>(2 * shapes.size()); ++i) {
                const size_t             pick = random() % (shape.starts.size() + (clearAll ? 1 : 0));
                const std::string* const start = pick < shape.starts.size() ? &shape.starts[pick] : nullptr;
                ASSERT_EQ("", RunRandom(shape, start, RandomScript(&random, shape, clearAll)))
                    << "%" << shape.dataClass << shape.dataType << (shape.format ? shape.format : "");
            }
            DestroyWindow(edit);
        }
    }
    EXPECT_GT(left_, notLeft_) << "most scripts must end in a value";
}

TEST_F(EditScriptModel, RandomTextIsTypedAsModelled)
{
    ExpectAsModelled('s', 10000);
}

TEST_F(EditScriptModel, RandomScriptsOfEveryOtherClassAreTypedAsModelled)
{
    for (const char dataClass : std::string("abcdhkmntz")) {
        ExpectAsModelled(dataClass, 300);
    }
}

} // namespace
