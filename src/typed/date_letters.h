// Single characters of pictures and of the texts that show them.
#pragma once

#include <cctype>

inline char LowerLetter(char ch)
{
    return static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
}

inline bool IsDecimalDigit(char ch)
{
    return ch >= '0' && ch <= '9';
}
