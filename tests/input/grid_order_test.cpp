// What is told, and where the focus goes, while a date is typed into a cell and the cell is left: all of it, in order.
#include "input/input_grid.h"

#include <algorithm>

namespace {

constexpr LPARAM editorId = 200;
constexpr int    dateLength = 8; // of an empty date under d/m/yyyy

LPARAM EditorTells(int code)
{
    return static_cast<LPARAM>(MAKEWPARAM(editorId, code));
}

using Sequence = std::vector<Seen>;

class GridOrder : public InputGrid {
protected:
    // A date and a text, the date of the middle row current, and everything watched from now on.
    void MakeWatched()
    {
        Make({ dateColumn, textColumn }, 3);
        Click({ 0, 1 });
        editor = Child(0);
        seen.Watch(editor);
        seen.Watch(Child(1));
        seen.Watch(grid);
        // Of painting, and of the fixture when it looks where a cell is.
        for (const UINT message : { WWM_GETSTATE, WM_CTLCOLOREDIT, HGM_GETDATA, HGM_GETHPOS, HGM_GETTOPRECORD }) {
            seen.Skip(message);
        }
        Clear();
    }
    SeenArg Window(HWND hwnd) const { return reinterpret_cast<LPARAM>(hwnd); }

    void Add(std::initializer_list<Seen> lines) { expected.insert(expected.end(), lines); }
    void AddChange(int depth)
    {
        Add({ { depth, ToGrid, WM_COMMAND, EditorTells(HEN_UPDATE), Window(editor) },
              { depth, ToGrid, WM_COMMAND, EditorTells(HEN_CHANGE), Window(editor) } });
    }
    // The first key gives the editor the focus, and goes there.
    void AddStartOfEdit(WPARAM vk)
    {
        const LPARAM key = static_cast<LPARAM>(vk);
        Add({ { 0, ToGrid, WM_KEYDOWN, key },
              { 1, ToGrid, WM_KILLFOCUS, Window(editor) },
              { 1, ToEdit, WM_SETFOCUS, Window(grid) },
              { 2, ToGrid, WWM_CHILDFOCUS, 0, 0 },
              { 3, ToParent, HGN_EDITFOCUS, 100, Window(grid) },
              { 2, ToGrid, WM_COMMAND, EditorTells(HEN_SETFOCUS), Window(editor) },
              { 1, ToEdit, WM_KEYDOWN, key } });
    }
    // All of the old text is selected, and goes a character at a time while the field says that the change is its own.
    void AddDroppedSelection(int depth)
    {
        Add({ { depth, ToEdit, WWM_GETUPDATING },
              { depth, ToEdit, WWM_SETUPDATING, 1 },
              { depth, ToEdit, WM_SETREDRAW, 0 },
              { depth, ToEdit, WWM_GETUPDATING },
              { depth, ToEdit, WWM_SETUPDATING, 1 } });
        for (int i = 0; i < dateLength; ++i) {
            AddChange(depth);
        }
        Add({ { depth, ToEdit, WWM_SETUPDATING, 1 },
              { depth, ToGrid, WM_COMMAND, EditorTells(HEN_UPDATE), Window(editor) },
              { depth, ToEdit, WM_SETREDRAW, 1 },
              { depth, ToGrid, WM_COMMAND, EditorTells(HEN_CHANGE), Window(editor) },
              { depth, ToEdit, WWM_SETUPDATING, 0 } });
    }
    // The first character still comes to the grid, which hands it on.
    void AddFirstCharacter(char ch)
    {
        Add({ { 0, ToGrid, WM_CHAR, ch }, { 1, ToEdit, WM_CHAR, ch } });
        AddDroppedSelection(2);
        AddChange(2);
    }
    void AddCharacter(char ch)
    {
        Add({ { 0, ToEdit, WM_KEYDOWN, ch }, { 0, ToEdit, WM_CHAR, ch } });
        AddChange(1);
        Add({ { 0, ToEdit, WM_KEYUP, ch } });
    }
    void AddTyping(const std::string& digits)
    {
        AddStartOfEdit(static_cast<WPARAM>(digits.front()));
        AddFirstCharacter(digits.front());
        Add({ { 0, ToEdit, WM_KEYUP, digits.front() } });
        std::for_each(digits.begin() + 1, digits.end(), [this](char ch) { AddCharacter(ch); });
    }
    // The focus comes back to the grid, which takes the value.
    void AddCommit(int depth)
    {
        Add({ { depth, ToEdit, WM_KILLFOCUS, Window(grid) },
              { depth + 1, ToGrid, WWM_CHILDBLUR, 0, 0 },
              { depth + 2, ToParent, HGN_EDITBLUR, 100, Window(grid) },
              { depth + 1, ToGrid, WM_COMMAND, EditorTells(HEN_KILLFOCUS), Window(editor) },
              { depth, ToGrid, WM_SETFOCUS, Window(editor) },
              { depth, ToEdit, WWM_GETCHANGED },
              { depth, ToEdit, HEM_GETDATA, 4 },
              { depth, ToEdit, WWM_SETCHANGED, 0 },
              { depth, ToParent, HGN_CELLCHANGED, 100 } });
    }
    void AddNewEditor(int depth, bool moved)
    {
        Add({ { depth, ToEdit, HEM_SETDATA, 0 } });
        for (int i = 0; i < (moved ? 2 : 1); ++i) { // of a window that is moved, and of the grid with the cell's size
            Add({ { depth, ToEdit, WM_SIZE }, { depth + 1, ToEdit, HEM_SETRECT, 0, 0 } });
        }
    }

    HWND     editor = nullptr;
    Sequence expected;
};

TEST_F(GridOrder, OfADateThatIsTypedAndLeftWithTab)
{
    MakeWatched();
    Type("17052024{Tab}");
    AddTyping("17052024");
    Add({ { 0, ToEdit, WM_KEYDOWN, VK_TAB }, { 1, ToGrid, WM_KEYDOWN, VK_TAB } });
    AddCommit(2);
    Add({ { 2, ToParent, HGN_MOVING, 100 }, { 2, ToParent, HGN_MOVED, 100 } });
    AddNewEditor(2, true);
    Add({ { 0, ToEdit, WM_CHAR, VK_TAB }, { 0, ToGrid, WM_KEYUP, VK_TAB } });
    EXPECT_SEEN(expected);
    EXPECT_EQ(Hex(Raw(20240517)), Hex(Bytes(0, 1)));
    ExpectEditorStandsBy("after Tab");
}

TEST_F(GridOrder, OfADateThatIsTypedAndLeftWithDown)
{
    MakeWatched();
    Type("17052024{Down}");
    AddTyping("17052024");
    Add({ { 0, ToEdit, WM_KEYDOWN, VK_DOWN }, { 1, ToGrid, WM_KEYDOWN, VK_DOWN } });
    AddCommit(2);
    Add({ { 2, ToParent, HGN_MOVING, 100 }, { 2, ToParent, HGN_MOVED, 100 }, { 2, ToParent, HGN_ROWCHANGED, 100 } });
    AddNewEditor(2, false);
    Add({ { 0, ToGrid, WM_KEYUP, VK_DOWN } });
    EXPECT_SEEN(expected);
    EXPECT_EQ(Hex(Raw(20240517)), Hex(Bytes(0, 1)));
    ExpectEditorStandsBy("after Down");
}

TEST_F(GridOrder, OfADateThatIsTypedAndTakenBackWithEscape)
{
    MakeWatched();
    Type("17{Esc}");
    AddTyping("17");
    Add({ { 0, ToEdit, WM_KEYDOWN, VK_ESCAPE },
          { 1, ToGrid, WM_KEYDOWN, VK_ESCAPE },
          { 2, ToEdit, WM_KILLFOCUS, Window(grid) },
          { 3, ToGrid, WWM_CHILDBLUR, 0, 0 },
          { 4, ToParent, HGN_EDITBLUR, 100 },
          { 3, ToGrid, WM_COMMAND, EditorTells(HEN_KILLFOCUS) },
          { 2, ToGrid, WM_SETFOCUS, Window(editor) },
          { 2, ToEdit, HEM_SETDATA, 0 },
          { 0, ToEdit, WM_CHAR, VK_ESCAPE },
          { 0, ToGrid, WM_KEYUP, VK_ESCAPE } });
    EXPECT_SEEN(expected);
    EXPECT_EQ(Hex(Raw(0)), Hex(Bytes(0, 1)));
    ExpectEditorStandsBy("after Escape");
}

TEST_F(GridOrder, OfADateThatIsTypedAndLeftForAnotherControl)
{
    MakeWatched();
    Type("17052024");
    Clear();
    Leave();
    Add({ { 0, ToEdit, WM_KILLFOCUS, Window(button) },
          { 1, ToGrid, WWM_CHILDBLUR, 0, 0 },
          { 2, ToEdit, WWM_GETCHANGED },
          { 2, ToEdit, HEM_GETDATA, 4 },
          { 2, ToEdit, WWM_SETCHANGED, 0 },
          { 2, ToParent, HGN_CELLCHANGED, 100 },
          { 2, ToParent, HGN_KILLFOCUS, 100 },
          { 2, ToParent, HGN_EDITBLUR, 100 },
          { 1, ToGrid, WM_COMMAND, EditorTells(HEN_KILLFOCUS) },
          { 0, ToParent, BN_CLICKED, 8, Window(button) } });
    EXPECT_SEEN(expected);
    EXPECT_EQ(Hex(Raw(20240517)), Hex(Bytes(0, 1)));
    EXPECT_EQ(button, GetFocus());
    ExpectNoEditor();
}

TEST_F(GridOrder, OfADateThatIsTypedAndLeftByAClickOnAnotherCell)
{
    MakeWatched();
    Type("17052024");
    Clear();
    Click({ 1, 2 });
    Add({ { 0, ToGrid, WM_MOUSEMOVE }, { 0, ToGrid, WM_LBUTTONDOWN, MK_LBUTTON } });
    AddCommit(1);
    Add({ { 1, ToParent, HGN_MOVING, 100 }, { 1, ToParent, HGN_MOVED, 100 }, { 1, ToParent, HGN_ROWCHANGED, 100 } });
    AddNewEditor(1, true);
    Add({ { 0, ToGrid, WM_LBUTTONUP, 0 } });
    EXPECT_SEEN(expected);
    EXPECT_EQ(Hex(Raw(20240517)), Hex(Bytes(0, 1)));
    ExpectEditorStandsBy("after the click");
}

// What a host finds when it looks around inside each notification of one edit.
TEST_F(GridOrder, OfFocusAndValueAsTheHostSeesThem)
{
    Make({ dateColumn, textColumn }, 3);
    Click({ 0, 1 });
    std::string view;
    for (const int code : { HGN_EDITFOCUS, HGN_EDITBLUR, HGN_CELLCHANGED, HGN_MOVING, HGN_MOVED, HGN_ROWCHANGED }) {
        parent.On(code, [this, code, &view] {
            const CellAt cell = Current();
            view += std::to_string(code) + ": focus " + (GetFocus() == grid ? "grid" : "editor") + " at " +
                    std::to_string(cell.col) + "," + std::to_string(cell.row) + " value " + Text(0, 1) + "\n";
        });
    }
    Type("17052024{Down}");
    EXPECT_EQ("37: focus editor at 0,1 value  . .    \n"
              "41: focus grid at 0,1 value  . .    \n"
              "19: focus grid at 0,1 value 17.05.2024\n"
              "24: focus grid at 0,1 value 17.05.2024\n"
              "3: focus grid at 0,2 value 17.05.2024\n"
              "18: focus grid at 0,2 value 17.05.2024\n",
              view);
}

} // namespace
