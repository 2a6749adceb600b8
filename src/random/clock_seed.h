/**
 * @file
 * A seed made from the local time, for callers that give none.
 */
#ifndef KORVEL_RANDOM_CLOCK_SEED_H
#define KORVEL_RANDOM_CLOCK_SEED_H

#include "platform/automation.h"

namespace korvel
{

/** Reads the local time, to the second, into calendar fields, and tells whether there is one. */
using local_clock = bool (*)(SYSTEMTIME& now);

/**
 * Replaces the system's clock, so that a test can choose the time.
 * @return the clock used so far
 */
local_clock exchangeLocalClock(local_clock clock) noexcept;

/**
 * The seed of the present second: second + 100 * (100 * hour + days + minute), where `days` counts from 30
 * December 1899. Different times can have the same seed, and two seeds taken in the same second are equal.
 *
 * A time without an exact automation date counts as day 0, with -1 for the hour, the minute and the second.
 */
int clockSeed();

} // namespace korvel

#endif
