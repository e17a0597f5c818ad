// Tables of handlers by message number.
#include "dialog/message_table.h"

#include <gtest/gtest.h>

namespace {

using Handler = int (*)();

int One()
{
    return 1;
}

int Two()
{
    return 2;
}

constexpr MessageEntry<Handler> entries[] = { { 1030, Two }, { 1024, One } };
constexpr auto                  handlers = ByNumber<1024, 1030>(entries);

TEST(FindHandler, FindsFirstAndLastNumber)
{
    EXPECT_EQ(&One, FindHandler<1024>(handlers, 1024));
    EXPECT_EQ(&Two, FindHandler<1024>(handlers, 1030));
}

TEST(FindHandler, GivesNullBetweenAndOutside)
{
    for (const UINT message : { 0u, 1023u, 1025u, 1029u, 1031u, 0xFFFFFFFFu }) {
        EXPECT_EQ(nullptr, FindHandler<1024>(handlers, message)) << message;
    }
}

TEST(AskDefault, SetsTheFlagAndGivesZero)
{
    int           wantsDefault = 0;
    const MsgArgs args = { nullptr, 0, 0, 0, &wantsDefault };
    EXPECT_EQ(0, AskDefault(args));
    EXPECT_NE(0, wantsDefault);
}

} // namespace
