// Templates read from blocks without a spare byte behind them.
#include "dialog/dialog_template.h"

#include "dialog/template_maker.h"
#include "foundation/memory.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iterator>
#include <random>

namespace {

Words WordsOf(const TemplateText& text)
{
    Words words;
    for (size_t i = 0; i < text.length; ++i) {
        words.push_back(text.At(i));
    }
    return words;
}

struct ReadItem {
    TemplateItem item;
    std::string  systemClass;
    Words        className;
    Words        title;
};

// A template in a block that ends where the template ends.
class Template {
public:
    explicit Template(const Bytes& bytes) : block_(static_cast<BYTE*>(HBlockAlloc(bytes.empty() ? 1 : bytes.size())))
    {
        if (!bytes.empty()) {
            std::memcpy(block_, bytes.data(), bytes.size());
        }
        TemplateBytes left = { block_, bytes.size(), 0 };
        read = ReadTemplateHeader(&left, &header);
        if (!read) {
            return;
        }
        title = WordsOf(header.title);
        face = WordsOf(header.face);
        ReadTemplateItems(&left, header, Keep, this);
    }
    explicit Template(const TestTemplate& from) : Template(BytesOf(from)) {}
    ~Template() { HBlockFree(block_); }
    Template(const Template&) = delete;
    Template& operator=(const Template&) = delete;

    size_t OffsetOf(const BYTE* place) const { return static_cast<size_t>(place - block_); }

    int                   read;
    TemplateHeader        header = {};
    Words                 title;
    Words                 face;
    std::vector<ReadItem> items;

private:
    static void Keep(const TemplateItem& item, void* context)
    {
        static_cast<Template*>(context)->items.push_back(
            { item, item.systemClass ? item.systemClass : "", WordsOf(item.className), WordsOf(item.title) });
    }

    BYTE* block_;
};

TestTemplate OneItem(const TestItem& item)
{
    TestTemplate from;
    from.items.push_back(item);
    return from;
}

// With texts of odd and even lengths, so that items lie at all distances from their boundary.
TestTemplate Several()
{
    TestTemplate from;
    from.title = Wide("Title");
    from.hasFont = true;
    from.items.push_back({ Wide("HEdit"), Wide("%dl"), WS_CHILD | WS_TABSTOP, 1, 2, 3, 4, 5, {} });
    from.items.push_back({ { 0xFFFF, 0x0080 }, Wide("&Ok"), WS_CHILD, -1, -2, 30, 40, 0xFFFF, { 1, 2, 3 } });
    from.items.push_back({ Wide("HGrid"), {}, WS_CHILD | WS_VISIBLE, 7, 8, 9, 10, 11, { 4 } });
    return from;
}

TEST(DialogTemplate, TellsStyleSizeAndCount)
{
    TestTemplate from = Several();
    from.style = WS_POPUP | WS_BORDER;
    from.cx = 320;
    from.cy = -2;
    const Template read(from);
    ASSERT_TRUE(read.read);
    EXPECT_EQ(WS_POPUP | WS_BORDER | 0x40u, read.header.style);
    EXPECT_EQ(3, read.header.count);
    EXPECT_EQ(320, read.header.cx);
    EXPECT_EQ(-2, read.header.cy);
}

TEST(DialogTemplate, TellsTitleAndFont)
{
    const Template read(Several());
    ASSERT_TRUE(read.read);
    EXPECT_EQ(Wide("Title"), read.title);
    EXPECT_TRUE(NamesFont(read.header));
    EXPECT_EQ(8, read.header.points);
    EXPECT_EQ(Wide("Arial"), read.face);
}

TEST(DialogTemplate, PointSizeHasNoSign)
{
    TestTemplate from;
    from.hasFont = true;
    from.points = 0xFFF7;
    const Template read(from);
    ASSERT_TRUE(read.read);
    EXPECT_EQ(0xFFF7, read.header.points);
}

TEST(DialogTemplate, WithoutAFontGoesOnWithItsItems)
{
    TestTemplate from = Several();
    from.hasFont = false;
    const Template read(from);
    ASSERT_TRUE(read.read);
    EXPECT_FALSE(NamesFont(read.header));
    EXPECT_EQ(0, read.header.points);
    EXPECT_EQ(Words(), read.face);
    EXPECT_EQ(3u, read.items.size());
}

TEST(DialogTemplate, SkipsTheTextsOfMenuAndClass)
{
    TestTemplate from = Several();
    from.menu = Wide("MainMenu");
    from.className = Wide("Frame");
    const Template read(from);
    EXPECT_EQ(Wide("Title"), read.title);
    EXPECT_EQ(3u, read.items.size());
}

TEST(DialogTemplate, ReadsANumberInPlaceOfAMenuAsAText)
{
    TestTemplate from;
    from.menu = { 0xFFFF, 7 };
    from.title = Wide("T");
    Bytes bytes = BytesOf(from);
    bytes.erase(bytes.begin() + 22, bytes.begin() + 24); // the end that a number doesn't have
    const Template read(bytes);
    EXPECT_FALSE(read.read) << "each text is the one before it, and the title has no end";
    bytes.insert(bytes.end(), { 'U', 0, 0, 0 });
    const Template longer(bytes);
    ASSERT_TRUE(longer.read);
    EXPECT_EQ(Wide("U"), longer.title);
}

TEST(DialogTemplate, ReadsANumberInPlaceOfTheClassAsAText)
{
    TestTemplate from;
    from.className = { 0xFFFF, 7 };
    from.title = Wide("T");
    Bytes bytes = BytesOf(from);
    bytes.erase(bytes.begin() + 24, bytes.begin() + 26); // the end that a number doesn't have
    EXPECT_FALSE(Template(bytes).read) << "the title is the end of the class";
    bytes.insert(bytes.end(), { 'U', 0, 0, 0 });
    const Template longer(bytes);
    ASSERT_TRUE(longer.read);
    EXPECT_EQ(Wide("U"), longer.title);
}

TEST(DialogTemplate, TellsEachItem)
{
    const Template read(Several());
    ASSERT_EQ(3u, read.items.size());
    const ReadItem& first = read.items[0];
    EXPECT_EQ(Wide("HEdit"), first.className);
    EXPECT_EQ("", first.systemClass);
    EXPECT_EQ(Wide("%dl"), first.title);
    EXPECT_EQ(static_cast<DWORD>(WS_CHILD | WS_TABSTOP), first.item.style);
    EXPECT_EQ(1, first.item.x);
    EXPECT_EQ(2, first.item.y);
    EXPECT_EQ(3, first.item.cx);
    EXPECT_EQ(4, first.item.cy);
    EXPECT_EQ(5, first.item.id);
    EXPECT_EQ(-1, read.items[1].item.x);
    EXPECT_EQ(-2, read.items[1].item.y);
    EXPECT_EQ(0xFFFF, read.items[1].item.id);
    EXPECT_EQ(Wide("&Ok"), read.items[1].title);
    EXPECT_EQ(Wide("HGrid"), read.items[2].className);
}

TEST(DialogTemplate, TellsWhereCreationDataLies)
{
    const TestTemplate   from = Several();
    const TemplateWriter written(from);
    const Template       read(from);
    ASSERT_EQ(3u, read.items.size());
    for (size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(written.itemEnds[i] - from.items[i].data.size(), read.OffsetOf(read.items[i].item.data)) << i;
    }
    EXPECT_EQ(2, read.items[1].item.data[1]);
}

struct ClassRow {
    const char* what;
    Words       written;
    const char* systemClass; // null: none
    bool        keepsText = true;
};

TEST(DialogTemplate, KnowsTheSystemsClassesByTheLowByteOfTheirCode)
{
    const ClassRow rows[] = {
        { "button", { 0xFFFF, 0x80 }, "BUTTON", false },
        { "edit", { 0xFFFF, 0x81 }, "EDIT", false },
        { "static", { 0xFFFF, 0x82 }, "STATIC", false },
        { "list box", { 0xFFFF, 0x83 }, "LISTBOX", false },
        { "scroll bar", { 0xFFFF, 0x84 }, "SCROLLBAR", false },
        { "combo box", { 0xFFFF, 0x85 }, "COMBOBOX", false },
        { "a code behind the last", { 0xFFFF, 0x86 }, nullptr, false },
        { "the highest code", { 0xFFFF, 0xFF }, nullptr, false },
        { "an atom without the bit", { 0xFFFF, 0x41 }, nullptr, false },
        { "an atom with a high byte", { 0xFFFF, 0xC081 }, "EDIT", false },
        { "a text", Wide("HEdit"), nullptr },
        { "a text that begins with such a byte", { 0x2082, 'x' }, "STATIC" },
        { "a text of one such character", { 0x0080 }, "BUTTON" },
        { "a text with another character above", { 0x00E9, 'x' }, nullptr },
        { "a text with such a byte behind", { 'x', 0x0080 }, nullptr },
        { "an empty text", {}, nullptr },
    };
    for (const ClassRow& row : rows) {
        TestItem item;
        item.className = row.written;
        item.title = Wide("title");
        const Template read(OneItem(item));
        ASSERT_EQ(1u, read.items.size()) << row.what;
        EXPECT_EQ(row.systemClass ? row.systemClass : "", read.items[0].systemClass) << row.what;
        EXPECT_EQ(row.keepsText ? row.written : Words(), read.items[0].className) << row.what;
        EXPECT_EQ(Wide("title"), read.items[0].title) << row.what;
    }
}

TEST(DialogTemplate, GivesAsManyItemsAsItCounts)
{
    TestTemplate from;
    from.items.resize(255);
    for (const int count : { 0, 1, 200, 255 }) {
        from.count = count;
        EXPECT_EQ(static_cast<size_t>(count), Template(from).items.size()) << count;
    }
}

TEST(DialogTemplate, OfMoreThan255ItemsEndsWithItsBytes)
{
    TestTemplate from;
    from.items.resize(700);
    for (const int count : { 256, 257, 512, 65535 }) {
        from.count = count;
        EXPECT_EQ(700u, Template(from).items.size()) << count;
    }
}

TEST(DialogTemplate, CutOffAnywhereGivesTheItemsThatAreWhole)
{
    const TemplateWriter written(Several());
    for (size_t size = 0; size <= written.bytes.size(); ++size) {
        const Template read(Bytes(written.bytes.begin(), written.bytes.begin() + static_cast<ptrdiff_t>(size)));
        EXPECT_EQ(size >= written.headerSize, read.read != 0) << size;
        size_t whole = 0;
        while (whole < written.itemEnds.size() && written.itemEnds[whole] <= size) {
            ++whole;
        }
        EXPECT_EQ(whole, read.items.size()) << size;
    }
}

void ExpectInside(const Template& read, const TemplateText& text, size_t size)
{
    EXPECT_LE(read.OffsetOf(text.first) + text.length * sizeof(WORD), size);
}

TEST(DialogTemplate, WithAnyByteChangedStaysInsideItsBytes)
{
    const Bytes whole = BytesOf(Several());
    for (size_t at = 0; at < whole.size(); ++at) {
        for (const int value : { 0x00, 0x01, 0x40, 0x7F, 0x80, 0x85, 0xFF }) {
            Bytes bytes = whole;
            bytes[at] = static_cast<BYTE>(value);
            const Template read(bytes);
            if (!read.read) {
                continue;
            }
            ExpectInside(read, read.header.title, bytes.size());
            for (const ReadItem& item : read.items) {
                ExpectInside(read, item.item.className, bytes.size());
                ExpectInside(read, item.item.title, bytes.size());
                EXPECT_LE(read.OffsetOf(item.item.data), bytes.size()) << at << ": " << value;
            }
        }
    }
}

class RandomTemplate {
public:
    TestTemplate Next()
    {
        TestTemplate from;
        from.style = Pick(2) ? WS_POPUP : WS_CHILD;
        from.title = Text();
        from.menu = Text();
        from.className = Text();
        from.hasFont = Pick(2) != 0;
        from.points = static_cast<WORD>(Pick(40));
        from.face = Text();
        from.items.resize(static_cast<size_t>(Pick(9)));
        for (TestItem& item : from.items) {
            item = Item();
        }
        return from;
    }

private:
    int Pick(int count) { return static_cast<int>(engine_() % static_cast<unsigned>(count)); }

    SHORT Number() { return static_cast<SHORT>(engine_()); }

    Words Text()
    {
        Words text(static_cast<size_t>(Pick(12)));
        for (WORD& character : text) {
            character = static_cast<WORD>(1 + Pick(0x7F));
        }
        return text;
    }

    TestItem Item()
    {
        Words className = Text();
        if (Pick(3) == 0) {
            className = { 0xFFFF, static_cast<WORD>(0x80 + Pick(6)) };
        }
        return { className,
                 Text(),
                 static_cast<DWORD>(engine_()),
                 Number(),
                 Number(),
                 Number(),
                 Number(),
                 static_cast<WORD>(Number()),
                 Bytes(static_cast<size_t>(Pick(6)), 7) };
    }

    std::mt19937 engine_{ 20 };
};

TEST(DialogTemplate, IsReadAsItWasWritten)
{
    RandomTemplate random;
    for (int round = 0; round < 500; ++round) {
        const TestTemplate from = random.Next();
        const Template     read(from);
        ASSERT_TRUE(read.read) << round;
        EXPECT_EQ(from.title, read.title) << round;
        EXPECT_EQ(from.hasFont ? from.face : Words(), read.face) << round;
        ASSERT_EQ(from.items.size(), read.items.size()) << round;
        for (size_t i = 0; i < from.items.size(); ++i) {
            const TestItem& item = from.items[i];
            EXPECT_EQ(item.HasAtom() ? Words() : item.className, read.items[i].className) << round << ", " << i;
            EXPECT_EQ(item.title, read.items[i].title) << round << ", " << i;
            EXPECT_EQ(item.style, read.items[i].item.style) << round << ", " << i;
            EXPECT_EQ(item.x, read.items[i].item.x) << round << ", " << i;
            EXPECT_EQ(item.cy, read.items[i].item.cy) << round << ", " << i;
            EXPECT_EQ(item.id, read.items[i].item.id) << round << ", " << i;
        }
    }
}

struct HeightRow {
    WORD points;
    int  dpi;
    int  height;
};

TEST(DialogTemplate, FontHeightIsCutTowardsZero)
{
    constexpr HeightRow rows[] = {
        { 8, 96, -10 }, { 8, 144, -16 }, { 9, 96, -12 }, { 9, 144, -18 },        { 10, 96, -13 },
        { 7, 96, -9 },  { 7, 120, -11 }, { 0, 96, 0 },   { 0xFFF7, 96, -87369 },
    };
    for (const HeightRow& row : rows) {
        TemplateHeader header = {};
        header.points = row.points;
        EXPECT_EQ(row.height, TemplateFontHeight(header, row.dpi)) << row.points << " points at " << row.dpi;
    }
}

TEST(DialogTemplate, Of100By50UnitsWithAFontOf6By13Is150By81Pixels)
{
    TemplateHeader header = {};
    header.cx = 100;
    header.cy = 50;
    const RECT rect = SizeOf(header, { 6, 13 });
    EXPECT_EQ(0, rect.left);
    EXPECT_EQ(0, rect.top);
    EXPECT_EQ(150, rect.right);
    EXPECT_EQ(81, rect.bottom);
}

TEST(DialogTemplate, PlacesAreCutTowardsZero)
{
    TemplateItem item = {};
    item.x = 7;
    item.y = 7;
    item.cx = -7;
    item.cy = -7;
    const PixelPlace place = PlaceOf(item, { 6, 13 });
    EXPECT_EQ(10, place.x);
    EXPECT_EQ(11, place.y);
    EXPECT_EQ(-10, place.width);
    EXPECT_EQ(-11, place.height);
}

TEST(DialogTemplate, PlacesOfTheLargestNumbersDoNotOverflow)
{
    TemplateItem item = {};
    item.x = 32767;
    item.y = -32768;
    const PixelPlace place = PlaceOf(item, { 65535, 65535 });
    EXPECT_EQ(536846336, place.x);
    EXPECT_EQ(-268431360, place.y);
}

} // namespace
