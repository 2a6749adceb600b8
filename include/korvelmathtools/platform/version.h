/**
 * @file
 * The version of the library, made from VERSION by tools/generate: edit that instead.
 */
#ifndef KORVEL_PLATFORM_VERSION_H
#define KORVEL_PLATFORM_VERSION_H

/** The version as a text. */
#define KORVEL_VERSION "0.1.0"
/** The first number of the version. */
#define KORVEL_VERSION_MAJOR 0
/** The second number of the version. */
#define KORVEL_VERSION_MINOR 1
/** The third number of the version. */
#define KORVEL_VERSION_PATCH 0

/** 10000 times the major number, plus 100 times the minor one, plus the patch. */
#define KORVEL_VERSION_NUMBER 100

#endif
