// For tests that have to give back every block of the library.
#pragma once

#include "support/guarded_memory.h"

#include <gtest/gtest.h>

// Expects as many live blocks at its end as at its start.
class BlockLeakCheck {
public:
    BlockLeakCheck() : before_(LiveBlocks()) {}
    ~BlockLeakCheck() { EXPECT_EQ(before_, LiveBlocks()) << "blocks were not freed, or freed blocks of others"; }
    BlockLeakCheck(const BlockLeakCheck&) = delete;
    BlockLeakCheck& operator=(const BlockLeakCheck&) = delete;

private:
    int before_;
};
