// Streams and data lists through the DLL.
#include <widgets/widgets.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

std::string BytesOf(Stream* stream)
{
    return std::string(static_cast<const char*>(SGetPtr(stream)), static_cast<size_t>(SGetSize(stream)));
}

TEST(DllStream, OfMemoryGrowsAndGoesToPositions)
{
    Stream* const stream = SNewMem(0, 16);
    ASSERT_NE(nullptr, stream);
    EXPECT_EQ(20, SWrite(stream, "01234567890123456789", 20));
    EXPECT_EQ(32u, stream->cbAlloc);
    EXPECT_EQ(20u, stream->cbData);
    EXPECT_EQ(20u, stream->nPos);
    EXPECT_EQ(18, SSeek(stream, 18));
    char out[10] = "";
    EXPECT_EQ(2, SRead(stream, out, 9));
    EXPECT_STREQ("89", out);
    EXPECT_EQ(17, SSeekRel(stream, -3));
    Stream* const copy = SDupMem(stream);
    EXPECT_EQ(BytesOf(stream), BytesOf(copy));
    EXPECT_EQ(0, SEmpty(stream));
    EXPECT_EQ(nullptr, SGetPtr(stream));
    EXPECT_EQ(20, SGetSize(stream));
    EXPECT_EQ(0, SClose(copy));
    EXPECT_EQ(0, SClose(stream));
}

TEST(DllStream, TakesTextsAndOtherStreams)
{
    Stream* const stream = SNewMem(16, 16);
    EXPECT_EQ(3, SWriteString(stream, "abc"));
    EXPECT_EQ(std::string("\3\0abc", 5), BytesOf(stream));
    Stream* const outer = SNewMem(0, 64);
    EXPECT_EQ(0, SWriteStream(outer, stream));
    SSeek(outer, 0);
    Stream* const inner = SReadStream(outer);
    ASSERT_NE(nullptr, inner);
    char* const text = SReadString(inner);
    EXPECT_STREQ("abc", text);
    EXPECT_EQ(nullptr, GlobalFree(text));
    SClose(inner);
    SClose(outer);
    SClose(stream);
}

TEST(DllStream, WritesAndReadsAFile)
{
    char folder[MAX_PATH];
    GetTempPathA(MAX_PATH, folder);
    const std::string name = std::string(folder) + "dll_stream.bin";
    Stream* const     written = SNewFile(name.c_str());
    ASSERT_NE(nullptr, written);
    EXPECT_EQ(2, written->nKind);
    EXPECT_EQ(5, SWrite(written, "hello", 5));
    EXPECT_EQ(-2, SClose(written));
    char path[MAX_PATH];
    EXPECT_EQ(1, SLocateFile(name.c_str(), path, MAX_PATH));
    Stream* const read = SOpenFile(path);
    ASSERT_NE(nullptr, read) << path;
    char out[8] = "";
    EXPECT_EQ(5, SRead(read, out, 7));
    EXPECT_STREQ("hello", out);
    EXPECT_EQ(-2, SClose(read));
    DeleteFileA(name.c_str());
    EXPECT_EQ(0, SLocateFile(name.c_str(), path, MAX_PATH));
}

TEST(DllStream, ReadsAResourceOfTheHost)
{
    Stream* const stream = SOpenRes(GetModuleHandleA(nullptr), "TESTGRID", MAKEINTRESOURCEA(300));
    ASSERT_NE(nullptr, stream);
    WORD version = 0;
    EXPECT_EQ(2, SRead(stream, &version, 2));
    EXPECT_EQ(0x484A, version);
    EXPECT_EQ(-1, SSeek(stream, 0));
    EXPECT_EQ(0, SClose(stream));
}

int CALLBACK ReadZeros(Stream*, void* buffer, int count)
{
    std::memset(buffer, 0, static_cast<size_t>(count));
    return count;
}

TEST(DllStream, CallsTheFunctionsOfAHostsOwn)
{
    Stream own = {};
    own.pfnRead = ReadZeros;
    char out[4] = "xyz";
    EXPECT_EQ(4, SRead(&own, out, 4));
    EXPECT_STREQ("", out);
    EXPECT_EQ(-1, SWrite(&own, out, 4));
}

std::vector<std::string> Texts(DataList* dl)
{
    std::vector<std::string> texts;
    for (int i = 0; i < dl->pValues->cItems; i++) {
        texts.emplace_back(static_cast<const char*>(HDLGetDataPtr(dl, i)));
    }
    return texts;
}

using Strings = std::vector<std::string>;

TEST(DllDataList, KeepsValuesSortedWithTheirCodes)
{
    DataList dl;
    ASSERT_EQ(1, HDLInit(&dl, 1, 's', 's', 'n', 'l', nullptr));
    const LONG codes[] = { 30, 10, 20 };
    EXPECT_EQ(0, HDLInsertItem(&dl, 0, "pear", &codes[0]));
    EXPECT_EQ(0, HDLInsertItem(&dl, 0, "Apple", &codes[1]));
    EXPECT_EQ(1, HDLInsertItem(&dl, 0, "fig", &codes[2]));
    EXPECT_EQ((Strings{ "Apple", "fig", "pear" }), Texts(&dl));
    EXPECT_EQ(1, HDLFindData(&dl, 0, "FIG"));
    EXPECT_EQ(2, HDLFindCode(&dl, 0, &codes[0]));
    char text[8];
    LONG code = 0;
    EXPECT_EQ(1, HDLGetData(&dl, -1, text));
    EXPECT_STREQ("pear", text);
    EXPECT_EQ(1, HDLGetCode(&dl, -1, &code));
    EXPECT_EQ(30, code);
    EXPECT_EQ(5, HDLGetDataSize(&dl, 0));
    EXPECT_EQ(4, HDLGetCodeSize(&dl, 0));
    EXPECT_EQ(1, HDLSetCode(&dl, 0, &codes[2]));
    EXPECT_EQ(20, *static_cast<const LONG*>(HDLGetCodePtr(&dl, 0)));
    EXPECT_NE(0, HDLDeleteItem(&dl, 1));
    EXPECT_EQ((Strings{ "Apple", "pear" }), Texts(&dl));
    EXPECT_EQ(1, HDLEmpty(&dl));
    EXPECT_EQ(1, HDLDestroy(&dl));
    EXPECT_EQ(nullptr, dl.pValues);
}

TEST(DllDataList, HasTheTextsOfItsItems)
{
    DataList* const dl = HDLCreate(0, 'd', 'l', 0, 0, "yyyy-mm-dd");
    ASSERT_NE(nullptr, dl);
    const LONG day = 20240229;
    EXPECT_EQ(0, HDLInsertItem(dl, 0, &day, nullptr));
    char out[16];
    EXPECT_EQ(10, HDLFormatItem(dl, 0, out, sizeof out, nullptr, 0));
    EXPECT_STREQ("2024-02-29", out);
    EXPECT_EQ(1, HDLSetFormat(dl, "dd.mm.yyyy"));
    EXPECT_EQ(10, HDLGetFormat(dl, out, sizeof out));
    EXPECT_STREQ("dd.mm.yyyy", out);
    HDLDestroy(dl);
    EXPECT_EQ(nullptr, GlobalFree(dl));
}

TEST(DllDataList, GoesOutToAStreamAndComesBack)
{
    DataList dl;
    ASSERT_EQ(1, HDLInit(&dl, 1, 's', 's', 0, 0, nullptr));
    for (const char* const text : { "b", "c", "a" }) {
        HDLInsertItem(&dl, 0, text, nullptr);
    }
    Stream* const stream = SNewMem(0, 64);
    EXPECT_EQ(0, HDLSave(&dl, stream));
    EXPECT_EQ(std::string("\2\0\0\0ss\3\0\0\0\1\0a\1\0b\1\0c", 19), BytesOf(stream));
    SSeek(stream, 0);
    DataList loaded;
    EXPECT_EQ(0, HDLLoad(&loaded, stream));
    EXPECT_EQ(Texts(&dl), Texts(&loaded));
    HDLDestroy(&loaded);
    EXPECT_EQ(-1, HDLLoad(&loaded, stream)) << "there is no more in it";
    EXPECT_EQ(nullptr, loaded.pValues);
    SClose(stream);
    HDLDestroy(&dl);
}

TEST(DllDataList, HasSecondNames)
{
    DataList* const dl = HCDLCreate(2, 's', 's', 'n', 'l', nullptr);
    ASSERT_NE(nullptr, dl);
    const LONG codes[] = { 2, 1 };
    EXPECT_EQ(0, HCDLInsertItem(dl, 0, "two", &codes[0]));
    EXPECT_EQ(0, HCDLInsertItem(dl, 0, "one", &codes[1]));
    EXPECT_EQ(1, HCDLFindData(dl, 0, "two"));
    EXPECT_EQ(0, HCDLFindCode(dl, 0, &codes[1]));
    char text[4];
    LONG code = 0;
    EXPECT_EQ(1, HCDLGetData(dl, 0, text));
    EXPECT_EQ(1, HCDLGetCode(dl, 0, &code));
    EXPECT_STREQ("one", text);
    EXPECT_EQ(1, code);
    EXPECT_EQ(3, HCDLGetDataSize(dl, 0));
    EXPECT_NE(0, HCDLDeleteItem(dl, 0));
    EXPECT_EQ(1, HCDLEmpty(dl));
    EXPECT_EQ(1, HCDLDestroy(dl));
    GlobalFree(dl);
}

} // namespace
