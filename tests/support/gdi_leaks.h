// Counts the GDI objects and DCs that this program has made and not given back, by putting its own functions into the
// program's import table: the library's sources are linked into the program, so their calls pass here too.
#pragma once

#include <string>

int         LiveGdiObjects();
std::string DescribeGdiObjects(); // "CreatePen 1, GetDC 2"

// Expects as many objects at its end as at its start.
class GdiLeakCheck {
public:
    GdiLeakCheck();
    ~GdiLeakCheck();
    GdiLeakCheck(const GdiLeakCheck&) = delete;
    GdiLeakCheck& operator=(const GdiLeakCheck&) = delete;

    // For a test that leaves objects for a reason.
    void Ignore() { ignored_ = true; }

private:
    int         before_;
    std::string described_;
    bool        ignored_ = false;
};
