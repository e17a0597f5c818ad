// The tables of a PE file, read from the disk.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

class PeFile {
public:
    explicit PeFile(const std::string& path);

    bool IsValid() const { return headers_ != nullptr; }
    WORD Machine() const { return headers_->FileHeader.Machine; }

    std::vector<std::string> ExportedNames() const;
    std::vector<std::string> ImportedLibraries() const;
    std::vector<std::string> ImportedNames(const std::string& library) const; // those imported by name

private:
    // The bytes at an address relative to the image, as a T; null outside the file.
    template <typename T>
    const T* At(DWORD rva) const
    {
        return reinterpret_cast<const T*>(Bytes(rva, sizeof(T)));
    }
    const BYTE*                          Bytes(DWORD rva, size_t size) const;
    std::string                          TextAt(DWORD rva) const;
    DWORD                                Directory(int index) const;
    std::vector<IMAGE_IMPORT_DESCRIPTOR> Imports() const;

    std::vector<BYTE>       file_;
    const IMAGE_NT_HEADERS* headers_ = nullptr;
};

// A file whole; empty if it can't be read.
std::vector<BYTE> ReadWholeFile(const std::string& path);
// The names behind EXPORTS in a .def file.
std::vector<std::string> ReadDefinedNames(const std::string& path);
