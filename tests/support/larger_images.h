// A screen of one and a half times the usual resolution, with the images of checks that a start on it would load.
#pragma once

#include "button/draw.h"
#include "foundation/services.h"
#include "foundation/startup.h"
#include "support/screen_resolution.h"

#include <gtest/gtest.h>

#include <utility>

class LargerImages {
public:
    static constexpr int side = 20; // pixels

    LargerImages()
    {
        constexpr WORD stripSet = 2010;
        EXPECT_EQ(1, BitmapSetImageList(hInstance, &images_, stripSet, imageUnits, maskColor));
        std::swap(hCheckImages, images_);
    }
    ~LargerImages()
    {
        std::swap(hCheckImages, images_);
        ImageList_Destroy(images_);
    }
    LargerImages(const LargerImages&) = delete;
    LargerImages& operator=(const LargerImages&) = delete;

private:
    ScreenResolution dpi_{ 144 };
    HIMAGELIST       images_ = nullptr;
};
