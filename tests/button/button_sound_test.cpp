// Sounds of buttons, with a player that notes what it is asked to play.
#include "button_window.h"

#include "support/import_hook.h"

#include <mmsystem.h>

#include <cstdio>
#include <cstring>

namespace {

struct Played {
    std::string file; // empty for a block of memory
    const void* memory;
    UINT        flags;
};

std::vector<Played> gPlayed;

BOOL WINAPI NotePlay(const char* sound, UINT flags)
{
    const bool memory = (flags & SND_MEMORY) != 0;
    gPlayed.push_back({ memory || !sound ? "" : sound, memory ? sound : nullptr, flags });
    return TRUE;
}

class ButtonSound : public ButtonWindow {
protected:
    ButtonSound() : old_(pfnPlaySound)
    {
        pfnPlaySound = NotePlay;
        gPlayed.clear();
        MakeFile(wave);
    }
    ~ButtonSound() override
    {
        if (button && IsWindow(button)) {
            DestroyWindow(button);
        }
        pfnPlaySound = old_;
        DeleteFileA(wave);
    }
    static void MakeFile(const char* name)
    {
        std::FILE* const file = std::fopen(name, "wb");
        ASSERT_NE(nullptr, file);
        std::fputs("RIFF", file);
        std::fclose(file);
    }
    std::string File() const
    {
        char buffer[64] = "";
        SendPtr(HBM_GETSOUND, sizeof buffer, buffer);
        return buffer;
    }

    static constexpr char wave[] = "buttest.WAV";

private:
    SoundPlayer old_;
};

TEST_F(ButtonSound, FileIsFoundWithAndWithoutItsEnding)
{
    for (const char* const name : { "441;x;;buttest", "441;x;;buttest.WAV" }) {
        Make(name);
        EXPECT_EQ("buttest.WAV", File()) << name;
        EXPECT_TRUE(Ctl()->wFlags & HBF_SOUNDFILE);
        char buffer[8] = "#######";
        EXPECT_EQ(3, SendPtr(HBM_GETSOUND, 4, buffer));
        EXPECT_STREQ("but", buffer);
    }
}

TEST_F(ButtonSound, WhatIsNotFoundIsSilent)
{
    Make("441;x;;no such sound");
    EXPECT_EQ(nullptr, Ctl()->pszSound);
    EXPECT_EQ(nullptr, Ctl()->hSound);
    EXPECT_EQ(0, Send(HBM_GETSOUND)) << "the default's answer";
    Send(HBM_CLICK);
    EXPECT_TRUE(gPlayed.empty());
    EXPECT_EQ(1, Clicks());
}

TEST_F(ButtonSound, EachPressPlaysTheFile)
{
    Make("441;x;;buttest");
    Send(HBM_CLICK);
    Send(BM_CLICK);
    Send(BM_SETSTATE, 1);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
    Send(WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
    Send(WM_KEYDOWN, VK_SPACE);
    Send(WM_KEYUP, VK_SPACE);
    ASSERT_EQ(5u, gPlayed.size());
    for (const Played& played : gPlayed) {
        EXPECT_EQ("buttest.WAV", played.file);
        EXPECT_EQ(0u, played.flags);
    }
    Send(BM_SETSTATE, 0);
    EXPECT_EQ(5u, gPlayed.size());
}

TEST_F(ButtonSound, PrefixLetsSoundsPlayOn)
{
    Make("441;x;;%abuttest");
    EXPECT_TRUE(Ctl()->dwStyle & HBS_ASYNCSOUND);
    EXPECT_EQ("buttest.WAV", File());
    Send(HBM_CLICK);
    ASSERT_EQ(1u, gPlayed.size());
    EXPECT_EQ(UINT{ SND_ASYNC }, gPlayed[0].flags);
}

TEST_F(ButtonSound, ResourceIsPlayedFromMemory)
{
    Make("441;x;;TESTSOUND");
    ASSERT_NE(nullptr, Ctl()->hSound) << "the program has a resource of type 400";
    EXPECT_EQ(nullptr, Ctl()->pszSound);
    EXPECT_EQ(reinterpret_cast<LRESULT>(+Ctl()->hSound), Send(HBM_GETSOUND));
    Send(HBM_CLICK);
    ASSERT_EQ(1u, gPlayed.size());
    EXPECT_EQ(UINT{ SND_MEMORY }, gPlayed[0].flags);
    EXPECT_EQ(0, std::memcmp(gPlayed[0].memory, "RIFF", 4));
    DestroyButton();
    EXPECT_EQ(1u, gPlayed.size()) << "nothing is loaded, so nothing has to stop";
}

TEST_F(ButtonSound, ResourceThatPlaysOnIsLoadedOnceAndStoppedAtTheEnd)
{
    Make("441;x;;%aTESTSOUND");
    ASSERT_TRUE(Ctl()->wFlags & HBF_SOUNDLOADED);
    Send(HBM_CLICK);
    Send(HBM_CLICK);
    ASSERT_EQ(2u, gPlayed.size());
    EXPECT_EQ(UINT{ SND_MEMORY | SND_ASYNC }, gPlayed[1].flags);
    EXPECT_EQ(0, std::memcmp(gPlayed[1].memory, "RIFF", 4));
    DestroyButton();
    ASSERT_EQ(3u, gPlayed.size());
    EXPECT_EQ(nullptr, gPlayed[2].memory);
    EXPECT_EQ(UINT{ SND_MEMORY }, gPlayed[2].flags);
}

TEST_F(ButtonSound, StyleThatComesLaterDoesNotTakeAFoundResourceForALoadedOne)
{
    Make("441;x;;TESTSOUND");
    Ctl()->dwStyle |= HBS_ASYNCSOUND;
    Send(HBM_CLICK);
    ASSERT_EQ(1u, gPlayed.size());
    EXPECT_EQ(0, std::memcmp(gPlayed[0].memory, "RIFF", 4));
}

TEST_F(ButtonSound, MessageSetsAResourceOrAFile)
{
    Make("x");
    const HRSRC found = FindResourceA(GetModuleHandleA(nullptr), "TESTSOUND", MAKEINTRESOURCEA(400));
    ASSERT_NE(nullptr, found);
    EXPECT_EQ(0, Send(HBM_SETSOUND, reinterpret_cast<WPARAM>(found)));
    EXPECT_EQ(reinterpret_cast<LRESULT>(found), Send(HBM_GETSOUND));
    Send(HBM_CLICK);
    EXPECT_EQ(1u, gPlayed.size());
    EXPECT_EQ(reinterpret_cast<LRESULT>(found), Send(HBM_SETSOUND)) << "no name clears it";
    EXPECT_EQ(0, Send(HBM_SETSOUND));
    EXPECT_EQ(1, SendPtr(HBM_SETSOUND, 0, "buttest"));
    EXPECT_EQ("buttest.WAV", File());
    EXPECT_EQ(0, SendPtr(HBM_SETSOUND, 0, ""));
    EXPECT_EQ(nullptr, Ctl()->pszSound);
    EXPECT_FALSE(Ctl()->wFlags & HBF_SOUNDFILE);
    EXPECT_EQ(0, SendPtr(HBM_SETSOUND, 0, "no such sound"));
}

TEST_F(ButtonSound, ResourceComesBeforeAFile)
{
    Make("441;x;;buttest");
    const HRSRC found = FindResourceA(GetModuleHandleA(nullptr), "TESTSOUND", MAKEINTRESOURCEA(400));
    Send(HBM_SETSOUND, reinterpret_cast<WPARAM>(found));
    EXPECT_STREQ("buttest.WAV", Ctl()->pszSound);
    Send(HBM_CLICK);
    ASSERT_EQ(1u, gPlayed.size());
    EXPECT_NE(nullptr, gPlayed[0].memory);
    Send(HBM_SETSOUND);
    Send(HBM_CLICK);
    ASSERT_EQ(2u, gPlayed.size());
    EXPECT_EQ("buttest.WAV", gPlayed[1].file);
}

TEST_F(ButtonSound, PrefixCountsInAMessageTooButOnce)
{
    Make("x");
    EXPECT_EQ(1, SendPtr(HBM_SETSOUND, 0, "%abuttest"));
    EXPECT_TRUE(Ctl()->dwStyle & HBS_ASYNCSOUND);
    EXPECT_EQ("buttest.WAV", File());
    constexpr char second[] = "%abuttest.WAV";
    EXPECT_EQ(0, SendPtr(HBM_SETSOUND, 0, "%a%abuttest"));
    MakeFile(second);
    EXPECT_EQ(1, SendPtr(HBM_SETSOUND, 0, "%a%abuttest"));
    EXPECT_EQ(second, File());
    Make("441;x;;%a%abuttest");
    EXPECT_EQ(second, File());
    DeleteFileA(second);
}

HMODULE WINAPI LoadNothing(const char*)
{
    return nullptr;
}

TEST_F(ButtonSound, WithoutAPlayerButtonsAreSilent)
{
    pfnPlaySound = nullptr;
    const ImportHook hook("LoadLibraryA", LoadNothing);
    for (const char* const text : { "441;x;;TESTSOUND", "441;x;;%aTESTSOUND", "441;x;;buttest" }) {
        Make(text);
        EXPECT_EQ(nullptr, Ctl()->hSound) << text;
        EXPECT_EQ(nullptr, Ctl()->pszSound) << text;
        EXPECT_FALSE(Ctl()->wFlags & (HBF_SOUNDFILE | HBF_SOUNDLOADED)) << text;
    }
    EXPECT_EQ(0, SendPtr(HBM_SETSOUND, 0, "buttest"));
    EXPECT_EQ(nullptr, Ctl()->pszSound);
    const HRSRC found = FindResourceA(GetModuleHandleA(nullptr), "TESTSOUND", MAKEINTRESOURCEA(400));
    Send(HBM_SETSOUND, reinterpret_cast<WPARAM>(found));
    Send(HBM_CLICK);
    EXPECT_EQ(1, Clicks());
    EXPECT_EQ(nullptr, reinterpret_cast<void*>(pfnPlaySound));
    EXPECT_TRUE(gPlayed.empty());
}

template <DWORD version>
DWORD WINAPI VersionOf()
{
    return version;
}

TEST_F(ButtonSound, PlayerIsBoundFromVersion3Point10On)
{
    pfnPlaySound = nullptr;
    {
        const ImportHook hook("GetVersion", VersionOf<0x0903>);
        Make("441;x;;buttest");
        EXPECT_EQ(nullptr, Ctl()->pszSound);
        EXPECT_EQ(nullptr, reinterpret_cast<void*>(pfnPlaySound));
    }
    const ImportHook hook("GetVersion", VersionOf<0x0A03>);
    Make("441;x;;buttest");
    EXPECT_STREQ("buttest.WAV", Ctl()->pszSound);
    EXPECT_NE(nullptr, reinterpret_cast<void*>(pfnPlaySound));
}

TEST_F(ButtonSound, NamesThatAreTooLongAreNotFound)
{
    Make("x");
    EXPECT_EQ(0, SendPtr(HBM_SETSOUND, 0, std::string(500, 's').c_str()));
}

TEST_F(ButtonSound, PlayerIsThePlatformsWhereThereIsOne)
{
    pfnPlaySound = nullptr;
    Make("441;x;;buttest");
    const HMODULE library = GetModuleHandleA("WinMM.DLL");
    ASSERT_NE(nullptr, library);
    EXPECT_EQ(reinterpret_cast<void*>(GetProcAddress(library, "sndPlaySoundA")), reinterpret_cast<void*>(pfnPlaySound));
}

} // namespace
