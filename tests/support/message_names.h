// Names of messages and notifications, for people who read what a test has seen.
#pragma once

#include <windows.h>

#include <string>

// className picks between grid and edit messages, which share numbers; null: a grid.
// "0x0123" for a message without a name here.
std::string MessageName(UINT message, const char* className = nullptr);
// The name of a WM_COMMAND code.
std::string NotificationName(UINT code, const char* className = nullptr);
