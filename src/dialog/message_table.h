// Tables of message handlers: written as lists on paper, indexed by number at compile time.
// A number listed twice or out of range doesn't compile.
#pragma once

#include <windows.h>

#include <array>
#include <cstddef>

// What a handler gets. It sets *pDefault to hand the message on to the default processing.
struct MsgArgs {
    HWND   hwnd;
    UINT   message;
    WPARAM wParam;
    LPARAM lParam;
    int*   pDefault;
};

// The result of a handler that hands its message on.
inline LRESULT AskDefault(const MsgArgs& args)
{
    *args.pDefault = 1;
    return 0;
}

// Whether a window is to get its record now. Bounded: a creation that a host sends by itself brings nothing to create
// from, or meets a record that is there already.
inline bool IsCreation(const MsgArgs& args, const void* record)
{
    return args.message == WM_NCCREATE && args.lParam && !record;
}

template <typename Handler>
struct MessageEntry {
    UINT    message;
    Handler handler;
};

// Never defined: a call of one of them ends the compile-time evaluation with its name in the message.
void MessageOutsideTheTable();
void MessageListedTwice();

// An array of handlers from number First to Last, null where nothing is listed.
template <UINT First, UINT Last, typename Handler, std::size_t N>
consteval auto ByNumber(const MessageEntry<Handler> (&entries)[N])
{
    std::array<Handler, Last - First + 1> handlers{};
    for (const MessageEntry<Handler>& entry : entries) {
        if (entry.message < First || entry.message > Last) {
            MessageOutsideTheTable();
        }
        if (handlers[entry.message - First]) {
            MessageListedTwice();
        }
        handlers[entry.message - First] = entry.handler;
    }
    return handlers;
}

// The handler of a message, or null.
template <UINT First, typename Handlers>
auto FindHandler(const Handlers& handlers, UINT message)
{
    return message >= First && message - First < handlers.size() ? handlers[message - First] : nullptr;
}
