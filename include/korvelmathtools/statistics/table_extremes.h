/**
 * @file
 * The smallest element of a table of columns.
 */
#ifndef KORVEL_STATISTICS_TABLE_EXTREMES_H
#define KORVEL_STATISTICS_TABLE_EXTREMES_H

#include "containers/matrix3d.h"
#include "containers/records.h"
#include "platform/export.h"

/**
 * Smallest element of a table of chunks. The first element of the table takes part in the comparison whatever
 * its flag and its value: flagged or missing, it may still be the result.
 *
 * @param table     the chunks
 * @param nChunks   number of chunks
 * @param nPerChunk elements of each
 * @param iMissing  flags, chunk after chunk, `nPerChunk` for each; an element with a non-zero flag is left
 * out
 * @return the smallest; missing when no element is both unflagged and not missing
 */
KORVEL_API double V_Min_ST(matrix3DVect<matrix<double>>* table, int nChunks, int nPerChunk,
                           short int* iMissing);

namespace korvel
{

/** Smallest element of the first rows and columns of a record that is not missing; missing when there is
 * none. */
[[nodiscard]] double smallestOf(const cST_MVect<double>& table, int rows, int cols);

} // namespace korvel

#endif
