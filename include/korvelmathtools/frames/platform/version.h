/**
 * @file
 * Flat functions: the version of the library.
 *
 * KORVEL_VERSION_NUMBER is the version of these headers; a program that was built with others than the
 * library it runs with sees two different numbers.
 */
#ifndef KORVEL_FRAMES_PLATFORM_VERSION_H
#define KORVEL_FRAMES_PLATFORM_VERSION_H

#include "frames/types.h"
#include "platform/version.h"

/**
 * The version of the library that is loaded.
 *
 * @return 10000 times the major number, plus 100 times the minor one, plus the patch: 10203 for 1.2.3
 */
KORVEL_FLAT int KORVEL_Version(void);

#endif
