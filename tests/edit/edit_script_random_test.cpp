// Random scripts of keys in real fields: text, caret and value are those of the model of the field's class.
#include "edit_script.h"

namespace {

class EditScriptModel : public EditScript {
protected:
    void ExpectAsModelled(char dataClass, int scripts);

private:
    void MakeField(const ScriptShape& shape)
    {
        const std::string winText =
            std::string("%") + shape.dataClass + shape.dataType + (shape.format ? shape.format : "");
        edit = nullptr;
        Create(winText.c_str(), HES_AUTOHSCROLL, 300);
        // Out of sight and without a caret on the screen the same steps take a third of the time.
        ShowWindow(edit, SW_HIDE);
    }
    std::string Begin(const ScriptShape& shape, const std::string& start)
    {
        seen.Clear();
        char value[64] = {};
        ParseData(value, shape.dataClass, shape.dataType, shape.format, start.c_str(), 0);
        HEditSetData(Ctl(), value);
        RefreshText(Ctl(), true);
        Send(EM_SETSEL, 0, 0);
        return Text();
    }
    void        PressRandom(const ScriptKey& key) const;
    std::string RunRandom(const ScriptShape& shape, const std::string& start, const std::vector<ScriptKey>& script);
};

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
    }
}

std::string EditScriptModel::RunRandom(const ScriptShape& shape, const std::string& start,
                                       const std::vector<ScriptKey>& script)
{
    EntryField  model(shape.dataClass, shape.model.get(), Begin(shape, start));
    std::string keys = "from \"" + start + "\" by ";
    for (const ScriptKey& key : script) {
        keys += KeyText(key);
        PressRandom(key);
        model.Press(key);
        std::string expected = model.text;
        expected.insert(static_cast<size_t>(model.caret), 1, '|');
        if (Shown() != expected) {
            return keys + ": \"" + Shown() + "\" instead of \"" + expected + "\"";
        }
    }
    if (HasFlag(Ctl(), HEF_DIRTY)) {
        char value[512] = {};
        Send(HEM_COMMIT, 1);
        Send(HEM_GETDATA, sizeof value, AsParam(value));
        const std::string stored = StoredText(shape.dataClass, shape.dataType, value);
        if (stored != shape.model->Value(model.text)) {
            return keys + ": stored " + stored + " instead of " + shape.model->Value(model.text);
        }
    }
    return "";
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
        MakeField(shape);
        for (int i = 0; i < 1 + scripts / static_cast<int>(shapes.size()); ++i) {
            const std::string& start = shape.starts[random() % shape.starts.size()];
            ASSERT_EQ("", RunRandom(shape, start, RandomScript(&random, shape)))
                << "%" << shape.dataClass << shape.dataType << (shape.format ? shape.format : "");
        }
        DestroyWindow(edit);
    }
}

TEST_F(EditScriptModel, RandomTextIsTypedAsModelled)
{
    ExpectAsModelled('s', 2000);
}

TEST_F(EditScriptModel, RandomScriptsOfEveryOtherClassAreTypedAsModelled)
{
    for (const char dataClass : std::string("abcdhmntz")) {
        ExpectAsModelled(dataClass, 150);
    }
}

} // namespace
