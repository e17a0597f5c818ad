// The tables of a PE file, read from the disk.
#include "dll/pe_file.h"

#include <cstdio>
#include <sstream>

std::vector<BYTE> ReadWholeFile(const std::string& path)
{
    std::vector<BYTE> bytes;
    std::FILE* const  file = std::fopen(path.c_str(), "rb");
    if (!file) {
        return bytes;
    }
    BYTE   part[4096];
    size_t count;
    while ((count = std::fread(part, 1, sizeof part, file)) > 0) {
        bytes.insert(bytes.end(), part, part + count);
    }
    std::fclose(file);
    return bytes;
}

std::vector<std::string> ReadDefinedNames(const std::string& path)
{
    const std::vector<BYTE>  bytes = ReadWholeFile(path);
    std::istringstream       lines(std::string(bytes.begin(), bytes.end()));
    std::vector<std::string> names;
    bool                     exporting = false;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line.substr(0, line.find(';')));
        std::string        word;
        if (!(words >> word)) {
            continue;
        }
        if (exporting) {
            names.push_back(word);
        }
        exporting = exporting || word == "EXPORTS";
    }
    return names;
}

PeFile::PeFile(const std::string& path) : file_(ReadWholeFile(path))
{
    if (file_.size() < sizeof(IMAGE_DOS_HEADER)) {
        return;
    }
    const auto*  dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(file_.data());
    const size_t start = static_cast<size_t>(dos->e_lfanew);
    if (dos->e_magic != IMAGE_DOS_SIGNATURE || start + sizeof(IMAGE_NT_HEADERS) > file_.size()) {
        return;
    }
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(file_.data() + start);
    // A file of the other architecture has headers of another size.
    if (headers->Signature == IMAGE_NT_SIGNATURE && headers->OptionalHeader.Magic == IMAGE_NT_OPTIONAL_HDR_MAGIC) {
        headers_ = headers;
    }
}

const BYTE* PeFile::Bytes(DWORD rva, size_t size) const
{
    const IMAGE_SECTION_HEADER* const sections = IMAGE_FIRST_SECTION(headers_);
    for (int i = 0; i < headers_->FileHeader.NumberOfSections; ++i) {
        const IMAGE_SECTION_HEADER& section = sections[i];
        if (rva >= section.VirtualAddress && rva - section.VirtualAddress + size <= section.SizeOfRawData) {
            const size_t offset = section.PointerToRawData + (rva - section.VirtualAddress);
            return offset + size <= file_.size() ? file_.data() + offset : nullptr;
        }
    }
    return nullptr;
}

std::string PeFile::TextAt(DWORD rva) const
{
    std::string text;
    for (const char* ch = At<char>(rva); ch && *ch; ch = At<char>(++rva)) {
        text += *ch;
    }
    return text;
}

DWORD PeFile::Directory(int index) const
{
    return headers_->OptionalHeader.DataDirectory[index].VirtualAddress;
}

std::vector<std::string> PeFile::ExportedNames() const
{
    std::vector<std::string> names;
    const auto* const        table = At<IMAGE_EXPORT_DIRECTORY>(Directory(IMAGE_DIRECTORY_ENTRY_EXPORT));
    for (DWORD i = 0; table && i < table->NumberOfNames; ++i) {
        const DWORD* const name = At<DWORD>(table->AddressOfNames + i * static_cast<DWORD>(sizeof(DWORD)));
        names.push_back(name ? TextAt(*name) : "");
    }
    return names;
}

std::vector<IMAGE_IMPORT_DESCRIPTOR> PeFile::Imports() const
{
    std::vector<IMAGE_IMPORT_DESCRIPTOR> imports;
    DWORD                                rva = Directory(IMAGE_DIRECTORY_ENTRY_IMPORT);
    for (auto* import = At<IMAGE_IMPORT_DESCRIPTOR>(rva); import && import->Name;
         import = At<IMAGE_IMPORT_DESCRIPTOR>(rva)) {
        imports.push_back(*import);
        rva += static_cast<DWORD>(sizeof(IMAGE_IMPORT_DESCRIPTOR));
    }
    return imports;
}

std::vector<std::string> PeFile::ImportedLibraries() const
{
    std::vector<std::string> names;
    for (const IMAGE_IMPORT_DESCRIPTOR& import : Imports()) {
        names.push_back(TextAt(import.Name));
    }
    return names;
}

std::vector<std::string> PeFile::ImportedNames(const std::string& library) const
{
    std::vector<std::string> names;
    for (const IMAGE_IMPORT_DESCRIPTOR& import : Imports()) {
        if (lstrcmpiA(TextAt(import.Name).c_str(), library.c_str()) != 0) {
            continue;
        }
        DWORD rva = import.OriginalFirstThunk;
        for (auto* thunk = At<IMAGE_THUNK_DATA>(rva); thunk && thunk->u1.AddressOfData;
             thunk = At<IMAGE_THUNK_DATA>(rva)) {
            if (!IMAGE_SNAP_BY_ORDINAL(thunk->u1.Ordinal)) {
                names.push_back(TextAt(static_cast<DWORD>(thunk->u1.AddressOfData) + sizeof(WORD)));
            }
            rva += static_cast<DWORD>(sizeof(IMAGE_THUNK_DATA));
        }
    }
    return names;
}
