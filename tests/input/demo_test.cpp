// The demo host, worked by keys and mouse from outside, and the file that it saves, whole.
#include "input/demo_process.h"
#include "input/key_script.h"

#include "support/input.h"

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <sstream>

namespace {

enum Col { colDate, colAirport, colState, colAircraft, colOperator, colPhase, colSpecies, colSize, colSpeed, colCost };

constexpr char names[] = "Flight Date,Airport Name,State,Aircraft,Operator,Phase,Species,Size,Speed,Cost\r\n";
constexpr char first[] = "1990-01-08,\"BARKSDALE, AIR FORCE BASE\",Louisiana,T-38A,MILITARY,Climb,Turkey vulture,"
                         "Large,300,0\r\n";
constexpr char second[] = "1990-03-03,\"THE \"\"OLD\"\" FIELD\",DC,BA-146,\"AIR\",Climb,Bird,Large,180,1234567\r\n";
constexpr char third[] = "1990-04-07,ARPT,Ohio,KC-10A,MILITARY,Take-off run,Bat,Medium,,\r\n";
constexpr char fourth[] = "1990-04-23,CHARLESTON,South Carolina,C-141B,MILITARY,Take-off run,Gull,Small,160,0\r\n";

constexpr int recordPart = 0; // of the status line
constexpr int countPart = 1;
constexpr int tellPart = 2;

constexpr char frameTitle[] = "Wildlife strikes";
constexpr char changedTitle[] = "Wildlife strikes *";

std::string ReadAll(const std::string& path)
{
    std::ifstream      file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

bool BeginsWith(const std::string& text, const std::string& start)
{
    return text.compare(0, start.size(), start) == 0;
}

#define EXPECT_SOON(condition) EXPECT_TRUE(DemoProcess::WaitFor([&] { return (condition); })) << Situation()
#define ASSERT_SOON(condition) ASSERT_TRUE(DemoProcess::WaitFor([&] { return (condition); })) << Situation()

class Demo : public testing::Test {
protected:
    Demo()
    {
        char folder[MAX_PATH] = {};
        char file[MAX_PATH] = {};
        GetTempPathA(MAX_PATH, folder);
        GetTempFileNameA(folder, "row", 0, file);
        path = file;
    }
    ~Demo() override
    {
        demo.reset();
        DeleteFileA(path.c_str());
    }

    // Four records, unless told otherwise.
    void Start(const std::string& rows = std::string(first) + second + third + fourth)
    {
        std::ofstream(path, std::ios::binary) << names << rows;
        demo = std::make_unique<DemoProcess>("--csv \"" + path + "\"");
        ASSERT_TRUE(demo->IsReady());
        ASSERT_SOON(demo->Focus() == demo->grid());
    }
    // Clicks into a cell that isn't current; its editor stands by then.
    void GoTo(CellAt cell)
    {
        demo->Click(cell);
        ASSERT_SOON(demo->Current() == cell && demo->Focus() == demo->grid());
    }
    // Types over a cell, by keys that end where they are told to.
    void TypeTo(const char* keys, CellAt end)
    {
        Type(keys);
        ASSERT_SOON(demo->Current() == end && demo->Focus() == demo->grid());
    }
    void Save(const std::string& rows)
    {
        Type("{Ctrl+S}");
        EXPECT_SOON(BeginsWith(demo->Status(tellPart), std::to_string(demo->RowCount() - 1) + " rows saved to "));
        EXPECT_EQ(names + rows, ReadAll(path));
        EXPECT_SOON(demo->Title() == frameTitle);
    }
    void ExpectUnsaved() { EXPECT_EQ(before, ReadAll(path)); }

    // What a failure shows.
    std::string Situation() const
    {
        if (!demo || !demo->IsReady()) {
            return "the demo isn't ready";
        }
        if (demo->HasEnded()) {
            return "the demo has ended with " + std::to_string(demo->ExitCode());
        }
        const CellAt       cell = demo->Current();
        std::ostringstream text;
        text << cell << " of " << demo->RowCount() << " rows, " << demo->Title() << ", status \""
             << demo->Status(recordPart) << "\" \"" << demo->Status(countPart) << "\" \"" << demo->Status(tellPart)
             << "\", editor \"" << demo->EditorText() << "\", focus " << demo->Focus() << ", grid " << demo->grid()
             << ", foreground " << GetForegroundWindow() << ", frame " << demo->frame();
        return text.str();
    }

    std::string                  path;
    std::string                  before = std::string(names) + first + second + third + fourth;
    std::unique_ptr<DemoProcess> demo;
};

TEST_F(Demo, ShowsTheRecordsAndAnEntryRow)
{
    Start();
    EXPECT_EQ(5, demo->RowCount());
    EXPECT_EQ((CellAt{ 0, 0 }), demo->Current());
    EXPECT_EQ("Record 1 of 4", demo->Status(recordPart));
    EXPECT_EQ("1990-03-03", demo->CellText({ colDate, 1 }));
    EXPECT_EQ("THE \"OLD\" FIELD", demo->CellText({ colAirport, 1 }));
    EXPECT_EQ("1,234,567", demo->CellText({ colCost, 1 }));
    EXPECT_EQ(frameTitle, demo->Title());
}

TEST_F(Demo, ChangedCellsAreSavedAndTheRestOfTheFileStays)
{
    Start();
    GoTo({ colAirport, 0 });
    TypeTo("A, B{Tab}", { colState, 0 });
    EXPECT_EQ("A, B", demo->CellText({ colAirport, 0 }));
    EXPECT_SOON(demo->Title() == changedTitle);
    GoTo({ colDate, 2 });
    TypeTo("2001-12-04{Enter}", { colAirport, 2 });
    GoTo({ colSpeed, 2 });
    TypeTo("450{Tab}", { colCost, 2 });
    TypeTo("7654321{Down}", { colCost, 3 });
    EXPECT_EQ("7,654,321", demo->CellText({ colCost, 2 }));
    ExpectUnsaved();
    Save("1990-01-08,\"A, B\",Louisiana,T-38A,MILITARY,Climb,Turkey vulture,Large,300,0\r\n" + std::string(second) +
         "2001-12-04,ARPT,Ohio,KC-10A,MILITARY,Take-off run,Bat,Medium,450,7654321\r\n" + fourth);
}

TEST_F(Demo, ValueThatIsStillBeingTypedIsSavedToo)
{
    Start();
    GoTo({ colState, 1 });
    Type("Maine");
    EXPECT_SOON(demo->EditorText() == "Maine");
    EXPECT_EQ("Enter or Tab takes the text, Esc takes it back", demo->Status(tellPart));
    Save(std::string(first) +
         "1990-03-03,\"THE \"\"OLD\"\" FIELD\",Maine,BA-146,\"AIR\",Climb,Bird,Large,180,1234567\r\n" + third + fourth);
}

TEST_F(Demo, InsertAddsARecord)
{
    Start();
    Type("{Ins}");
    ASSERT_SOON(demo->Current().row == 4);
    EXPECT_SOON(demo->Status(recordPart) == "New record, after 4");
    TypeTo("1999-01-02{Tab}", { colAirport, 4 });
    EXPECT_SOON(demo->RowCount() == 6);
    TypeTo("NEW FIELD{Tab}Utah{Tab}", { colAircraft, 4 });
    GoTo({ colSpeed, 4 });
    TypeTo("99{Down}", { colSpeed, 5 });
    Save(std::string(first) + second + third + fourth + "1999-01-02,NEW FIELD,Utah,,,,,,99,\r\n");
}

TEST_F(Demo, RecordsAreTypedAheadOfTheProgram)
{
    Start();
    Type("{Ins}");
    ASSERT_SOON(demo->Current().row == 4);
    TypeAhead("1999-01-02{Tab}ONE{Tab}Utah{Tab}B-1{Tab}OP{Tab}Climb{Tab}Duck{Tab}s{Tab}100{Tab}5{Tab}"
              "1999-02-03{Tab}TWO{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}200{Tab}6{Tab}");
    ASSERT_SOON(demo->Current() == (CellAt{ 0, 6 }));
    Save(std::string(first) + second + third + fourth +
         "1999-01-02,ONE,Utah,B-1,OP,Climb,Duck,Small,100,5\r\n1999-02-03,TWO,,,,,,,200,6\r\n");
}

TEST_F(Demo, SelectedRowsAreDeleted)
{
    Start();
    demo->Click({ -1, 1 });
    ASSERT_SOON(demo->Current() == (CellAt{ -1, 1 }));
    demo->Click({ -1, 2 }, withShift);
    ASSERT_SOON(demo->Current() == (CellAt{ -1, 2 }));
    Type("{Del}");
    EXPECT_SOON(demo->RowCount() == 3);
    EXPECT_SOON(demo->Title() == changedTitle);
    Save(std::string(first) + fourth);
}

TEST_F(Demo, EntryRowIsNotDeleted)
{
    Start();
    demo->Click({ -1, 3 });
    ASSERT_SOON(demo->Current() == (CellAt{ -1, 3 }));
    demo->Click({ -1, 4 }, withShift);
    ASSERT_SOON(demo->Current() == (CellAt{ -1, 4 }));
    Type("{Del}");
    EXPECT_SOON(demo->RowCount() == 4);
    Save(std::string(first) + second + third);
}

TEST_F(Demo, EscapeTakesBack)
{
    Start();
    GoTo({ colState, 0 });
    Type("Maine");
    ASSERT_SOON(demo->EditorText() == "Maine");
    Type("{Esc}");
    EXPECT_SOON(demo->EditorText() == "Louisiana" && demo->Focus() == demo->grid());
    EXPECT_SOON(demo->Status(tellPart).empty());
    TypeTo("{Down}", { colState, 1 });
    EXPECT_EQ("Louisiana", demo->CellText({ colState, 0 }));
    EXPECT_EQ(frameTitle, demo->Title());
    Save(std::string(first) + second + third + fourth);
}

// Refused values

struct Refused {
    Col         column;
    const char* typed;
    const char* old;
    const char* status;
};

TEST_F(Demo, RefusedValueTellsWhyAndTheOldOneIsBack)
{
    constexpr Refused cases[] = {
        { colDate, "1990-02-30{Enter}", "1990-03-03",
          "Flight date: \"1990-02-30\" is not a date of the form yyyy-mm-dd; the value from before is back" },
        { colSpeed, "70000{Tab}", "180",
          "Speed (knots): \"70000\" is not a whole number from 0 to 65535; the value from before is back" },
    };
    Start();
    for (const Refused& refused : cases) {
        const CellAt cell = { refused.column, 1 };
        GoTo(cell);
        Type(refused.typed);
        EXPECT_SOON(demo->Status(tellPart) == refused.status);
        EXPECT_SOON(demo->Focus() == demo->grid());
        EXPECT_EQ(cell, demo->Current()) << Situation();
        EXPECT_EQ(refused.old, demo->CellText(cell)) << Situation();
    }
    EXPECT_EQ(frameTitle, demo->Title());
    TypeTo("99{Tab}", { colCost, 1 });
    EXPECT_SOON(demo->Status(tellPart).empty());
    Save(std::string(first) + "1990-03-03,\"THE \"\"OLD\"\" FIELD\",DC,BA-146,\"AIR\",Climb,Bird,Large,99,1234567\r\n" +
         third + fourth);
}

TEST_F(Demo, RefusedValueIsNotSaved)
{
    Start();
    GoTo({ colSpeed, 0 });
    Type("70000{Ctrl+S}");
    EXPECT_SOON(BeginsWith(demo->Status(tellPart), "Speed (knots): \"70000\" is not"));
    EXPECT_SOON(demo->CellText({ colSpeed, 0 }) == "300");
    ExpectUnsaved();
}

TEST_F(Demo, RefusedValueHoldsAClickElsewhereAndTheWindow)
{
    Start();
    Type("1990-13-40");
    demo->Click({ colState, 2 });
    EXPECT_SOON(BeginsWith(demo->Status(tellPart), "Flight date: \"1990-13-40\" is not"));
    EXPECT_SOON(demo->Focus() == demo->grid());
    EXPECT_EQ((CellAt{ colDate, 0 }), demo->Current());
    Type("{F2}1990-14-01{Alt+F4}");
    EXPECT_SOON(BeginsWith(demo->Status(tellPart), "Flight date: \"1990-14-01\" is not"));
    EXPECT_SOON(demo->Focus() == demo->grid());
    EXPECT_FALSE(demo->HasEnded());
    EXPECT_EQ("1990-01-08", demo->CellText({ colDate, 0 }));
    Type("{Alt+F4}");
    ASSERT_SOON(demo->HasEnded());
    ExpectUnsaved();
}

TEST_F(Demo, TextStopsAtTheSizeOfItsColumnNotAtItsWidth)
{
    Start();
    GoTo({ colPhase, 0 });
    TypeTo("A PHASE TOO LONG TO HOLD{Tab}", { colSpecies, 0 });
    EXPECT_EQ("A PHASE TOO LONG TO", demo->CellText({ colPhase, 0 }));
}

TEST_F(Demo, DateIsClearedToNothing)
{
    Start();
    GoTo({ colDate, 2 });
    TypeTo("{F2}{Del}{Tab}", { colAirport, 2 });
    GoTo({ colCost, 1 });
    TypeTo("{F2}{Del}{Down}", { colCost, 2 });
    Save(std::string(first) + "1990-03-03,\"THE \"\"OLD\"\" FIELD\",DC,BA-146,\"AIR\",Climb,Bird,Large,180,\r\n" +
         ",ARPT,Ohio,KC-10A,MILITARY,Take-off run,Bat,Medium,,\r\n" + fourth);
}

TEST_F(Demo, GeneratedRecordsTakeNoChange)
{
    demo = std::make_unique<DemoProcess>("--virtual 1000");
    ASSERT_TRUE(demo->IsReady());
    const std::string old = demo->CellText({ colState, 1 });
    GoTo({ colState, 1 });
    TypeTo("Iowa{F2}{Del}{Down}", { colState, 2 });
    EXPECT_EQ(old, demo->CellText({ colState, 1 }));
    EXPECT_EQ(frameTitle, demo->Title());
    TypeTo("{Ctrl+End}", { colState, static_cast<int>(demo->RowCount()) - 1 });
    EXPECT_SOON(demo->Status(recordPart) == "Record 1000 of 1000");
}

// Codes

TEST_F(Demo, CodeIsPickedByKeysAndSavedAsItsText)
{
    Start();
    EXPECT_EQ("Large", demo->CellText({ colSize, 0 }));
    GoTo({ colSize, 0 });
    TypeTo("{F2}{Up}{Tab}", { colSpeed, 0 });
    EXPECT_EQ("Medium", demo->CellText({ colSize, 0 }));
    EXPECT_SOON(demo->Title() == changedTitle);
    GoTo({ colSize, 2 });
    TypeTo("s{Tab}", { colSpeed, 2 });
    EXPECT_EQ("Small", demo->CellText({ colSize, 2 }));
    ExpectUnsaved();
    Save("1990-01-08,\"BARKSDALE, AIR FORCE BASE\",Louisiana,T-38A,MILITARY,Climb,Turkey vulture,Medium,300,0\r\n" +
         std::string(second) + "1990-04-07,ARPT,Ohio,KC-10A,MILITARY,Take-off run,Bat,Small,,\r\n" + fourth);
}

TEST_F(Demo, CodePickedInTheEntryRowBeginsARecord)
{
    Start();
    Type("{Ins}");
    ASSERT_SOON(demo->Current().row == 4);
    GoTo({ colSize, 4 });
    EXPECT_EQ("", demo->CellText({ colSize, 4 }));
    TypeTo("m{Tab}", { colSpeed, 4 });
    EXPECT_SOON(demo->RowCount() == 6);
    Save(std::string(first) + second + third + fourth + ",,,,,,,Medium,,\r\n");
}

TEST_F(Demo, EscapeTakesAPickedCodeBack)
{
    Start();
    GoTo({ colSize, 0 });
    Type("{F2}{Up}{Esc}");
    EXPECT_SOON(demo->Focus() == demo->grid());
    TypeTo("{Down}", { colSize, 1 });
    EXPECT_EQ("Large", demo->CellText({ colSize, 0 }));
    EXPECT_EQ(frameTitle, demo->Title());
}

TEST_F(Demo, TextThatHasNoCodeStaysInTheFile)
{
    const std::string huge = "1990-04-24,AIRPORT,Iowa,C-1,AIR,Climb,Gull,Huge,160,0\r\n";
    Start(first + huge);
    EXPECT_EQ("", demo->CellText({ colSize, 1 }));
    EXPECT_NE(std::string::npos, demo->Status(tellPart).find("\"Huge\" is not Small, Medium or Large")) << Situation();
    GoTo({ colSpeed, 0 });
    TypeTo("99{Down}", { colSpeed, 1 });
    Save("1990-01-08,\"BARKSDALE, AIR FORCE BASE\",Louisiana,T-38A,MILITARY,Climb,Turkey vulture,Large,99,0\r\n" +
         huge);
}

TEST_F(Demo, SortsByTheTextsOfCodes)
{
    Start();
    demo->Click({ colSize, -1 });
    ASSERT_SOON(demo->CellText({ colSize, 3 }) == "Small");
    EXPECT_EQ("Large", demo->CellText({ colSize, 1 }));
    EXPECT_EQ("Medium", demo->CellText({ colSize, 2 }));
}

// Counting by phase: the list has Climb and Take-off run, with two records each

class DemoPhases : public Demo {
protected:
    void ExpectCount(const char* text) { EXPECT_SOON(demo->Status(countPart) == text); }
    void ClickOnlyClimb()
    {
        Start();
        ExpectCount("4 records in 2 phases");
        demo->ClickPhase(0);
        ExpectCount("2 records in 1 phase");
        EXPECT_SOON(demo->Focus() == demo->phases());
    }
};

TEST_F(DemoPhases, CtrlClickAddsAPhaseAndTakesItAway)
{
    ClickOnlyClimb();
    demo->ClickPhase(1, withCtrl);
    ExpectCount("4 records in 2 phases");
    demo->ClickPhase(1, withCtrl); // the current item, of which nothing is told
    ExpectCount("2 records in 1 phase");
    demo->ClickPhase(0, withCtrl);
    ExpectCount("0 records in 0 phases");
}

TEST_F(DemoPhases, ShiftAndArrowsSelectARange)
{
    ClickOnlyClimb();
    Type("{Shift+Down}");
    ExpectCount("4 records in 2 phases");
    Type("{Shift+Up}");
    ExpectCount("2 records in 1 phase");
    Type("{Down}"); // the count stays the same
    EXPECT_SOON(demo->AskPhases(HLM_ISSELECTED, 1) == 1);
    EXPECT_EQ(0, demo->AskPhases(HLM_ISSELECTED, 0));
    ExpectCount("2 records in 1 phase");
}

TEST_F(DemoPhases, ButtonsSelectAllAndNoneAndLeaveTheFocus)
{
    ClickOnlyClimb();
    demo->ClickButton("All");
    ExpectCount("4 records in 2 phases");
    demo->ClickButton("None");
    ExpectCount("0 records in 0 phases");
    EXPECT_EQ(demo->phases(), demo->Focus());
    GoTo({ colSpecies, 1 });
    demo->ClickButton("All");
    ExpectCount("4 records in 2 phases");
    EXPECT_NE(demo->phases(), demo->Focus());
}

TEST_F(DemoPhases, FunctionKeyGoesThereAndEscapeBack)
{
    Start();
    Type("{F6}");
    ASSERT_SOON(demo->Focus() == demo->phases());
    Type("{Esc}");
    ASSERT_SOON(demo->Focus() == demo->grid());
}

TEST_F(DemoPhases, CountFollowsTheRecords)
{
    ClickOnlyClimb();
    GoTo({ colPhase, 2 });
    TypeTo("Climb{Tab}", { colSpecies, 2 });
    ExpectCount("3 records in 1 phase");
    GoTo({ colPhase, 0 });
    TypeTo("Ascent{Tab}", { colSpecies, 0 });
    ExpectCount("2 records in 1 phase"); // "Ascent" is a new item above the selected one
    EXPECT_EQ(3, demo->AskPhases(HLM_GETCOUNT));
    demo->ClickPhase(0, withCtrl);
    ExpectCount("3 records in 2 phases");
}

// The window

TEST_F(Demo, RowsKeepTheirPlaceInTheFileWhenTheyAreSorted)
{
    Start();
    demo->Click({ colSpeed, -1 });
    ASSERT_SOON(demo->CellText({ colSpeed, 3 }) == "300");
    GoTo({ colState, 3 });
    TypeTo("Texas{Up}", { colState, 2 });
    Save("1990-01-08,\"BARKSDALE, AIR FORCE BASE\",Texas,T-38A,MILITARY,Climb,Turkey vulture,Large,300,0\r\n" +
         std::string(second) + third + fourth);
}

TEST_F(Demo, ClosingUnchangedAsksNothing)
{
    Start();
    Type("{Alt+F4}");
    ASSERT_SOON(demo->HasEnded());
    EXPECT_EQ(0, demo->ExitCode());
    ExpectUnsaved();
}

class DemoClosing : public Demo {
protected:
    // Changes a cell and wants to close the window: the question stands there.
    void ChangeAndClose()
    {
        Start();
        GoTo({ colState, 3 });
        Type("Iowa");
        ASSERT_SOON(demo->EditorText() == "Iowa");
        Close();
    }
    void Close()
    {
        Type("{Alt+F4}");
        ASSERT_SOON(demo->Dialog() && GetForegroundWindow() == demo->Dialog());
    }
    const std::string changed = std::string(names) + first + second + third +
                                "1990-04-23,CHARLESTON,Iowa,C-141B,MILITARY,Take-off run,Gull,Small,160,0\r\n";
};

TEST_F(DemoClosing, YesSaves)
{
    ChangeAndClose();
    ExpectUnsaved();
    Type("{Enter}");
    ASSERT_SOON(demo->HasEnded());
    EXPECT_EQ(0, demo->ExitCode());
    EXPECT_EQ(changed, ReadAll(path));
}

TEST_F(DemoClosing, NoLeavesTheFile)
{
    ChangeAndClose();
    Type("n");
    ASSERT_SOON(demo->HasEnded());
    ExpectUnsaved();
}

TEST_F(DemoClosing, CancelLetsTheUserGoOn)
{
    ChangeAndClose();
    Type("{Esc}");
    EXPECT_SOON(!demo->Dialog() && demo->Focus() == demo->grid());
    EXPECT_EQ("Iowa", demo->CellText({ colState, 3 }));
    Close();
    Type("y");
    ASSERT_SOON(demo->HasEnded());
    EXPECT_EQ(changed, ReadAll(path));
}

TEST_F(Demo, MenuSavesAddsAndDeletes)
{
    Start();
    GoTo({ colState, 0 });
    TypeTo("Iowa{Down}", { colState, 1 });
    Type("{Alt+R}d");
    EXPECT_SOON(demo->RowCount() == 4);
    Type("{Alt+F}s");
    EXPECT_SOON(BeginsWith(demo->Status(tellPart), "3 rows saved to "));
    EXPECT_EQ(std::string(names) +
                  "1990-01-08,\"BARKSDALE, AIR FORCE BASE\",Iowa,T-38A,MILITARY,Climb,Turkey vulture,Large,300,0\r\n" +
                  third + fourth,
              ReadAll(path));
    Type("{Alt+R}n");
    EXPECT_SOON(demo->Current().row == 3);
}

} // namespace
