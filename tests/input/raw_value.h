// Values as they lie in memory, for comparison byte by byte.
#pragma once

#include <cstring>
#include <string>

template <typename... Parts>
std::string Raw(Parts... parts)
{
    std::string bytes;
    (bytes.append(reinterpret_cast<const char*>(&parts), sizeof parts), ...);
    return bytes;
}

// For people who read a failure.
inline std::string Hex(const std::string& bytes)
{
    constexpr char digits[] = "0123456789ABCDEF";
    std::string    text;
    for (const char ch : bytes) {
        const auto code = static_cast<unsigned char>(ch);
        text += { digits[code >> 4], digits[code & 15], ' ' };
    }
    return text;
}
