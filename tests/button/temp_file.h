// A file in the current directory for as long as a test needs it.
#pragma once

#include "button/picture_bytes.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

class TempFile {
public:
    TempFile(const char* name, const Bytes& bytes) : name_(name)
    {
        std::FILE* const file = std::fopen(name, "wb");
        EXPECT_NE(nullptr, file) << name;
        if (file) {
            std::fwrite(bytes.data(), 1, bytes.size(), file);
            std::fclose(file);
        }
    }
    ~TempFile() { DeleteFileA(name_.c_str()); }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

private:
    std::string name_;
};
