// Scripts of typed keys.
#include "input/key_script.h"

#include "support/input.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

struct NamedKey {
    std::string_view name;
    WORD             vk;
};
struct NamedModifier {
    std::string_view name;
    unsigned         modifier;
};

// clang-format off
constexpr NamedKey namedKeys[] = {
    { "Home", VK_HOME },    { "End", VK_END },      { "Left", VK_LEFT },     { "Right", VK_RIGHT }, { "Up", VK_UP },
    { "Down", VK_DOWN },    { "PgUp", VK_PRIOR },   { "PgDn", VK_NEXT },     { "Del", VK_DELETE },  { "Back", VK_BACK },
    { "Ins", VK_INSERT },   { "Tab", VK_TAB },      { "Enter", VK_RETURN },  { "Esc", VK_ESCAPE },  { "Space", VK_SPACE },
    { "F1", VK_F1 },        { "F2", VK_F2 },        { "F4", VK_F4 },         { "F5", VK_F5 },       { "F6", VK_F6 },
    { "C", 'C' },           { "S", 'S' },           { "V", 'V' },            { "X", 'X' },          { "Z", 'Z' },
    { "F", 'F' },           { "R", 'R' },           { "N", 'N' },            { "D", 'D' },
};
constexpr NamedModifier namedModifiers[] = { { "Shift", withShift }, { "Ctrl", withCtrl }, { "Alt", withAlt } };
// clang-format on

unsigned ModifierOf(std::string_view name)
{
    for (const NamedModifier& named : namedModifiers) {
        if (named.name == name) {
            return named.modifier;
        }
    }
    ADD_FAILURE() << "no modifier: " << name;
    return withNone;
}

WORD KeyOf(std::string_view name)
{
    for (const NamedKey& named : namedKeys) {
        if (named.name == name) {
            return named.vk;
        }
    }
    ADD_FAILURE() << "no key: " << name;
    return 0;
}

KeyPress NamedPress(std::string_view text)
{
    KeyPress press = { 0, withNone };
    for (size_t plus = text.find('+'); plus != std::string_view::npos; plus = text.find('+')) {
        press.modifiers |= ModifierOf(text.substr(0, plus));
        text.remove_prefix(plus + 1);
    }
    press.vk = KeyOf(text);
    return press;
}

KeyPress CharPress(char ch)
{
    const SHORT key = VkKeyScanA(ch);
    EXPECT_NE(-1, key) << "the keyboard has no key for " << ch;
    return { LOBYTE(key), HIBYTE(key) & (withShift | withCtrl | withAlt) };
}

std::vector<KeyPress> Read(std::string_view script)
{
    std::vector<KeyPress> keys;
    while (!script.empty()) {
        const size_t end = script.front() == '{' ? script.find('}') : 0;
        EXPECT_NE(std::string_view::npos, end) << script;
        keys.push_back(end ? NamedPress(script.substr(1, end - 1)) : CharPress(script.front()));
        script.remove_prefix(end + 1);
    }
    return keys;
}

} // namespace

void Type(const char* script)
{
    for (const KeyPress& key : Read(script)) {
        TypeKeys({ &key, 1 });
    }
}

void TypeAhead(const char* script)
{
    TypeKeys(Read(script));
}
