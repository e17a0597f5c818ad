// The messages of a button that set and give: places, colours, pictures, counts.
#include "button_window.h"

#include "button/picture_cache.h"
#include "support/guarded_memory.h"

namespace {

class ButtonMessages : public ButtonWindow {
protected:
    LRESULT SetPic(int index, int kind, const void* handle = nullptr)
    {
        return SendPtr(HBM_SETPIC, static_cast<WPARAM>(MAKELONG(index, kind)), handle);
    }
    HANDLE Handle(int index) const { return reinterpret_cast<HANDLE>(Send(HBM_GETPIC, static_cast<WPARAM>(index))); }
};

TEST_F(ButtonMessages, PlacesGoUpToEight)
{
    const UINT pairs[][2] = {
        { HBM_SETPICPOS, HBM_GETPICPOS }, { HBM_SETRELPOS, HBM_GETRELPOS }, { HBM_SETTEXTPOS, HBM_GETTEXTPOS }
    };
    Make("x");
    for (const auto& [set, get] : pairs) {
        for (WPARAM place = 0; place <= 8; ++place) {
            EXPECT_EQ(1, Send(set, place));
            EXPECT_EQ(static_cast<LRESULT>(place), Send(get));
        }
        EXPECT_EQ(0, Send(set, 9));
        EXPECT_EQ(0, Send(set, 256));
        EXPECT_EQ(8, Send(get));
    }
}

TEST_F(ButtonMessages, ColoursAndBrushAreKeptAndRepaint)
{
    Make("x");
    Validate();
    EXPECT_EQ(1, Send(HBM_SETTEXTCOLOR, 0, 0x123456));
    EXPECT_TRUE(IsInvalid());
    EXPECT_EQ(0x123456, Send(HBM_GETTEXTCOLOR));
    Validate();
    EXPECT_EQ(1, Send(HBM_SETPICKEY, 0, 0x654321));
    EXPECT_TRUE(IsInvalid());
    EXPECT_EQ(0x654321, Send(HBM_GETPICKEY));
    const WPARAM brush = reinterpret_cast<WPARAM>(GetStockObject(GRAY_BRUSH));
    EXPECT_EQ(0, Send(HBM_SETBKBRUSH, brush));
    EXPECT_EQ(static_cast<LRESULT>(brush), Send(HBM_GETBKBRUSH));
    EXPECT_EQ(static_cast<LRESULT>(brush), Send(HBM_SETBKBRUSH));
}

TEST_F(ButtonMessages, PicturesAreGivenByIndex)
{
    Make("333;x;IM1:HC1", HBS_CHECK);
    EXPECT_EQ(-1, Send(HBM_GETPIC, 0));
    EXPECT_NE(nullptr, Handle(1));
    EXPECT_EQ(0, Send(HBM_GETPIC, 2));
    EXPECT_EQ(0, Send(HBM_GETPIC, static_cast<WPARAM>(-1)));
    EXPECT_EQ(0, Send(HBM_GETPALETTE, 0));
    EXPECT_EQ(reinterpret_cast<LRESULT>(+Ctl()->pPics[1].hPalette), Send(HBM_GETPALETTE, 1));
    EXPECT_NE(0, Send(HBM_GETPALETTE, 1));
    EXPECT_EQ(0, Send(HBM_GETPALETTE, 2));
}

TEST_F(ButtonMessages, PictureOfTheHostStaysItsOwn)
{
    const HBITMAP one = CreateBitmap(4, 4, 1, 1, nullptr);
    const HBITMAP two = CreateBitmap(5, 5, 1, 1, nullptr);
    Make("333;x;IM1:HC1", HBS_CHECK);
    const HANDLE loaded = Handle(1);
    EXPECT_EQ(0, SetPic(1, PIC_BITMAP, one)) << "the old one went";
    EXPECT_EQ(one, Handle(1));
    EXPECT_EQ(DWORD{ PIC_BITMAP }, Ctl()->pPics[1].nKind);
    EXPECT_EQ(nullptr, Ctl()->pPics[1].hPalette);
    EXPECT_EQ(0u, GetObjectType(loaded));
    EXPECT_EQ(reinterpret_cast<LRESULT>(one), SetPic(1, 0, two)) << "the host's own comes back";
    EXPECT_EQ(DWORD{ PIC_BITMAP }, Ctl()->pPics[1].nKind) << "0 keeps the kind";
    EXPECT_EQ(0, SetPic(2, PIC_BITMAP, one));
    DestroyButton();
    EXPECT_EQ(DWORD{ OBJ_BITMAP }, GetObjectType(one));
    EXPECT_EQ(DWORD{ OBJ_BITMAP }, GetObjectType(two));
    DeleteObject(one);
    DeleteObject(two);
}

TEST_F(ButtonMessages, NoPictureIsTheDefaultOne)
{
    Make("333;x;IM1:IM1:IM1:IM1:IM1:IM1:IM1", HBS_CHECK);
    for (int i = 0; i < 7; ++i) {
        SetPic(i, 0);
        const bool exists = i == 0 || i == 1 || i == 2 || i == 4; // HC1, HC2, HC3, HC5
        EXPECT_EQ(exists, Handle(i) != nullptr) << i;
        EXPECT_EQ(exists ? DWORD{ PIC_DIB } : DWORD{ PIC_NONE }, Ctl()->pPics[i].nKind) << i;
    }
    UpdateWindow(button);
    Make("333;x;IM1", HBS_PUSH);
    SetPic(0, 0);
    EXPECT_EQ(nullptr, Handle(0)) << "a push button has none";
}

TEST_F(ButtonMessages, NoPictureIsTheDefaultOneOfAThreeStateToo)
{
    Make("333;x;IM1", HBS_THREESTATE);
    EXPECT_EQ(-1, SetPic(0, 0)) << "the last use of a picture of the strip";
    EXPECT_NE(nullptr, Handle(0));
    EXPECT_EQ(DWORD{ PIC_DIB }, Ctl()->pPics[0].nKind);
}

TEST_F(ButtonMessages, PictureThatOthersStillUseIsNotGivenBack)
{
    Make("333;x;HC1:HC1", HBS_CHECK);
    const HANDLE shared = Handle(1);
    Validate();
    EXPECT_EQ(0, SetPic(0, 0, nullptr));
    EXPECT_TRUE(IsInvalid());
    EXPECT_EQ(DWORD{ OBJ_BITMAP }, GetObjectType(shared));
}

TEST_F(ButtonMessages, LeastCountOfStatesIsDoubledUnderUpDown)
{
    Make("333;x;IM1:IM2:IM3:IM4:IM1:IM2", HBS_CHECK | HBS_UPDOWN);
    EXPECT_EQ(0, Send(HBM_SETPICCOUNT, 0));
    EXPECT_EQ(4, Send(HBM_GETSTATECOUNT));
    Make("1;x", HBS_PUSH | HBS_UPDOWN);
    EXPECT_EQ(2, Send(HBM_GETSTATECOUNT));
}

TEST_F(ButtonMessages, MorePicturesAreEmptyOnes)
{
    Make("333;x;IM1:IM2", HBS_CHECK);
    EXPECT_EQ(5, Send(HBM_SETPICCOUNT, 5));
    EXPECT_EQ(5, Send(HBM_GETPICCOUNT));
    EXPECT_EQ(5, Send(HBM_GETSTATECOUNT));
    EXPECT_EQ(-1, Send(HBM_GETPIC, 1));
    EXPECT_EQ(0, Send(HBM_GETPIC, 4));
    Send(BM_SETCHECK, 4);
    UpdateWindow(button);
}

TEST_F(ButtonMessages, FewerPicturesAreAllEmpty)
{
    Make("333;x;IM1:IM2:IM3:IM4", HBS_CHECK);
    Send(BM_SETCHECK, 3);
    EXPECT_EQ(2, Send(HBM_SETPICCOUNT, 2));
    EXPECT_EQ(2, Send(HBM_GETSTATECOUNT));
    EXPECT_EQ(1, State()) << "the state is limited";
    EXPECT_EQ(0, Send(HBM_GETPIC, 0));
    EXPECT_EQ(0, Send(HBM_SETPICCOUNT, 0));
    EXPECT_EQ(2, Send(HBM_GETSTATECOUNT)) << "not below the least";
    UpdateWindow(button);
}

TEST_F(ButtonMessages, SameNumberOfPicturesKeepsThem)
{
    Make("333;x;IM1:IM2", HBS_CHECK);
    EXPECT_EQ(2, Send(HBM_SETPICCOUNT, 2));
    EXPECT_EQ(-1, Send(HBM_GETPIC, 1));
}

TEST_F(ButtonMessages, NumberOfPicturesHasBounds)
{
    Make("333;x;IM1", HBS_CHECK);
    EXPECT_EQ(255, Send(HBM_SETPICCOUNT, 255));
    EXPECT_EQ(255, Send(HBM_GETSTATECOUNT));
    EXPECT_EQ(255, Send(HBM_SETPICCOUNT, 256));
    EXPECT_EQ(255, Send(HBM_SETPICCOUNT, 0x7FFFFFFF));
    EXPECT_EQ(255, Send(HBM_GETPICCOUNT));
    Send(BM_SETCHECK, 254);
    EXPECT_EQ(254, State());
    SetPic(254, PIC_BITMAP, nullptr);
    EXPECT_EQ(0, Send(HBM_SETPICCOUNT, static_cast<WPARAM>(-1)));
    EXPECT_EQ(0, Send(HBM_GETPICCOUNT));
    Send(BM_SETCHECK, 1);
    EXPECT_EQ(1, State());
}

TEST_F(ButtonMessages, NumberOfPicturesStaysWithoutMemory)
{
    Make("333;x;IM1:IM2:IM3", HBS_CHECK);
    for (const WPARAM count : { 9, 2 }) {
        FailAllocation(1);
        EXPECT_EQ(0, Send(HBM_SETPICCOUNT, count));
        FailAllocation(0);
        EXPECT_EQ(3, Send(HBM_GETPICCOUNT));
        EXPECT_EQ(-1, Send(HBM_GETPIC, 2));
    }
}

TEST_F(ButtonMessages, PicturesOfAllButtonsAreLoadedOnce)
{
    Make("333;x;HC1", HBS_CHECK);
    const HWND first = button;
    button = nullptr;
    Make("333;y;hc1:HC1", HBS_CHECK);
    EXPECT_EQ(3, PicRefs(&Ctl()->pPics[0]));
    DestroyButton();
    EXPECT_EQ(1, PicRefs(&RecordOf<HButtCtl>(first)->pPics[0]));
}

TEST_F(ButtonMessages, CommonMessagesAreAnswered)
{
    Make("x");
    EXPECT_EQ(reinterpret_cast<LRESULT>(parent.hwnd()), Send(WWM_GETPARENT));
    EXPECT_EQ(static_cast<LRESULT>(Ctl()->dwStyle), Send(WWM_GETSTYLE));
    EXPECT_EQ(0, Send(WM_USER + 900));
}

} // namespace
