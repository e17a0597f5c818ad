// The fixture of the combo's window tests.
#include "combo_window.h"

#include "foundation/startup.h"

namespace {

BOOL CALLBACK CountDrop(HWND hwnd, LPARAM count)
{
    char name[16] = "";
    GetClassNameA(hwnd, name, sizeof name);
    const bool isOurs = GetWindowThreadProcessId(hwnd, nullptr) == GetCurrentThreadId();
    *reinterpret_cast<int*>(count) += isOurs && std::string(name) == "HDrop";
    return TRUE;
}

} // namespace

int LiveDrops()
{
    int count = 0;
    EnumChildWindows(GetDesktopWindow(), CountDrop, AsParam(&count));
    return count;
}

ComboWindow::~ComboWindow()
{
    pfnDrawPart = nullptr;
    End();
    EXPECT_EQ(0, LiveDrops());
    EXPECT_EQ(nullptr, hOpenCombo);
    EXPECT_EQ(nullptr, hMouseHook);
}

HWND ComboWindow::Make(const char* text, DWORD style, int width, int height)
{
    End();
    combo = WindowTest::Create("HComb", text, style, 7, { 10, 10, width, height });
    PumpPending();
    seen.Clear();
    seen.NotificationsOnly();
    return combo;
}

void ComboWindow::End()
{
    if (combo && IsWindow(combo)) {
        DestroyWindow(combo);
    }
    combo = nullptr;
}

void ComboWindow::Add(const Texts& texts) const
{
    for (const std::string& text : texts) {
        SendPtr(CB_ADDSTRING, 0, text.c_str());
    }
}

void ComboWindow::AddNumbers(const Ints& data, const Ints& codes) const
{
    for (size_t i = 0; i < data.size(); ++i) {
        HLAddItemEx(List(), &data[i], i < codes.size() ? &codes[i] : nullptr);
    }
}

LRESULT ComboWindow::Send(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return SendMessageA(combo, message, wParam, lParam);
}

LRESULT ComboWindow::SendPtr(UINT message, WPARAM wParam, const void* lParam) const
{
    return Send(message, wParam, AsParam(lParam));
}

LRESULT ComboWindow::ToFace(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return SendMessageA(Face(), message, wParam, lParam);
}

std::string ComboWindow::Text() const
{
    char text[300] = "";
    SendPtr(WM_GETTEXT, sizeof text, text);
    return text;
}

std::string ComboWindow::ItemText(int index) const
{
    char text[300] = "";
    SendPtr(CB_GETLBTEXT, static_cast<WPARAM>(index), text);
    return text;
}

int ComboWindow::EditNumber() const
{
    int number = -999;
    ToFace(HEM_GETDATA, sizeof number, AsParam(&number));
    return number;
}

void ComboWindow::Type(const char* text) const
{
    ToFace(EM_SETSEL, 0, -1);
    ToFace(EM_REPLACESEL, 0, AsParam(text));
}

void ComboWindow::ListTells(int code) const
{
    Send(WM_COMMAND, MAKEWPARAM(comboListId, code), AsParam(List()));
}

ComboWindow::Ints ComboWindow::Told()
{
    Ints codes;
    for (const Seen& line : seen.All()) {
        if (line.direction == ToParent) {
            codes.push_back(static_cast<int>(line.code));
        }
    }
    seen.Clear();
    return codes;
}

void ComboWindow::DestroyIn(int code)
{
    parent.On(code, [this] { DestroyWindow(combo); });
}

std::vector<int> Corners(const RECT& rect)
{
    return { static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
             static_cast<int>(rect.bottom) };
}

std::vector<int> PlaceOf(HWND child)
{
    RECT rect = {};
    GetWindowRect(child, &rect);
    RStoC(GetParent(child), &rect);
    return Corners(rect);
}
