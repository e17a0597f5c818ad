// Catches what goes to OutputDebugStringA while it lives.
#pragma once

#include <string>
#include <vector>

class DebugOutput {
public:
    DebugOutput();
    ~DebugOutput();
    DebugOutput(const DebugOutput&) = delete;
    DebugOutput& operator=(const DebugOutput&) = delete;

    std::vector<std::string> Texts() const; // a text a call
};
