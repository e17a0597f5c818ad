// Scripts of keystrokes and what each class of values makes of them: a model of every entry step, written anew on
// strings, and the field around it. The shapes give the places of their pictures by hand, so no picture is read here.
#pragma once

#include <widgets/widgets.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

struct ScriptEntered {
    bool refused;
    int  advance;
};

// What a field asks of the class of its value. A refused character may have changed the text all the same.
class EntrySteps {
public:
    virtual ~EntrySteps() = default;
    virtual ScriptEntered Filter(std::string* text, int pos, char ch) = 0;
    virtual int           Delete(std::string* text, int pos) = 0; // gives the step of the caret
    // What an empty text becomes before something is typed into it.
    virtual std::string Blank() { return ""; }
    // A taken character of a truth value has the text written anew.
    virtual void Rewrite(std::string*) {}
};

class EntryModel : public EntrySteps {
public:
    virtual std::string Value(const std::string& text) const = 0; // as StoredText shows it
    // The value that a field stores of the text when it is left.
    virtual std::string Committed(const std::string& text) const { return Value(text); }
    // Whether the text has a value of its own, which the type can hold.
    virtual bool HoldsValue(const std::string&) const { return true; }
    virtual size_t      MostCharacters() const { return 0; }      // 0: as many as are typed
    // Whether the text shows its value in full, so that the value printed and read again is the same one.
    virtual bool ReadsBack(const std::string&) const { return true; }
};

struct ScriptKey {
    enum Kind { Type, Delete, Backspace, Move, TypeOver, DeleteOver, Overwrite, DeleteAll } kind;
    char ch;
    int  from; // of the selection, or where the caret goes
    int  to;
};

// The text and caret of a field, moved as the edit control moves them.
class EntryField {
public:
    EntryField(char dataClass, EntrySteps* steps, const std::string& start)
        : text(start), caret(0), dataClass_(dataClass), steps_(steps)
    {
    }
    void Press(const ScriptKey& key);

    std::string text;
    int         caret;
    bool        inRange = true;   // every advance stayed so
    bool        clearAll = false; // deleting all text at once makes the value null
    bool        isNull = false;

private:
    void Place(int index);
    void TypeChar(char ch, bool replacing);
    void DeleteChar(bool stepForward);
    void DeleteBackwards();
    void DeleteRange(int from, int to);
    void DeleteSelected(int from, int to);

    char        dataClass_;
    EntrySteps* steps_;
    bool        overwrites_ = false;
};

// A picture of a class with its model, and the values that its scripts begin with.
struct ScriptShape {
    char                        dataClass;
    char                        dataType;
    const char*                 format; // may be null
    std::shared_ptr<EntryModel> model;
    std::vector<std::string>    starts; // texts that are read into the value
};

std::vector<ScriptShape> ScriptShapesOf(char dataClass);

std::string StoredText(char dataClass, char dataType, const void* data);

// One to forty keys. They are the same ones on every platform for equal seeds.
std::vector<ScriptKey> RandomScript(std::mt19937* random, const ScriptShape& shape, bool deletesAll = false);
std::string            KeyText(const ScriptKey& key);
