// The fixture of tests of columns of combos, with an edit (kind c) and with a field (kind d), with codes and without.
#pragma once

#include "combo/combo_control.h"
#include "gridctl/cell_controls.h"
#include "gridctl/grid_editing.h"
#include "support/mouse_hooks.h"
#include "support/pixels.h"

#include <functional>
#include <string>
#include <vector>

class GridComboCells : public GridEditing {
protected:
    using Ints = std::vector<int>;

    struct Kind {
        char kind;
        bool code;
    };
    static constexpr Kind kinds[] = { { 'c', false }, { 'c', true }, { 'd', false }, { 'd', true } };

    GridComboCells() { seen.NotificationsOnly(); }
    ~GridComboCells() override
    {
        if (IsWindow(grid)) {
            DestroyWindow(grid);
        }
        EXPECT_EQ(0, LiveHooks());
        EXPECT_EQ(nullptr, GetCapture());
    }
    static std::string NameOf(const Kind& kind) { return std::string(1, kind.kind) + (kind.code ? " with codes" : ""); }
    // Four rows of a column of combos with the items red 3, green 1 and blue 2, which stores a text or its code, and of
    // a text.
    void MakeColumn(const Kind& kind, DWORD ctlStyle = 0)
    {
        HGField* const field =
            kind.code ? HGFieldCreate("Colour", HFF_CODE, 80, 60, 's', 's', 'n', 'l', 16, kind.kind, ctlStyle, "", 0)
                      : HGFieldCreate("Colour", 0, 80, 60, 's', 's', 0, 0, 16, kind.kind, ctlStyle, "", 0);
        code_ = kind.code;
        MakeGrid(GridOf({ field, Text() }), 4);
        AddItems({ "red", "green", "blue" });
        // A list that opens beneath the pointer has a marked row.
        MoveMouse(parent.hwnd(), 700, 500);
        SetFocus(grid);
        Forget();
    }
    void AddItems(std::initializer_list<const char*> names)
    {
        constexpr LONG codes[] = { 3, 1, 2, 9 };
        int            i = 0;
        for (const char* const name : names) {
            EXPECT_EQ(i, HCAddItemEx(ChildOf(0), name, code_ ? &codes[i] : nullptr));
            ++i;
        }
    }
    // The item with its own way of being stored.
    void Store(int row, const char* name, LONG code)
    {
        HGSetCellData(grid, 0, row, code_ ? static_cast<const void*>(&code) : name);
    }
    LONG        Stored(int row) { return LoadAs<LONG>(HGCellPtr(ctl->pData, 0, row)); }
    HCombCtl*   Combo() { return RecordOf<HCombCtl>(ChildOf(0)); }
    HWND        Drop() { return Combo()->hDrop; }
    HWND        Face() { return Combo()->hChild; }
    bool        IsOpen() { return Send(ChildOf(0), CB_GETDROPPEDSTATE) != 0; }
    std::string Shown() { return TextOf(ChildOf(0)); }
    void        ClickRow(int row)
    {
        RECT rect = {};
        SendPtr(Drop(), HLM_GETITEMRECT, static_cast<WPARAM>(row), &rect);
        ClickAt(Drop(), 10, static_cast<int>(rect.top + rect.bottom) / 2);
    }
    Ints Told()
    {
        Ints codes;
        for (const Seen& line : seen.All()) {
            codes.push_back(static_cast<int>(line.code));
        }
        seen.Clear();
        return codes;
    }
    void ExpectOpenInCell(int row)
    {
        RECT list;
        RECT cell;
        GetWindowRect(Drop(), &list);
        HGCellRect(ctl, &cell, 0, row, true);
        MapWindowPoints(grid, nullptr, reinterpret_cast<POINT*>(&cell), 2);
        EXPECT_TRUE(IsOpen());
        EXPECT_TRUE(IsWindowVisible(Drop()));
        EXPECT_EQ(cell.bottom, list.top);
        EXPECT_EQ(Face(), GetFocus());
        EXPECT_EQ(1, LiveHooks());
    }
    bool IsCoded() const { return code_; }
    void ForEachKind(const std::function<void()>& test)
    {
        for (const Kind& kind : kinds) {
            SCOPED_TRACE(NameOf(kind));
            MakeColumn(kind);
            test();
            DestroyWindow(grid);
        }
    }

private:
    bool code_ = false;
};
