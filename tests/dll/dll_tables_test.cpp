// The file widgets.dll: what it exports and what it needs.
#include "dll/pe_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <iterator>

namespace {

using Names = std::vector<std::string>;

Names Sorted(Names names)
{
    std::ranges::sort(names);
    return names;
}

std::string Upper(std::string text)
{
    std::ranges::transform(text, text.begin(), [](unsigned char ch) { return static_cast<char>(std::toupper(ch)); });
    return text;
}

Names DefinedNames()
{
    const Names names = ReadDefinedNames(WIDGETS_SOURCE_DIR "/src/widgets.def");
    EXPECT_FALSE(names.empty()) << "src/widgets.def can't be read";
    return names;
}

TEST(Dll, IsAFileOfThisArchitecture)
{
    const PeFile dll(WIDGETS_DLL_PATH);
    ASSERT_TRUE(dll.IsValid()) << WIDGETS_DLL_PATH;
    EXPECT_EQ(sizeof(void*) == 8 ? IMAGE_FILE_MACHINE_AMD64 : IMAGE_FILE_MACHINE_I386, dll.Machine());
}

TEST(Dll, GivesEachExportByItsPlainName)
{
    const HMODULE dll = LoadLibraryA(WIDGETS_DLL_PATH);
    ASSERT_NE(nullptr, dll) << WIDGETS_DLL_PATH << ", error " << GetLastError();
    for (const std::string& name : DefinedNames()) {
        EXPECT_NE(nullptr, reinterpret_cast<void*>(GetProcAddress(dll, name.c_str()))) << name;
    }
    FreeLibrary(dll);
}

TEST(Dll, ExportsNothingElse)
{
    const PeFile dll(WIDGETS_DLL_PATH);
    ASSERT_TRUE(dll.IsValid());
    EXPECT_EQ(Sorted(DefinedNames()), Sorted(dll.ExportedNames()));
}

TEST(Dll, NeedsOnlyLibrariesThatEveryWindowsHas)
{
    const Names  allowed = { "KERNEL32.DLL", "USER32.DLL", "GDI32.DLL", "COMCTL32.DLL", "MSVCRT.DLL" };
    const PeFile dll(WIDGETS_DLL_PATH);
    ASSERT_TRUE(dll.IsValid());
    const Names needed = dll.ImportedLibraries();
    EXPECT_FALSE(needed.empty());
    for (const std::string& name : needed) {
        EXPECT_TRUE(std::ranges::find(allowed, Upper(name)) != allowed.end()) << name;
    }
}

TEST(Dll, AsksForFunctionsThatNotEveryWindowsHasAtRunTime)
{
    const PeFile dll(WIDGETS_DLL_PATH);
    ASSERT_TRUE(dll.IsValid());
    const Names imported = dll.ImportedNames("USER32.dll");
    EXPECT_TRUE(std::ranges::find(imported, "CreateWindowExA") != imported.end());
    for (const std::string& name : imported) {
        EXPECT_EQ(std::string::npos, name.find("Monitor")) << name;
        EXPECT_FALSE(name.starts_with("EnumDisplay")) << name;
    }
}

// The calls of these tests stand in this program's own import table.
TEST(Dll, EachExportIsUsedByATestOfThisProgram)
{
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    const PeFile program(path);
    ASSERT_TRUE(program.IsValid()) << path;
    const Names used = Sorted(program.ImportedNames("widgets.dll"));
    const Names defined = Sorted(DefinedNames());
    Names       unused;
    std::ranges::set_difference(defined, used, std::back_inserter(unused));
    EXPECT_EQ(Names(), unused) << "no test calls them through the DLL";
}

} // namespace
