/**
 * @file
 * The wall clock.
 */
#ifndef KORVEL_PLATFORM_LOCAL_TIME_H
#define KORVEL_PLATFORM_LOCAL_TIME_H

#include "platform/automation.h"

namespace korvel
{

/**
 * Reads the local time from the system clock, to the second, into calendar fields; the day of the week and
 * the milliseconds are 0.
 * @return whether the system knows its local time
 */
bool readLocalTime(SYSTEMTIME& now);

} // namespace korvel

#endif
