// Makes dialogs of templates that a test has written, as if they were resources of the program.
#pragma once

#include "dialog/template_maker.h"
#include "support/import_hook.h"
#include "support/window_test.h"

// While one of these lives, a template of any name is these bytes, which end where nothing can be read.
class TemplateResource {
public:
    explicit TemplateResource(const Bytes& bytes);
    explicit TemplateResource(const TestTemplate& from) : TemplateResource(BytesOf(from)) {}
    ~TemplateResource();
    TemplateResource(const TemplateResource&) = delete;
    TemplateResource& operator=(const TemplateResource&) = delete;

private:
    ImportHook find_;
    ImportHook load_;
    ImportHook lock_;
    ImportHook size_;
};

// The resolution that DCs tell, and the extent of a letter, for as long as one of these lives.
class ScreenOf {
public:
    explicit ScreenOf(int dpi);

private:
    ImportHook hook_;
};

class FontOf {
public:
    FontOf(int width, int height);

private:
    ImportHook hook_;
};

// A window whose children come from templates.
class TemplateWindow : public WindowTest {
protected:
    HWND Make(const TestTemplate& from, RECT* outRect = nullptr, HFONT* outFont = nullptr)
    {
        const TemplateResource resource(from);
        return CreateDialogInWin(GetModuleHandleA(nullptr), "ANY", parent.hwnd(), outRect, outFont);
    }

    HWND Child(int id) const { return GetDlgItem(parent.hwnd(), id); }
    int  ChildCount() const;
    RECT PlaceOfChild(int id) const; // { x, y, width, height } in the parent's client area
};

inline TestItem Static(WORD id, const char* title = "", DWORD style = 0)
{
    TestItem item;
    item.id = id;
    item.title = Wide(title);
    item.style = style;
    return item;
}
