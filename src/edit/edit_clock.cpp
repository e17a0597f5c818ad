// The running clock: an edit control of class k shows the time as long as it hasn't the focus.
#include "edit/edit_internal.h"
#include "foundation/memory.h"

#include <cstdint>
#include <ctime>

namespace {

constexpr UINT everySecond = 1000;
constexpr UINT everyMinute = 60000;
constexpr std::int64_t secondsPerMinute = 60;

std::int64_t clockValue; // handed to all clocks

bool FormatHolds(const HEditCtl* ctl, char letter)
{
    const char* const format = FormatOf(ctl);
    return format && std::strchr(format, letter);
}

bool ShowsAnother(const HEditCtl* ctl, std::int64_t now, std::int64_t shown)
{
    const bool sameMinute = now / secondsPerMinute == shown / secondsPerMinute;
    return now != shown && (FormatHolds(ctl, 's') || !sameMinute);
}

} // namespace

// Settled: the letter of the hour chooses the period, not that of the second.
void StartClock(HEditCtl* ctl)
{
    if (ctl->cClass == 'k') {
        SetTimer(ctl->hWnd, clockTimer, FormatHolds(ctl, 'h') ? everySecond : everyMinute, nullptr);
    }
}

LRESULT OnTimer(HEditCtl* ctl, const MsgArgs& args)
{
    if (ctl->cClass != 'k' || args.wParam != clockTimer) {
        return AskDefault(args);
    }
    const std::int64_t now = _time64(nullptr);
    if (!IsFocused(ctl) && ctl->pData && ShowsAnother(ctl, now, LoadAs<std::int64_t>(ctl->pData))) {
        clockValue = now;
        HEditSetData(ctl, &clockValue);
    }
    return 1;
}
