/**
 * @file
 * The values that stand for a missing cell, for C and C++. A missing text is the empty one.
 */
#ifndef KORVEL_CONTAINERS_MISSING_VALUES_H
#define KORVEL_CONTAINERS_MISSING_VALUES_H

/** The missing number: 29 units in the last place above the most negative double (0xFFEFFFFFFFFFFFE2). */
#define KORVEL_MISSING_DBL (-1.79769313486231e308)

/** The missing integer, the smallest there is. */
#define KORVEL_MISSING_LNG (-2147483647 - 1)

#endif
