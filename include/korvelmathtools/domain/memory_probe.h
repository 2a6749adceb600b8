/**
 * @file
 * Whether large tables will fit: blocks allocated on trial, and the free address space.
 */
#ifndef KORVEL_DOMAIN_MEMORY_PROBE_H
#define KORVEL_DOMAIN_MEMORY_PROBE_H

#include "platform/export.h"

#include <array>

/**
 * Allocates a block of `rows * factor * cols * 8` bytes straight from the system, committed but not touched.
 * The number of bytes is truncated to 32 bits: what is above 2^32 is lost.
 *
 * @return the block, which is the caller's to give back: by `VirtualFree` on Windows, by `munmap` with the
 * same number of bytes elsewhere. Null when the number of bytes is 0, or when the system refuses. On Windows
 * its memory may be executed too
 */
KORVEL_API void* TestMemory(int rows, int cols, double factor);

/**
 * Whether the address space that this process has left is large enough.
 *
 * @param amount number of bytes; a fifth is added
 * @return false when that is more than the system says is available
 */
KORVEL_API bool GetStatusMemory(int amount);

namespace korvel
{

/** A table on trial: its rows and columns. */
struct table_on_trial {
    int rows;
    int cols;
};

/** As many tables as are tried at a time. */
using tables_on_trial = std::array<table_on_trial, 20>;

/**
 * Allocates a tenth more than tables of numbers take, one after the other, and then gives everything back.
 * A table without rows or columns is passed over.
 *
 * @return -1 when all fit at the same time; otherwise the number of the first one that does not, from 1
 */
[[nodiscard]] int firstThatDoesNotFit(const tables_on_trial& tables);

} // namespace korvel

#endif
