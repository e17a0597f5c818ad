// Message pumping of window tests. Tests wait for a condition, never for a time.
#pragma once

#include <windows.h>

#include <functional>

// Dispatches messages until none is waiting.
void PumpPending();
// From now on messages that a filter uses aren't dispatched. An empty one: all are.
void PumpThrough(std::function<bool(MSG*)> filter);
// From now on messages are for this dialog first, as in the loop of a host with one. Null: for no dialog.
void PumpForDialog(HWND dialog);
// Dispatches messages until condition() holds. False if it didn't within limitMs.
bool PumpUntil(const std::function<bool()>& condition, DWORD limitMs = 5000);
