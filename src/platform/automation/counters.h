/**
 * @file
 * What tests may ask of the automation library on systems other than Windows: how many texts, blocks and
 * arrays are alive, and to make later allocations fail.
 */
#ifndef KORVEL_PLATFORM_AUTOMATION_COUNTERS_H
#define KORVEL_PLATFORM_AUTOMATION_COUNTERS_H

#include "platform/automation.h"

#if defined(__cplusplus)
extern "C" {
#endif

/** Totals since the program started. What is alive is the difference of each pair. */
typedef struct KorvelAutomationCounters {
    int64_t textsMade;
    int64_t textsFreed;
    int64_t blocksMade;
    int64_t blocksFreed;
    int64_t arraysMade;
    int64_t arraysDestroyed;
    int64_t debugLines;
} KorvelAutomationCounters;

/** Reads the totals. */
KORVEL_AUTOMATION_API void KorvelReadAutomationCounters(KorvelAutomationCounters* counters);

/**
 * Allows `allowed` further texts, blocks and arrays, and refuses all later ones. A negative number removes
 * the limit.
 */
KORVEL_AUTOMATION_API void KorvelLimitAutomationAllocations(int64_t allowed);

/** Copies the last debugger line into `line`, cut to `size` bytes with its NUL; empty when there was none. */
KORVEL_AUTOMATION_API void KorvelLastDebugLine(char* line, size_t size);

#if defined(__cplusplus)
}
#endif

#endif
