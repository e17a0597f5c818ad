// Walks an edit of a cell: plays it once undisturbed and notes every step at which the outside can act, then once for
// each step and disturbance. At every step the rows are whole: as before, or as the edit has committed them.
#pragma once

#include "gridctl/grid_control.h"

#include <set>
#include <string>
#include <vector>

enum WalkTrait : unsigned {
    onRecords = 1,      // the rows are a row source's records
    hasEntryRow = 2,    // a blank row stands at the end
    inEntryRow = 4,     // that row is edited
    keepsSelection = 8, // the editor stays without the focus
    refusesCells = 16,  // the source takes no value
    refusesRows = 32,   // the source takes no row
    isValidated = 64,   // the editor has a validator, which refuses odd numbers
    isBounded = 128,    // the editor's numbers end at 3
    takesBack = 256,    // what is entered is taken back in the end, or refused
    deletesRow = 512,   // the user deletes the row in the end
    walkedBefore = 1024, // another edit walks how the value is entered: only leaving the cell is walked
    inAllWays = 2048,    // with all disturbances, also those that come down to another
    inLongRuns = 4096    // only where tests may take long: what it walks is near to what another edit does
};

// Events: {Tab}, {Enter}, {Down}, {Esc}, {F2}, {F4} and {Del} press a key, {Press} and {PressHeader} the mouse on another
// cell or on the row's header, {Paste} pastes, {Away} takes the focus to another window, {Close} closes the grid. All
// else is typed. Values: as before, after each event that enters something, and what a commit makes of the last one if
// that is another value. "{null}" is the null value.
struct WalkEdit {
    const char* name;
    HGField* (*column)();
    const char*              events;
    unsigned                 traits;
    std::vector<std::string> values;
};

enum class WalkBorder { Message, GridTells, EditorTells, SourceAsked, ValidatorAsked };

// A moment at which the outside can act.
struct WalkStep {
    WalkBorder border;
    UINT       code; // of the message, the notification or the operation

    bool        operator==(const WalkStep&) const = default;
    std::string Name() const;
};

struct WalkRow {
    std::string bytes; // values and cell flags
    WORD        flags;

    bool operator==(const WalkRow&) const = default;
};

// What the rows of an edit may hold, and whether they do. The middle column is edited; the first holds the number by
// which a row is known wherever it stands, 0 in the entry row.
class WalkRows {
public:
    static constexpr int  editedCol = 1;
    static constexpr int  noteCol = 2;
    static constexpr LONG rowCount = 3;

    explicit WalkRows(const WalkEdit& edit);

    HGridData* MakeData(bool withRows) const;
    HGridData* MakeOtherData(); // of other columns; its rows are looked at from now on
    void       InsertRows(HGridData* data) const;
    LONG       EditedId() const { return editedId_; }
    int        PlaceOf(const HGridCtl* ctl, LONG id) const; // -1 if no loaded row has the number
    LONG       IdAt(const HGridCtl* ctl, int place) const;
    int        LastValue() const { return static_cast<int>(edited_.size()) - 1; }

    void Begin(); // a run
    void Look(const HGridCtl* ctl, const std::string& when);
    void LookAtRecords(const std::string& when);
    void KeepLast(const HGridCtl* ctl); // the grid tells of its end: a host saves its rows now
    bool HasLast() const { return hasLast_; }
    int  FinalValue() const; // index of the value with which the run has ended, or -1
    int  AnswerSource(int operation, int record, void* buffer);
    void Complain(const std::string& what);

    std::string    complaints;
    std::set<LONG> gone;             // rows that host or user have deleted
    bool           emptied = false;  // by the host
    bool           replaced = false; // by the host: other data
    bool           attaching = false;
    bool           takesCells = true;
    bool           takesRows = true;

private:
    bool                 Is(unsigned trait) const { return (edit_.traits & trait) != 0; }
    std::string          BytesOf(LONG id, const std::string& value, const char* note) const;
    std::vector<WalkRow> Loaded(const HGridCtl* ctl) const;
    LONG                 IdOf(const std::string& bytes) const;
    int                  ValueOf(const WalkRow& row) const; // index of the value that makes up the whole row, or -1
    bool                 IsAllowed(const WalkRow& row) const;
    bool                 IsAllowedRecord(const std::string& bytes) const;
    void                 LookAtCounts(const std::vector<WalkRow>& rows, const std::string& when);
    bool                 Append(const std::string& bytes);

    const WalkEdit&          edit_;
    LONG                     editedId_;
    std::vector<WalkRow>     before_;
    std::vector<WalkRow>     edited_; // the edited row with each value
    std::vector<WalkRow>     other_;  // rows of the other data
    const HGridData*         otherData_ = nullptr;
    std::vector<std::string> records_;
    std::vector<WalkRow>     last_;
    bool                     hasLast_ = false;
};

class GridWalk;

struct Disturbance {
    const char* name;
    bool        loses; // what was entered and isn't committed may be gone with it
    bool        own;   // comes down to no other
    bool (*applies)(const WalkEdit& edit, const WalkStep& step);
    void (*run)(GridWalk* walk);
};

class GridWalk {
public:
    GridWalk(HWND top, const WalkEdit& edit);
    ~GridWalk();
    GridWalk(const GridWalk&) = delete;
    GridWalk& operator=(const GridWalk&) = delete;

    // Plays the edit undisturbed. With real input, keys and mouse go through the platform.
    std::vector<WalkStep> FindSteps(bool realInput = false);
    size_t                FirstStep() const; // to walk, counted from 1
    bool                  Tries(const Disturbance& disturbance, const WalkStep& step) const;
    void Run(const std::vector<WalkStep>& steps, size_t at, const Disturbance& disturbance);
    // What was wrong with the last play; empty: nothing.
    const std::string& Complaints() const { return rows_.complaints; }

    // For disturbances
    HWND Grid() const { return IsWindow(grid_) ? grid_ : nullptr; }
    HWND Host() const { return host_; }
    HWND Other() const { return other_; }
    HWND Teller() const { return teller_; } // who tells of something at this step
    HWND Editor() const;                    // of the edited column
    HWND KeyTarget() const;                 // who gets the keys: the grid, its editor, or null
    LRESULT SendGrid(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void DeleteRow(bool edited);            // the edited one, or the first
    void ReplaceData();
    void Empty(UINT message);
    void VetoWrites() { vetoes_ = true; }
    void RefuseAll() { rows_.takesCells = rows_.takesRows = false; }

    // From the windows and callbacks of the walk
    void OnNotification(HWND sender, int code);
    void OnEditorCommand(HWND editor, int code);
    int  OnSource(int operation, int record, void* buffer);
    int  OnValidate(const void* value);

private:
    void MakeGrid();
    void EndGrid();
    void PlayEdit();
    void PlayEvent(const std::string& event);
    void PlayKey(WORD vk, char ch, bool enters);
    void PlayPaste();
    void PlayPress(bool header);
    void Entered(bool enters);
    void ComeBack();
    void Step(WalkBorder border, UINT code, HWND teller = nullptr);
    void Look(const std::string& when);
    void LookAtWindows();
    void LookForLeaks(int blocks, int gdiObjects);
    void LookForLoss();
    bool Is(unsigned trait) const { return (edit_.traits & trait) != 0; }

    const WalkEdit& edit_;
    WalkRows        rows_;
    HWND            top_;
    HWND            other_;
    HWND            host_ = nullptr;
    HWND            grid_ = nullptr;
    HWND            teller_ = nullptr;

    // One play
    std::vector<WalkStep>* found_ = nullptr;
    const WalkStep*        expected_ = nullptr;
    const Disturbance*     disturbance_ = nullptr;
    size_t                 at_ = 0;
    size_t                 step_ = 0;
    size_t                 enteredSteps_ = 0; // until the last event that entered something was over
    int                    entered_ = 0;      // events that entered something before the disturbance
    bool                   ready_ = false;    // the grid stands
    bool                   playing_ = false;
    bool                   disturbed_ = false;
    bool                   vetoes_ = false;
    bool                   realInput_ = false;
};
