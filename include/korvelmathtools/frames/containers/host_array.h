/**
 * @file
 * Flat functions: host arrays.
 */
#ifndef KORVEL_FRAMES_CONTAINERS_HOST_ARRAY_H
#define KORVEL_FRAMES_CONTAINERS_HOST_ARRAY_H

#include "frames/types.h"

/**
 * The block of texts behind a host array, for functions that take such a block.
 *
 * @param sa [in] host array of String; its descriptor may be null
 * @return the array's data, or null when there is no array or it holds none
 */
KORVEL_FLAT OLECHAR** ExtractBSTR(SAFEARRAY** sa);

#endif
