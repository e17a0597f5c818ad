// How the screen is asked, on a platform whose screen a test can take away.
#include "foundation/screen.h"

#include "native/native_platform.h"

#include <gtest/gtest.h>

namespace {

class ScreenReading : public testing::Test {
protected:
    ScreenReading()
    {
        NativeReset();
        DpiReset();
    }
    ~ScreenReading() override
    {
        NativeReset();
        DpiReset();
    }
};

TEST_F(ScreenReading, AScreenOf144DpiIsReadOnce)
{
    Native().dpiX = 144;
    Native().dpiY = 120;
    EXPECT_EQ(60, ScaleX(40));
    EXPECT_EQ(50, ScaleY(40));
    EXPECT_EQ(150, DpiPercent());
    EXPECT_EQ(1, Native().screenReads);
    EXPECT_EQ(0, Native().openDCs);
}

TEST_F(ScreenReading, WithoutAScreenDcTheResolutionStays96)
{
    Native().hasScreen = false;
    Native().dpiX = 144;
    EXPECT_EQ(40, ScaleX(40));
    EXPECT_EQ(100, DpiPercent());
    EXPECT_EQ(1, fDpiRead) << "a screen that couldn't be asked isn't asked again";
}

TEST_F(ScreenReading, FitsInUnitsNotInPixels)
{
    Native().dpiX = 192;
    Native().dpiY = 192;
    Native().systemMetrics = { { SM_CXSCREEN, 1600 }, { SM_CYSCREEN, 1200 } };
    EXPECT_EQ(800, ScreenWidthUnits());
    EXPECT_EQ(600, ScreenHeightUnits());
    EXPECT_EQ(1, ScreenFits(800, 600));
    EXPECT_EQ(0, ScreenFits(801, 600));
    EXPECT_EQ(0, ScreenFits(800, 601));
}

} // namespace
