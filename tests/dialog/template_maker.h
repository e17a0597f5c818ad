// Dialog templates as bytes, written field by field.
#pragma once

#include <windows.h>

#include <cstring>
#include <string>
#include <vector>

using Bytes = std::vector<BYTE>;
using Words = std::vector<WORD>; // a wide text without its end

inline Words Wide(const std::string& text)
{
    return Words(text.begin(), text.end());
}

struct TestItem {
    Words className = Wide("STATIC"); // 0xFFFF and a number for an atom
    Words title;
    DWORD style = WS_CHILD;
    SHORT x = 0;
    SHORT y = 0;
    SHORT cx = 10;
    SHORT cy = 10;
    WORD  id = 100;
    Bytes data;

    bool HasAtom() const { return className.size() == 2 && className[0] == 0xFFFF; }
};

struct TestTemplate {
    DWORD                 style = 0;
    SHORT                 cx = 100;
    SHORT                 cy = 50;
    Words                 menu;
    Words                 className;
    Words                 title;
    bool                  hasFont = false;
    WORD                  points = 8;
    Words                 face = Wide("Arial");
    std::vector<TestItem> items;
    int                   count = -1; // what the template says; -1: the number of items
};

class TemplateWriter {
public:
    explicit TemplateWriter(const TestTemplate& from)
    {
        Put(static_cast<DWORD>(from.style | (from.hasFont ? 0x40u : 0u)));
        Put(DWORD{ 0x04030201 }); // extended style
        Put(static_cast<WORD>(from.count < 0 ? from.items.size() : static_cast<size_t>(from.count)));
        Put(WORD{ 3 });
        Put(WORD{ 4 });
        Put(from.cx);
        Put(from.cy);
        PutText(from.menu);
        PutText(from.className);
        PutText(from.title);
        if (from.hasFont) {
            Put(from.points);
            PutText(from.face);
        }
        headerSize = bytes.size();
        for (const TestItem& item : from.items) {
            PutItem(item);
        }
    }

    Bytes               bytes;
    size_t              headerSize;
    std::vector<size_t> itemEnds; // where each item is whole

private:
    template <typename T>
    void Put(T value)
    {
        const size_t at = bytes.size();
        bytes.resize(at + sizeof value);
        std::memcpy(&bytes[at], &value, sizeof value);
    }

    void PutText(const Words& text)
    {
        for (const WORD character : text) {
            Put(character);
        }
        Put(WORD{ 0 });
    }

    void PutClass(const TestItem& item)
    {
        if (item.HasAtom()) {
            Put(item.className[0]);
            Put(item.className[1]);
        } else {
            PutText(item.className);
        }
    }

    void PutItem(const TestItem& item)
    {
        bytes.resize((bytes.size() + 3) / 4 * 4, 0xEE);
        Put(item.style);
        Put(DWORD{ 0x08070605 }); // extended style
        for (const SHORT number : { item.x, item.y, item.cx, item.cy }) {
            Put(number);
        }
        Put(item.id);
        PutClass(item);
        PutText(item.title);
        Put(static_cast<WORD>(item.data.size()));
        bytes.insert(bytes.end(), item.data.begin(), item.data.end());
        itemEnds.push_back(bytes.size());
    }
};

inline Bytes BytesOf(const TestTemplate& from)
{
    return TemplateWriter(from).bytes;
}
