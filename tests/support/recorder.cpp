// The message-sequence recorder.
#include "support/recorder.h"

#include "support/message_names.h"

#include <algorithm>

namespace {

// What the platform sends on its own, and differently from one version to the next.
// clang-format off
constexpr UINT noise[] = {
    WM_NULL, WM_MOVE, WM_ACTIVATE, WM_ACTIVATEAPP, WM_PAINT, WM_ERASEBKGND, WM_SHOWWINDOW, WM_SETCURSOR,
    WM_NCCALCSIZE, WM_NCHITTEST, WM_NCPAINT, WM_NCACTIVATE, WM_NCMOUSEMOVE, WM_GETMINMAXINFO, WM_GETDLGCODE,
    WM_MOUSEACTIVATE, WM_GETICON, WM_SETICON, WM_QUERYUISTATE, WM_CHANGEUISTATE, WM_UPDATEUISTATE, WM_CAPTURECHANGED,
    WM_PARENTNOTIFY, WM_CHILDACTIVATE, WM_STYLECHANGING, WM_STYLECHANGED, WM_WINDOWPOSCHANGING, WM_WINDOWPOSCHANGED,
    WM_IME_SETCONTEXT, WM_IME_NOTIFY, WM_GETOBJECT, WM_SYNCPAINT, WM_PRINTCLIENT, WM_NCMOUSELEAVE, WM_MOUSELEAVE,
    WM_MOUSEHOVER, WM_IME_REQUEST, WM_INPUTLANGCHANGE,
};
// clang-format on

// Registered messages and those of the system's own use have numbers from here on.
constexpr UINT firstRegistered = 0xC000;

Recorder* gRecorder; // the one that watches

bool IsWine()
{
    static const bool wine = GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
    return wine;
}

// Of the messages to a parent, those of the controls' own; colours are asked for at each paint.
bool ConcernsParent(UINT message)
{
    return message == WM_NOTIFY || message >= WM_USER;
}

bool BelongsHere(const Seen& line)
{
    return !(line.flags & (IsWine() ? OnlyWindows : OnlyWine));
}

bool SameArg(const SeenArg& expected, const SeenArg& seen)
{
    return !expected.matters || expected.value == seen.value;
}

bool SameLine(const Seen& expected, const Seen& seen)
{
    return expected.depth == seen.depth && expected.direction == seen.direction && expected.code == seen.code &&
           SameArg(expected.wParam, seen.wParam) && SameArg(expected.lParam, seen.lParam);
}

bool SameSequence(std::span<const Seen> expected, std::span<const Seen> seen)
{
    size_t next = 0;
    for (const Seen& line : expected) {
        if (!BelongsHere(line)) {
            continue;
        }
        if (next < seen.size() && SameLine(line, seen[next])) {
            ++next;
        } else if (!(line.flags & Maybe)) {
            return false;
        }
    }
    return next == seen.size();
}

std::string ArgText(const char* name, const SeenArg& arg)
{
    char text[64];
    std::snprintf(text, sizeof text, " %s %lld", name, static_cast<long long>(arg.value));
    return arg.matters ? text : "";
}

std::string ClassOf(HWND hwnd)
{
    char name[64] = "";
    GetClassNameA(hwnd, name, sizeof name);
    return name;
}

} // namespace

void Recorder::Watch(HWND control)
{
    gRecorder = this;
    className_ = ClassOf(control);
    watched_[control] =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrA(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(WatchProc)));
}

LRESULT CALLBACK Recorder::WatchProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    Recorder* const self = gRecorder;
    const WNDPROC   next = self->watched_[hwnd];
    const bool      recorded = !self->notificationsOnly_ && !self->IsNoise(message);
    if (recorded) {
        self->seen_.push_back({ self->depth_, ToControl, message, static_cast<LPARAM>(wParam), lParam });
    }
    self->depth_ += recorded;
    const LRESULT result = CallWindowProcA(next, hwnd, message, wParam, lParam);
    self->depth_ -= recorded;
    if (message == WM_NCDESTROY) {
        self->watched_.erase(hwnd);
    }
    return result;
}

void Recorder::EnterParent(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND) {
        seen_.push_back({ depth_, ToParent, HIWORD(wParam), LOWORD(wParam), lParam });
    } else if (!notificationsOnly_ && ConcernsParent(message) && !IsNoise(message)) {
        seen_.push_back({ depth_, ToParentMessage, message, static_cast<LPARAM>(wParam), lParam });
    }
    ++depth_;
}

bool Recorder::IsNoise(UINT message) const
{
    return message >= firstRegistered || std::ranges::find(noise, message) != std::end(noise) ||
           std::ranges::find(skipped_, message) != skipped_.end();
}

testing::AssertionResult Recorder::Matches(std::span<const Seen> expected)
{
    const std::vector<Seen> seen = std::move(seen_);
    seen_.clear();
    if (SameSequence(expected, seen)) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "expected:\n" << Print(expected) << "seen:\n" << Print(seen);
}

std::string Recorder::Print(std::span<const Seen> lines) const
{
    constexpr const char* directions[] = { "to parent:  ", "to parent:  ", "to control: " };
    std::string           text;
    for (const Seen& line : lines) {
        text += std::string(4 + static_cast<size_t>(line.depth) * 4, ' ') + directions[line.direction];
        text += line.direction == ToParent ? NotificationName(line.code, className_.c_str())
                                           : MessageName(line.code, className_.c_str());
        text += ArgText("wParam", line.wParam) + ArgText("lParam", line.lParam);
        text += std::string(line.flags & Maybe ? " (maybe)" : "") + (BelongsHere(line) ? "" : " (not here)") + "\n";
    }
    return text.empty() ? "    nothing\n" : text;
}
