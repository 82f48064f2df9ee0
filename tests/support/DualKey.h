#pragma once

#include "core/records.h"

/// The record of a dual action.
inline vantrix_key_mapping dualKey(int first, int second, int type = 0, int depth = 50)
{
    vantrix_key_mapping record;
    record.type = 3;
    record.digital.firstAction = ushort(first);
    record.digital.secondAction = ushort(second);
    record.digital.dualType = uchar(type);
    record.digital.depth = uchar(depth);
    return record;
}
