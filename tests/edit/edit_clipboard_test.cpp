// Cut, copy and paste.
#include "edit_window.h"

#include <cstring>

namespace {

class EditClipboard : public EditWindow {
protected:
    EditClipboard() { SetClipboard("start"); }

    void Make(const char* text, DWORD style = 0)
    {
        edit = nullptr;
        Create(text, style | HES_AUTOHSCROLL);
        Focus();
    }
    // Another process may hold the clipboard for a moment.
    void Open() const
    {
        EXPECT_TRUE(PumpUntil([this] { return OpenClipboard(parent.hwnd()) != 0; }));
    }
    void SetClipboard(const char* text) const
    {
        Open();
        EmptyClipboard();
        if (text) {
            const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, std::strlen(text) + 1);
            std::strcpy(static_cast<char*>(GlobalLock(block)), text);
            GlobalUnlock(block);
            SetClipboardData(CF_TEXT, block);
        }
        CloseClipboard();
    }
    std::string Clipboard() const
    {
        Open();
        const HANDLE block = GetClipboardData(CF_TEXT);
        std::string  text = block ? static_cast<const char*>(GlobalLock(block)) : "(none)";
        if (block) {
            GlobalUnlock(block);
        }
        CloseClipboard();
        return text;
    }
};

TEST_F(EditClipboard, CopyPutsTheSelectionOnTheClipboard)
{
    Make("abcdef");
    Send(EM_SETSEL, 1, 4);
    EXPECT_EQ(1, Send(WM_COPY));
    EXPECT_EQ("bcd", Clipboard());
    EXPECT_EQ("abcdef", Text());
}

TEST_F(EditClipboard, CopyWithoutASelectionDoesNothingAndGivesOne)
{
    Make("abcdef");
    Send(EM_SETSEL, 2, 2);
    EXPECT_EQ(1, Send(WM_COPY));
    EXPECT_EQ("start", Clipboard());
}

TEST_F(EditClipboard, CutCopiesAndDeletes)
{
    Make("abcdef");
    Send(EM_SETSEL, 1, 4);
    EXPECT_EQ(1, Send(WM_CUT));
    EXPECT_EQ("bcd", Clipboard());
    EXPECT_EQ("aef", Text());
}

TEST_F(EditClipboard, CutOfAllUnderClearAllMakesTheValueNull)
{
    for (const char* const window : { "abcdef", "%nl", "%dl", "%ms##" }) {
        Make(window, HES_CLEARALL);
        const std::string before = Text();
        Send(EM_SETSEL, 0, -1);
        EXPECT_EQ(1, Send(WM_CUT));
        EXPECT_EQ(before, Clipboard()) << window;
        EXPECT_EQ("", Text()) << window;
        EXPECT_EQ(1, Send(WWM_ISNULL)) << window;
        DestroyWindow(edit);
    }
}

TEST_F(EditClipboard, CutOfAPartUnderClearAllGoesByTheRuleOfTheClass)
{
    Make("%ms##-##", HES_CLEARALL);
    SendText(HEM_SETDATA, 0, "1234");
    Send(EM_SETSEL, 0, 4);
    EXPECT_EQ(1, Send(WM_CUT));
    EXPECT_EQ("12-3", Clipboard());
    EXPECT_EQ("__-_4", Text());
    EXPECT_EQ(0, Send(WWM_ISNULL));
}

TEST_F(EditClipboard, CutWithoutASelectionDoesNothing)
{
    Make("abcdef");
    Send(EM_SETSEL, 2, 2);
    EXPECT_EQ(1, Send(WM_CUT));
    EXPECT_EQ("start", Clipboard());
    EXPECT_EQ("abcdef", Text());
}

TEST_F(EditClipboard, PasswordIsNeitherCutNorCopied)
{
    Make("abcdef", HES_PASSWORD);
    Send(EM_SETSEL, 0, 6);
    EXPECT_EQ(0, Send(WM_COPY));
    EXPECT_EQ(0, Send(WM_CUT));
    EXPECT_EQ("start", Clipboard());
    EXPECT_EQ("abcdef", Text());
}

TEST_F(EditClipboard, ReadOnlyFieldCanBeCopiedButNotCut)
{
    Make("abcdef", HES_READONLY);
    Send(EM_SETSEL, 0, 6);
    EXPECT_EQ(0, Send(WM_CUT));
    EXPECT_EQ("start", Clipboard());
    EXPECT_EQ(1, Send(WM_COPY));
    EXPECT_EQ("abcdef", Clipboard());
}

TEST_F(EditClipboard, PasteReplacesTheSelection)
{
    Make("abcdef");
    Send(EM_SETSEL, 1, 5);
    EXPECT_EQ(1, Send(WM_PASTE));
    EXPECT_EQ("astartf", Text());
}

TEST_F(EditClipboard, PasteIsFilteredCharacterByCharacter)
{
    SetClipboard("1,2 x3");
    Make("%nl");
    Send(EM_SETSEL, 0, 1);
    Send(WM_PASTE);
    EXPECT_EQ(std::string::npos, Text().find('x'));
    EXPECT_EQ('1', Text()[0]);
}

TEST_F(EditClipboard, PasteLeavesAReadOnlyFieldAlone)
{
    Make("abcdef", HES_READONLY);
    Send(EM_SETSEL, 1, 5);
    EXPECT_EQ(1, Send(WM_PASTE));
    EXPECT_EQ("abcdef", Text());
}

TEST_F(EditClipboard, PasteOfAnEmptyClipboardDoesNothing)
{
    SetClipboard(nullptr);
    Make("abcdef");
    Send(EM_SETSEL, 1, 5);
    EXPECT_EQ(1, Send(WM_PASTE));
    EXPECT_EQ("abcdef", Text());
}

// Another program that looks into the clipboard: it holds it until it is told, or for a few tries of ours.
struct ClipboardHolder {
    HANDLE holds = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    HANDLE letGo = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    DWORD  longest = 40; // milliseconds
    HANDLE thread = nullptr;

    static DWORD WINAPI Run(void* self)
    {
        const ClipboardHolder* const holder = static_cast<const ClipboardHolder*>(self);
        while (!OpenClipboard(nullptr)) {
            SwitchToThread();
        }
        SetEvent(holder->holds);
        WaitForSingleObject(holder->letGo, holder->longest);
        CloseClipboard();
        return 0;
    }
    void Start()
    {
        thread = CreateThread(nullptr, 0, Run, this, 0, nullptr);
        WaitForSingleObject(holds, INFINITE);
    }
    ~ClipboardHolder()
    {
        SetEvent(letGo);
        for (const HANDLE handle : { thread, holds, letGo }) {
            WaitForSingleObject(handle, INFINITE);
            CloseHandle(handle);
        }
    }
};

TEST_F(EditClipboard, PasteWaitsForAProgramThatHoldsTheClipboard)
{
    Make("abcdef");
    Send(EM_SETSEL, 1, 5);
    ClipboardHolder holder;
    holder.Start();
    EXPECT_EQ(1, Send(WM_PASTE));
    EXPECT_EQ("astartf", Text());
}

TEST_F(EditClipboard, CutKeepsWhatTheClipboardDoesNotTake)
{
    Make("abcdef");
    Send(EM_SETSEL, 1, 5);
    ClipboardHolder holder;
    holder.longest = INFINITE;
    holder.Start();
    EXPECT_EQ(0, Send(WM_CUT));
    EXPECT_EQ("abcdef", Text());
}

TEST_F(EditClipboard, PasteGivesUpOnAProgramThatKeepsTheClipboard)
{
    Make("abcdef");
    Send(EM_SETSEL, 1, 5);
    ClipboardHolder holder;
    holder.longest = INFINITE;
    holder.Start();
    EXPECT_EQ(1, Send(WM_PASTE));
    EXPECT_EQ("abcdef", Text());
}

} // namespace
