// Clock values in a zone that has daylight saving.
#include <gtest/gtest.h>

#include <widgets/widgets.h>

#include <cstdlib>
#include <ctime>
#include <string>

namespace {

class DateZone : public testing::Test {
protected:
    DateZone() { Enter("CET-1CEST,M3.5.0,M10.5.0/3"); }
    ~DateZone() override { Enter(old_.c_str()); }

private:
    static void Enter(const char* zone)
    {
        setenv("TZ", zone, 1);
        tzset();
    }
    const std::string old_ = std::getenv("TZ") ? std::getenv("TZ") : "UTC";
};

TEST_F(DateZone, TheHourThatWasTypedComesBackInSummerAndInWinter)
{
    for (const int month : { 7, 1, 7, 7, 1, 1 }) {
        const DateTimeRec rec = { .year = 2024, .month = static_cast<BYTE>(month), .day = 15, .hour = 12 };
        char              stored[8] = {};
        DateTimeRec       back = {};
        DateTimeToData(&rec, stored, 'T');
        DataToDateTime(&back, stored, 'T');
        EXPECT_EQ(12, back.hour) << month;
        EXPECT_EQ(15, back.day) << month;
    }
}

} // namespace
