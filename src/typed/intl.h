// The one record of separators and default formats, and the scratch buffer that converters share.
#pragma once

#include <widgets/widgets.h>

#include <cstddef>

static_assert(offsetof(IntlSettings, chTimeSep) == 32 && offsetof(IntlSettings, dwFlags) == 36);
static_assert(sizeof(IntlSettings) == 64);

extern IntlSettings gIntl;

// Pictures of dates and the digits of a number pass through it, one at a time.
constexpr int scratchSize = 128;
extern char   gScratch[scratchSize];
