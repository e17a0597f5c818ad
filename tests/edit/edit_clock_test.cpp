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

} // namespace
