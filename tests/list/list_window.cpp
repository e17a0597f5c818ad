// The fixture of the list control's window tests.
#include "list_window.h"

namespace {

WNDPROC gListProc;
int     gErased;

LRESULT CALLBACK CountErasing(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    gErased += message == WM_ERASEBKGND;
    return CallWindowProcA(gListProc, hwnd, message, wParam, lParam);
}

} // namespace

HWND ListWindow::Make(const char* text, DWORD style, int width, int height)
{
    if (list && IsWindow(list)) {
        DestroyWindow(list);
    }
    list = WindowTest::Create("HList", text, style, 7, { 10, 10, width, height });
    PumpPending();
    seen.Clear();
    return list;
}

void ListWindow::ShowRows(int rows, int more)
{
    RECT window;
    RECT client;
    GetWindowRect(list, &window);
    GetClientRect(list, &client);
    const int frame = static_cast<int>(window.bottom - window.top - client.bottom);
    SetWindowPos(list, nullptr, 0, 0, static_cast<int>(window.right - window.left), rows * RowHeight() + more + frame,
                 SWP_NOMOVE | SWP_NOZORDER);
    PumpPending();
}

void ListWindow::Fill(int count)
{
    std::vector<std::string> texts;
    std::vector<const char*> pointers;
    for (int i = 0; i < count; ++i) {
        texts.push_back("item " + std::to_string(i));
    }
    for (const std::string& text : texts) {
        pointers.push_back(text.c_str());
    }
    ASSERT_EQ(count, HLAddItems(list, count, pointers.data()));
}

void ListWindow::Add(const Texts& texts)
{
    for (const std::string& text : texts) {
        HLAddItem(list, text.c_str());
    }
}

void ListWindow::AddNumbers(const Ints& data, const Ints& codes)
{
    for (size_t i = 0; i < data.size(); ++i) {
        HLAddItemEx(list, &data[i], i < codes.size() ? &codes[i] : nullptr);
    }
}

LRESULT ListWindow::Send(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return SendMessageA(list, message, wParam, lParam);
}

LRESULT ListWindow::SendPtr(UINT message, WPARAM wParam, const void* lParam) const
{
    return Send(message, wParam, AsParam(lParam));
}

std::string ListWindow::Text(int index) const
{
    char text[256] = "";
    SendPtr(HLM_GETITEMTEXT, static_cast<WPARAM>(index), text);
    return text;
}

ListWindow::Texts ListWindow::AllTexts() const
{
    Texts texts;
    for (int i = 0; i < Count(); ++i) {
        texts.push_back(Text(i));
    }
    return texts;
}

int ListWindow::Number(int index) const
{
    int value = -999;
    HLGetData(list, index, &value);
    return value;
}

ListWindow::Ints ListWindow::AllNumbers() const
{
    Ints numbers;
    for (int i = 0; i < Count(); ++i) {
        numbers.push_back(Number(i));
    }
    return numbers;
}

ListWindow::Ints ListWindow::Selected() const
{
    Ints          indexes(static_cast<size_t>(Send(HLM_GETSELCOUNT)) + 1);
    const LRESULT count = SendPtr(HLM_GETSELITEMS, indexes.size(), indexes.data());
    indexes.resize(static_cast<size_t>(count));
    return indexes;
}

void ListWindow::Select(const Ints& indexes) const
{
    for (const int index : indexes) {
        HLSelectItem(list, index, HLSEL_SET);
    }
}

RECT ListWindow::ItemRect(int index) const
{
    RECT rect = {};
    SendPtr(HLM_GETITEMRECT, static_cast<WPARAM>(index), &rect);
    return rect;
}

ListWindow::Ints ListWindow::Told()
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

Invalidated ListWindow::InvalidatedBy(const std::function<void()>& work) const
{
    UpdateWindow(list);
    gErased = 0;
    gListProc =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrA(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountErasing)));
    work();
    Invalidated result = {};
    GetUpdateRect(list, &result.area, FALSE);
    UpdateWindow(list);
    SetWindowLongPtrA(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(gListProc));
    result.erases = gErased > 0;
    return result;
}
