// Sounds of buttons: resources of type 400 and ".WAV" files, played by a library that a machine may lack.
#include "button/button_internal.h"
#include "foundation/memory.h"

#include <mmsystem.h>

#include <cstring>

SoundPlayer pfnPlaySound;

namespace {

constexpr int  firstPlayerVersion = 778; // as HWinVersion gives it: 3.10
constexpr WORD soundType = 400;
constexpr char asyncPrefix[] = "%a";
constexpr size_t fileNameSize = 128; // OpenFile takes no longer ones

// The library stays loaded once it was needed.
bool BindPlayer()
{
    if (!pfnPlaySound && HWinVersion() >= firstPlayerVersion) {
        const HMODULE library = LoadLibraryA("WinMM.DLL");
        if (library) {
            pfnPlaySound = reinterpret_cast<SoundPlayer>(
                reinterpret_cast<void*>(GetProcAddress(library, "sndPlaySoundA")));
        }
    }
    return pfnPlaySound != nullptr;
}

bool FindSound(HButtCtl* ctl, const char* name)
{
    const HINSTANCE module = ModuleOf(ctl);
    const HRSRC     found = *name ? FindResourceA(module, name, MAKEINTRESOURCEA(soundType)) : nullptr;
    if (!found) {
        return false;
    }
    ctl->hSound = reinterpret_cast<HGLOBAL>(found);
    if (HasStyle(ctl, HBS_ASYNCSOUND)) {
        ctl->hSound = LoadResource(module, found);
        LockResource(ctl->hSound);
        SetFlag(ctl, HBF_SOUNDLOADED, true);
    }
    return true;
}

UINT PlayFlags(const HButtCtl* ctl)
{
    return HasStyle(ctl, HBS_ASYNCSOUND) ? SND_ASYNC : SND_SYNC;
}

void PlayResource(HButtCtl* ctl)
{
    const bool    loaded = HasFlag(ctl, HBF_SOUNDLOADED);
    const HRSRC   found = static_cast<HRSRC>(ctl->hSound);
    const UINT    flags = PlayFlags(ctl);
    const HGLOBAL sound = loaded ? ctl->hSound : LoadResource(ModuleOf(ctl), found);
    const char*   data = sound ? static_cast<const char*>(LockResource(sound)) : nullptr;
    if (data) {
        pfnPlaySound(data, SND_MEMORY | flags);
    }
    // What plays on is still read.
    if (sound && !loaded && !(flags & SND_ASYNC)) {
        FreeResource(sound);
    }
}

bool CompleteName(const char* name, char* out)
{
    const char* const added = std::strchr(name, '.') ? "" : ".WAV";
    if (std::strlen(name) + std::strlen(added) >= fileNameSize) {
        return false;
    }
    std::strcpy(out, name);
    std::strcat(out, added);
    return true;
}

bool FileExists(const char* name)
{
    OFSTRUCT told{};
    return OpenFile(name, &told, OF_EXIST) != HFILE_ERROR;
}

} // namespace

const char* HBTakeSoundPrefix(HButtCtl* ctl, const char* name)
{
    constexpr size_t length = sizeof asyncPrefix - 1;
    if (std::strncmp(name, asyncPrefix, length) != 0) {
        return name;
    }
    ctl->dwStyle |= HBS_ASYNCSOUND;
    return name + length;
}

int HBSetSoundFile(HButtCtl* ctl, const char* name)
{
    char       complete[fileNameSize];
    const bool found = *name && CompleteName(name, complete) && FileExists(complete);
    SetFlag(ctl, HBF_SOUNDFILE, false);
    char* kept = ctl->pszSound;
    hstrdup2(&kept, found ? complete : nullptr);
    ctl->pszSound = kept;
    if (!kept) {
        return 0;
    }
    if (!BindPlayer()) {
        HBFreeSound(ctl);
        return 0;
    }
    SetFlag(ctl, HBF_SOUNDFILE, true);
    return 1;
}

void HBLoadSound(HButtCtl* ctl, const char* field)
{
    const char* const name = HBTakeSoundPrefix(ctl, field);
    if (!FindSound(ctl, name)) {
        HBSetSoundFile(ctl, name);
    } else if (!BindPlayer()) {
        HBFreeSound(ctl);
    }
}

void HBFreeSound(HButtCtl* ctl)
{
    if (HasFlag(ctl, HBF_SOUNDLOADED)) {
        if (pfnPlaySound) {
            pfnPlaySound(nullptr, SND_MEMORY);
        }
        FreeResource(ctl->hSound);
    }
    SetFlag(ctl, HBF_SOUNDLOADED | HBF_SOUNDFILE, false);
    ctl->hSound = nullptr;
    HBlockFree(ctl->pszSound);
    ctl->pszSound = nullptr;
}

void HBPlaySound(HButtCtl* ctl)
{
    if (ctl->hSound && HasFlag(ctl, HBF_PRESSED) && BindPlayer()) {
        PlayResource(ctl);
    } else if (ctl->pszSound && BindPlayer()) {
        pfnPlaySound(ctl->pszSound, PlayFlags(ctl));
    }
}
