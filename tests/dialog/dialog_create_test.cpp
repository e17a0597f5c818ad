// Controls of templates in a window.
#include "dialog/template_window.h"

#include "dialog/control_frame.h"
#include "support/screen_resolution.h"

namespace {

constexpr DWORD tabStop = WS_TABSTOP;

struct Units {
    int x;
    int y;
};

Units UnitsOfSystem()
{
    const DWORD units = static_cast<DWORD>(GetDialogBaseUnits());
    return { LOWORD(units), HIWORD(units) };
}

Units UnitsOf(HFONT font)
{
    const DWORD units = GetBaseUnits(font);
    return { LOWORD(units), HIWORD(units) };
}

LOGFONTA LogicalFont(HFONT font)
{
    LOGFONTA logical = {};
    GetObjectA(font, sizeof logical, &logical);
    return logical;
}

TestTemplate TwoControls()
{
    TestTemplate from;
    from.items = { Static(1, "one"), Static(2, "two", tabStop) };
    return from;
}

TestTemplate WithFont()
{
    TestTemplate from = TwoControls();
    from.hasFont = true;
    return from;
}

class DialogInWin : public TemplateWindow {};

TEST_F(DialogInWin, GivesTheFirstTabStop)
{
    EXPECT_EQ(Child(2), Make(TwoControls()));
    EXPECT_NE(nullptr, Child(2));
}

TEST_F(DialogInWin, GivesTheFirstChildWhereNoneIsATabStop)
{
    TestTemplate from;
    from.items = { Static(1), Static(2) };
    EXPECT_EQ(Child(1), Make(from));
    EXPECT_NE(nullptr, Child(1));
}

TEST_F(DialogInWin, GivesNullWithoutControls)
{
    RECT rect = {};
    EXPECT_EQ(nullptr, Make({}, &rect));
    EXPECT_EQ(0, ChildCount());
    EXPECT_NE(0, rect.right) << "the dialog has its size";
}

TEST_F(DialogInWin, GivesNullAndChangesNothingWithoutATemplate)
{
    RECT  rect = { 1, 2, 3, 4 };
    HFONT font = reinterpret_cast<HFONT>(INT_PTR{ 5 });
    seen.Watch(parent.hwnd());
    EXPECT_EQ(nullptr, CreateDialogInWin(GetModuleHandleA(nullptr), "NOSUCHDIALOG", parent.hwnd(), &rect, &font));
    EXPECT_EQ(4, rect.bottom);
    EXPECT_EQ(reinterpret_cast<HFONT>(INT_PTR{ 5 }), font);
    EXPECT_NOTHING_SEEN();
    EXPECT_EQ("test", TextOf(parent.hwnd()));
}

TEST_F(DialogInWin, SetsTheTitleUnlessItIsEmpty)
{
    TestTemplate from = TwoControls();
    Make(from);
    EXPECT_EQ("test", TextOf(parent.hwnd()));
    from.title = Wide("Address");
    Make(from);
    EXPECT_EQ("Address", TextOf(parent.hwnd()));
}

TEST_F(DialogInWin, CutsTextsAt127Characters)
{
    TestTemplate from;
    from.title = Wide(std::string(300, 't'));
    from.items = { Static(1, std::string(127, 'a').c_str()), Static(2, std::string(128, 'b').c_str()) };
    Make(from);
    EXPECT_EQ(std::string(127, 't'), TextOf(parent.hwnd()));
    EXPECT_EQ(std::string(127, 'a'), TextOf(Child(1)));
    EXPECT_EQ(std::string(127, 'b'), TextOf(Child(2)));
}

TEST_F(DialogInWin, ConvertsTextsToTheAnsiCodePage)
{
    TestTemplate from;
    from.items = { Static(1) };
    from.items[0].title = { 'a', 0x00E4, 'b' };
    Make(from);
    char text[8] = "";
    WideCharToMultiByte(CP_ACP, 0, L"a\u00E4b", -1, text, sizeof text, nullptr, nullptr);
    EXPECT_EQ(text, TextOf(Child(1)));
}

// As a code page in which each character takes two bytes.
int WINAPI ConvertToPairs(UINT, DWORD, LPCWCH wide, int count, LPSTR out, int room, LPCCH, LPBOOL)
{
    if (count * 2 > room) {
        return 0;
    }
    for (int i = 0; i < count; ++i) {
        out[2 * i] = static_cast<char>(wide[i]);
        out[2 * i + 1] = '+';
    }
    return count * 2;
}

std::string Repeated(const char* text, int count)
{
    std::string result;
    for (int i = 0; i < count; ++i) {
        result += text;
    }
    return result;
}

TEST_F(DialogInWin, CutsTextsBetweenCharactersOfTwoBytes)
{
    TestTemplate from;
    from.title = Wide(std::string(200, 't'));
    from.items = { Static(1, std::string(63, 'a').c_str()), Static(2, std::string(64, 'b').c_str()) };
    for (TestItem& item : from.items) {
        item.className = { 0xFFFF, 0x82 };
    }
    {
        const ImportHook hook("WideCharToMultiByte", ConvertToPairs);
        Make(from);
    }
    EXPECT_EQ(Repeated("t+", 63), TextOf(parent.hwnd()));
    EXPECT_EQ(Repeated("a+", 63), TextOf(Child(1)));
    EXPECT_EQ(Repeated("b+", 63), TextOf(Child(2)));
}

TEST_F(DialogInWin, CutsNamesOfClassesAndFontsAt127Characters)
{
    const std::string name(127, 'n');
    RegisterControl(0, DefWindowProcA, 0, 0, GetModuleHandleA(nullptr), nullptr, nullptr, nullptr, nullptr,
                    name.c_str());
    TestTemplate from = WithFont();
    from.face = Wide(std::string(200, 'f'));
    from.items[0].className = Wide(name);
    from.items[1].className = Wide(name + "and more");
    HFONT font = nullptr;
    Make(from, nullptr, &font);
    EXPECT_EQ(2, ChildCount());
    ClearDialog(parent.hwnd());
    UnregisterClassA(name.c_str(), GetModuleHandleA(nullptr));
    DeleteObject(font);
}

TEST_F(DialogInWin, MakesEachControlWithItsStyleIdAndClass)
{
    TestTemplate from;
    from.items = { Static(7, "", WS_VISIBLE | WS_DISABLED | WS_BORDER), Static(0xFFFF) };
    from.items[0].className = { 0xFFFF, 0x80 };
    from.items[1].className = Wide("hedit");
    Make(from);
    const HWND first = Child(7);
    EXPECT_EQ(static_cast<LONG>(WS_CHILD | WS_VISIBLE | WS_DISABLED | WS_BORDER),
              GetWindowLongA(first, GWL_STYLE) & static_cast<LONG>(0xFFFF0000));
    EXPECT_EQ(0, GetWindowLongA(first, GWL_EXSTYLE) & ~WS_EX_NOPARENTNOTIFY);
    const HWND second = GetWindow(first, GW_HWNDNEXT);
    EXPECT_EQ(0, GetWindowLongA(second, GWL_STYLE) & WS_VISIBLE) << "the template decides it";
    EXPECT_EQ(0xFFFF, GetDlgCtrlID(second));
    char name[16] = "";
    GetClassNameA(second, name, sizeof name);
    EXPECT_STREQ("HEdit", name);
}

TEST_F(DialogInWin, GoesOnBehindAClassThatIsNotThere)
{
    TestTemplate from = TwoControls();
    TestItem     missing = Static(9, "", tabStop);
    missing.className = Wide("NoSuchClass");
    from.items.insert(from.items.begin(), missing);
    from.items.insert(from.items.begin() + 2, missing);
    from.items[2].className = { 0xFFFF, 0x99 };
    EXPECT_EQ(Child(2), Make(from));
    EXPECT_EQ(2, ChildCount());
}

TEST_F(DialogInWin, WithoutAFontSizesByTheSystemsUnitsAndPassesNone)
{
    TestTemplate from = TwoControls();
    RECT         rect = { 1, 1, 1, 1 };
    HFONT        font = reinterpret_cast<HFONT>(INT_PTR{ 5 });
    from.items[0].x = 8;
    from.items[0].y = 16;
    from.items[0].cx = 40;
    from.items[0].cy = 24;
    Make(from, &rect, &font);
    const Units units = UnitsOfSystem();
    EXPECT_EQ(nullptr, font);
    EXPECT_EQ(0, rect.left);
    EXPECT_EQ(0, rect.top);
    EXPECT_EQ(100 * units.x / 4, rect.right);
    EXPECT_EQ(50 * units.y / 8, rect.bottom);
    const RECT place = PlaceOfChild(1);
    EXPECT_EQ(2 * units.x, place.left);
    EXPECT_EQ(2 * units.y, place.top);
    EXPECT_EQ(10 * units.x, place.right);
    EXPECT_EQ(3 * units.y, place.bottom);
    EXPECT_EQ(0, Send(Child(1), WM_GETFONT));
}

TEST_F(DialogInWin, MakesNoFontWhereNobodyTakesIt)
{
    RECT rect = {};
    Make(WithFont(), &rect, nullptr);
    EXPECT_EQ(100 * UnitsOfSystem().x / 4, rect.right);
    EXPECT_EQ(0, Send(Child(1), WM_GETFONT));
}

TEST_F(DialogInWin, Of100By50UnitsWithAFontOf6By13Is150By81Pixels)
{
    const FontOf measures(6, 13);
    RECT         rect = {};
    HFONT        font = nullptr;
    Make(WithFont(), &rect, &font);
    const RECT expected = { 0, 0, 150, 81 };
    EXPECT_TRUE(EqualRect(&expected, &rect)) << rect.right << " by " << rect.bottom;
    DeleteObject(font);
}

TEST_F(DialogInWin, TakesTheSystemsUnitsForAFontThatCannotBeMeasured)
{
    for (const SIZE letter : { SIZE{ 6, 0 }, SIZE{ 0, 13 } }) {
        RECT  rect = {};
        HFONT font = nullptr;
        {
            const FontOf measures(letter.cx, letter.cy);
            Make(WithFont(), &rect, &font);
        }
        EXPECT_EQ(100 * UnitsOfSystem().x / 4, rect.right);
        EXPECT_EQ(50 * UnitsOfSystem().y / 8, rect.bottom);
        EXPECT_NE(nullptr, font) << "the controls get it all the same";
        DeleteObject(font);
    }
}

struct ResolutionRow {
    int dpi;
    int height;
};

TEST_F(DialogInWin, MakesABoldFontForTheResolution)
{
    for (const ResolutionRow& row : { ResolutionRow{ 96, -10 }, ResolutionRow{ 144, -16 } }) {
        RECT  rect = {};
        HFONT font = nullptr;
        {
            const ScreenOf screen(row.dpi);
            Make(WithFont(), &rect, &font);
        }
        const LOGFONTA logical = LogicalFont(font);
        EXPECT_EQ(row.height, logical.lfHeight) << row.dpi;
        EXPECT_EQ(700, logical.lfWeight) << row.dpi;
        EXPECT_EQ(0, logical.lfWidth | logical.lfItalic | logical.lfCharSet | logical.lfQuality) << row.dpi;
        EXPECT_STREQ("Arial", logical.lfFaceName) << row.dpi;
        EXPECT_EQ(100 * UnitsOf(font).x / 4, rect.right) << row.dpi;
        EXPECT_EQ(50 * UnitsOf(font).y / 8, rect.bottom) << row.dpi;
        DeleteObject(font);
    }
}

TEST_F(DialogInWin, IsLargerAtAHigherResolution)
{
    RECT  rects[2] = {};
    RECT  places[2] = {};
    HFONT fonts[2] = {};
    for (int i = 0; i < 2; ++i) {
        const ScreenOf screen(i ? 144 : 96);
        Make(WithFont(), &rects[i], &fonts[i]);
        places[i] = PlaceOfChild(1);
        ClearDialog(parent.hwnd());
    }
    EXPECT_GT(rects[1].right, rects[0].right);
    EXPECT_GT(rects[1].bottom, rects[0].bottom);
    EXPECT_GT(places[1].right, places[0].right);
    EXPECT_GT(places[1].bottom, places[0].bottom);
    DeleteObject(fonts[0]);
    DeleteObject(fonts[1]);
}

TEST_F(DialogInWin, GivesEachControlTheFont)
{
    HFONT font = nullptr;
    Make(WithFont(), nullptr, &font);
    EXPECT_NE(nullptr, font);
    EXPECT_EQ(reinterpret_cast<LRESULT>(font), Send(Child(1), WM_GETFONT));
    EXPECT_EQ(reinterpret_cast<LRESULT>(font), Send(Child(2), WM_GETFONT));
    DeleteObject(font);
}

// A control of a test's own that notes what it is made with.
struct NotedChild {
    const void* data;
    int         ex;
    WPARAM      font;
    LPARAM      redraw;
};
NotedChild gNoted;
HWND       gVictim; // goes when a child is made

std::vector<std::string> gOrder; // what the window and its children are told

void NoteChild(const char* what, int id)
{
    gOrder.push_back(what + std::to_string(id));
}

LRESULT CALLBACK NotingProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_CREATE) {
        const auto* const create = reinterpret_cast<const CREATESTRUCTA*>(lParam);
        NoteChild("create ", static_cast<int>(reinterpret_cast<INT_PTR>(create->hMenu)));
        gNoted.data = create->lpCreateParams;
        gNoted.ex = static_cast<int>(create->dwExStyle);
        if (gVictim) {
            DestroyWindow(gVictim);
            return -1;
        }
    }
    if (message == WM_SETFONT) {
        NoteChild("font ", GetDlgCtrlID(hwnd));
        gNoted.font = wParam;
        gNoted.redraw = lParam;
    }
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

class NotingChild : public TemplateWindow {
protected:
    NotingChild()
    {
        gNoted = {};
        gVictim = nullptr;
        gOrder.clear();
        RegisterControl(0, NotingProc, 0, 0, GetModuleHandleA(nullptr), nullptr, nullptr, nullptr, nullptr, "Noting");
    }
    ~NotingChild() override
    {
        ClearDialog(parent.hwnd());
        UnregisterClassA("Noting", GetModuleHandleA(nullptr));
    }

    void NoteParent()
    {
        parent.OnMessage(WM_SETTEXT, [this](WPARAM wParam, LPARAM lParam) {
            gOrder.push_back("title");
            return DefWindowProcA(parent.hwnd(), WM_SETTEXT, wParam, lParam);
        });
        parent.OnMessage(WM_SETREDRAW, [](WPARAM redraw, LPARAM) {
            gOrder.push_back(redraw ? "redraw on" : "redraw off");
            return 0;
        });
        parent.OnMessage(WM_INITDIALOG, [](WPARAM, LPARAM) {
            gOrder.push_back("init");
            return 0;
        });
    }

    static TestTemplate WithNoting(const Bytes& data)
    {
        TestTemplate from = WithFont();
        from.items[0].className = Wide("Noting");
        from.items[0].data = data;
        return from;
    }
};

TEST_F(NotingChild, GetsTheAddressOfItsCreationData)
{
    const TemplateResource resource(WithNoting({ 11, 22, 33 }));
    CreateDialogInWin(GetModuleHandleA(nullptr), "ANY", parent.hwnd(), nullptr, nullptr);
    ASSERT_NE(nullptr, gNoted.data);
    EXPECT_EQ(0, std::memcmp(gNoted.data, "\x0B\x16\x21", 3));
    EXPECT_EQ(0, gNoted.ex);
}

TEST_F(NotingChild, GetsTheFontWithAWishForRedraw)
{
    HFONT font = nullptr;
    Make(WithNoting({}), nullptr, &font);
    EXPECT_EQ(reinterpret_cast<WPARAM>(font), gNoted.font);
    EXPECT_EQ(1, gNoted.redraw);
    DeleteObject(font);
}

TEST_F(NotingChild, MayDestroyTheWindow)
{
    gVictim = parent.hwnd();
    EXPECT_EQ(nullptr, Make(WithNoting({})));
    EXPECT_FALSE(IsWindow(parent.hwnd()));
    gVictim = nullptr;
}

TEST_F(NotingChild, IsMadeBetweenRedrawOffAndInitDialogAndGetsItsFontBeforeTheNext)
{
    NoteParent();
    TestTemplate from = WithNoting({});
    from.title = Wide("Address");
    from.items[1].className = Wide("Noting");
    HFONT font = nullptr;
    Make(from, nullptr, &font);
    EXPECT_EQ((std::vector<std::string>{ "title", "redraw off", "create 1", "font 1", "create 2", "font 2", "init",
                                         "redraw on" }),
              gOrder);
    DeleteObject(font);
}

TEST_F(DialogInWin, TellsInitDialogOfTheFirstTabStop)
{
    HWND   told = nullptr;
    LPARAM lParam = 1;
    parent.OnMessage(WM_INITDIALOG, [&](WPARAM focus, LPARAM data) {
        told = reinterpret_cast<HWND>(focus);
        lParam = data;
        return 0;
    });
    Make(TwoControls());
    EXPECT_NE(nullptr, told);
    EXPECT_EQ(Child(2), told);
    EXPECT_EQ(0, lParam);
}

TEST_F(DialogInWin, TellsInitDialogOfNoControlWithoutATabStop)
{
    WPARAM told = 1;
    parent.OnMessage(WM_INITDIALOG, [&](WPARAM focus, LPARAM) {
        told = focus;
        return 0;
    });
    TestTemplate from;
    from.items = { Static(1) };
    Make(from);
    EXPECT_EQ(0u, told);
}

TEST_F(DialogInWin, IsPaintedAgainWithoutBeingErased)
{
    int erased = 0;
    parent.OnMessage(WM_SETREDRAW, [](WPARAM, LPARAM) { return 0; });
    parent.OnMessage(WM_ERASEBKGND, [&](WPARAM, LPARAM) {
        ++erased;
        return 1;
    });
    UpdateWindow(parent.hwnd());
    EXPECT_FALSE(GetUpdateRect(parent.hwnd(), nullptr, FALSE));
    Make(TwoControls());
    EXPECT_TRUE(GetUpdateRect(parent.hwnd(), nullptr, FALSE));
    erased = 0;
    UpdateWindow(parent.hwnd());
    EXPECT_EQ(0, erased);
}

TEST_F(DialogInWin, InNoWindowHasItsSizeAndNoControls)
{
    UpdateWindow(parent.hwnd());
    const TemplateResource resource(TwoControls());
    RECT                   rect = {};
    EXPECT_EQ(nullptr, CreateDialogInWin(GetModuleHandleA(nullptr), "ANY", nullptr, &rect, nullptr));
    EXPECT_EQ(100 * UnitsOfSystem().x / 4, rect.right);
    EXPECT_FALSE(GetUpdateRect(parent.hwnd(), nullptr, FALSE)) << "the screen isn't painted again";
}

TEST_F(DialogInWin, IsPaintedWithItsControlsUnlessTheWindowClipsThem)
{
    TestTemplate from;
    from.items = { Static(1, "", WS_VISIBLE) };
    const LONG style = GetWindowLongA(parent.hwnd(), GWL_STYLE);
    for (const LONG clip : { 0L, LONG{ WS_CLIPCHILDREN } }) {
        SetWindowLongA(parent.hwnd(), GWL_STYLE, (style & ~WS_CLIPCHILDREN) | clip);
        Make(from);
        EXPECT_EQ(clip == 0, GetUpdateRect(Child(1), nullptr, FALSE) != 0) << clip;
        ClearDialog(parent.hwnd());
    }
}

TEST_F(DialogInWin, OfMoreThan255ItemsMakesAllThereAre)
{
    TestTemplate from;
    from.items.assign(270, Static(5));
    from.count = 256;
    Make(from);
    EXPECT_EQ(270, ChildCount());
}

TEST_F(DialogInWin, CutOffAnywhereMakesTheControlsThatAreWhole)
{
    TestTemplate from = WithFont();
    from.title = Wide("T");
    from.items[1].className = Wide("HEdit");
    from.items[1].data = { 1, 2, 3 };
    const TemplateWriter written(from);
    for (size_t size = 0; size <= written.bytes.size(); ++size) {
        const TemplateResource resource(Bytes(written.bytes.begin(), written.bytes.begin() + static_cast<int>(size)));
        HFONT                  font = nullptr;
        CreateDialogInWin(GetModuleHandleA(nullptr), "ANY", parent.hwnd(), nullptr, &font);
        const int whole = (size >= written.itemEnds[0]) + (size >= written.itemEnds[1]);
        EXPECT_EQ(whole, ChildCount()) << size;
        ClearDialog(parent.hwnd());
        if (font) {
            DeleteObject(font);
        }
    }
}

TEST_F(DialogInWin, WithAnyByteChangedFaultsNowhere)
{
    const Bytes whole = BytesOf(WithFont());
    for (size_t at = 0; at < whole.size(); ++at) {
        for (const int value : { 0x00, 0x80, 0xFF }) {
            Bytes bytes = whole;
            bytes[at] = static_cast<BYTE>(value);
            const TemplateResource resource(bytes);
            HFONT                  font = nullptr;
            CreateDialogInWin(GetModuleHandleA(nullptr), "ANY", parent.hwnd(), nullptr, &font);
            EXPECT_LE(ChildCount(), 2) << at << ": " << value;
            ClearDialog(parent.hwnd());
            if (font) {
                DeleteObject(font);
            }
        }
    }
}

TEST_F(DialogInWin, ComesFromAResourceScript)
{
    RECT       rect = {};
    HFONT      font = reinterpret_cast<HFONT>(INT_PTR{ 5 });
    const HWND first = CreateDialogInWin(GetModuleHandleA(nullptr), "TESTPLAIN", parent.hwnd(), &rect, &font);
    EXPECT_EQ(Child(202), first);
    EXPECT_EQ("one", TextOf(Child(201)));
    EXPECT_EQ(nullptr, font);
    EXPECT_EQ(100 * UnitsOfSystem().x / 4, rect.right);
    EXPECT_EQ(3 * UnitsOfSystem().x, PlaceOfChild(202).left);
    EXPECT_EQ(3 * UnitsOfSystem().y, PlaceOfChild(202).top);
}

struct PageRow {
    int id;
    int x; // dialog units
    int y;
};

TEST_F(DialogInWin, WithEveryClassFitsItsPageAtEachResolution)
{
    constexpr PageRow rows[] = { { 101, 40, 4 },  { 102, 40, 20 },  { 103, 40, 36 }, { 104, 110, 4 },
                                 { 105, 168, 4 }, { 106, 168, 20 }, { 107, 4, 56 } };
    for (const int dpi : { 96, 144 }) {
        const ScreenResolution resolution(dpi);
        RECT                   rect = {};
        HFONT                  font = nullptr;
        {
            const ScreenOf screen(dpi);
            CreateDialogInWin(GetModuleHandleA(nullptr), "TESTPAGE", parent.hwnd(), &rect, &font);
        }
        for (const PageRow& row : rows) {
            const RECT place = PlaceOfChild(row.id);
            EXPECT_EQ(row.x * UnitsOf(font).x / 4, place.left) << row.id << " at " << dpi;
            EXPECT_EQ(row.y * UnitsOf(font).y / 8, place.top) << row.id << " at " << dpi;
            EXPECT_LE(place.left + place.right, rect.right) << row.id << " at " << dpi;
            EXPECT_LE(place.top + place.bottom, rect.bottom) << row.id << " at " << dpi;
            EXPECT_EQ(reinterpret_cast<LRESULT>(font), Send(Child(row.id), WM_GETFONT)) << row.id << " at " << dpi;
        }
        ClearDialog(parent.hwnd());
        DeleteObject(font);
    }
}

} // namespace
