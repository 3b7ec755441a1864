#pragma once

#include <QtGlobal>

#include <cstddef>

/// What all copies of one name share. Read and written only between lock() and unlock() of the
/// shared memory that holds it; a new one is all zero.
struct InstanceBlock
{
    bool primaryRunning;     ///< a primary copy is running
    quint32 secondaryCount;  ///< secondary copies started so far
    qint64 primaryProcessId; ///< -1 after the primary has ended
};

static_assert(sizeof(InstanceBlock) == 16);
static_assert(sizeof(InstanceBlock::primaryRunning) == 1);
static_assert(offsetof(InstanceBlock, primaryRunning) == 0);
static_assert(offsetof(InstanceBlock, secondaryCount) == 4);
static_assert(offsetof(InstanceBlock, primaryProcessId) == 8);
