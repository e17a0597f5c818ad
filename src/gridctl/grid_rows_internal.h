// What adding and inserting rows have in common.
#pragma once

#include "gridctl/grid_control.h"

// A row that the source is to see before it enters the block, a blank one for null.
struct OfferedRow {
    void*       blank;
    const void* data;
    OfferedRow(HGridCtl* ctl, const void* given)
        : blank(given ? nullptr : HGBlankRow(ctl->pData)), data(given ? given : blank)
    {
    }
    ~OfferedRow() { HBlockFree(blank); }
    OfferedRow(const OfferedRow&) = delete;
    OfferedRow& operator=(const OfferedRow&) = delete;
};

bool HGHasRowRoom(const HGridCtl* ctl);
int  HGAppendNode(HGridCtl* ctl, const void* data); // index of the new row, or -1

// Offers a row to the row source. False if the source refuses it, and if the window went.
bool HGOfferRow(HGridCtl* ctl, const OfferedRow& row, int operation, LONG record);
