// The running clock of class k.
#include "edit_window.h"
#include "foundation/memory.h"

#include <cstdint>
#include <ctime>

namespace {

class EditClock : public EditWindow {
protected:
    std::int64_t Shown() const { return LoadAs<std::int64_t>(Ctl()->pData); }
    void         Show(std::int64_t value) const { StoreAs(Ctl()->pData, value); }
};

TEST_F(EditClock, TickShowsTheTime)
{
    Create("%kThh:mm:ss");
    const std::int64_t before = _time64(nullptr);
    EXPECT_EQ(1, Send(WM_TIMER, 1));
    EXPECT_GE(Shown(), before);
    EXPECT_LE(Shown(), _time64(nullptr));
    EXPECT_NE("", Text());
}

TEST_F(EditClock, ClockWithTheFocusStands)
{
    Create("%kThh:mm:ss");
    Focus();
    Send(WM_TIMER, 1);
    EXPECT_EQ(0, Shown());
}

TEST_F(EditClock, ClockWithoutSecondsWaitsForTheNextMinute)
{
    Create("%kThh:mm");
    std::int64_t value = 0;
    do {
        value = _time64(nullptr) / 60 * 60;
        Show(value);
        Send(WM_TIMER, 1);
    } while (_time64(nullptr) / 60 * 60 != value);
    EXPECT_EQ(value, Shown());
    Show(value - 60);
    Send(WM_TIMER, 1);
    EXPECT_GE(Shown(), value);
}

TEST_F(EditClock, OtherTimersAndOtherClassesAreLeftAlone)
{
    Create("%kThh:mm:ss");
    Send(WM_TIMER, 2);
    EXPECT_EQ(0, Shown());
    edit = nullptr;
    Create("%aT");
    Send(WM_TIMER, 1);
    EXPECT_EQ(0, Shown());
}

TEST_F(EditClock, ClockWithAnHourTicksByItselfEachSecond)
{
    Create("%kThh:mm:ss");
    EXPECT_TRUE(PumpUntil([this] { return Shown() != 0; }));
}

TEST_F(EditClock, ClockWithoutAnHourTicksEachMinute)
{
    Create("%kTmm/dd/yyyy");
    const HWND second = Create("%kThh:mm:ss");
    const auto ofSecond = [second] { return RecordOf<HEditCtl>(second)->pData; };
    EXPECT_TRUE(PumpUntil([&] { return LoadAs<std::int64_t>(ofSecond()) != 0; }));
    EXPECT_EQ(0, Shown()) << "the other one ticked first";
}

std::int64_t* gHanded;
int CALLBACK NoteHanded(HWND, int, void* value)
{
    gHanded = static_cast<std::int64_t*>(value);
    return 0;
}

TEST_F(EditClock, TwoClocksThatTickTogetherShowTheSameTime)
{
    Create("%kThh:mm:ss");
    const HWND second = Create("%kThh:mm:ss");
    Send(HEM_SETVALIDATOR, 0, reinterpret_cast<LPARAM>(NoteHanded));
    gHanded = nullptr;
    Send(WM_TIMER, 1);
    ASSERT_NE(nullptr, gHanded);
    EXPECT_EQ(Shown(), *gHanded) << "a validator sees the time";
    SendMessageA(second, WM_TIMER, 1, 0);
    const std::int64_t other = LoadAs<std::int64_t>(RecordOf<HEditCtl>(second)->pData);
    EXPECT_LE(Shown(), other);
    EXPECT_GE(Shown() + 2, other);
}

TEST_F(EditClock, TickInTheSameSecondChangesNothing)
{
    Create("%kThh:mm:ss");
    std::int64_t value = 0;
    LRESULT      selection = 0;
    do {
        value = _time64(nullptr);
        Show(value);
        SetSelection(Ctl(), 0, 2, 4);
        Send(WM_TIMER, 1);
        selection = Send(EM_GETSEL);
    } while (_time64(nullptr) != value);
    EXPECT_EQ(MAKELRESULT(2, 4), selection);
    Show(value - 1);
    Send(WM_TIMER, 1);
    EXPECT_EQ(MAKELRESULT(0, 0), Send(EM_GETSEL)) << "another second does";
}

} // namespace
