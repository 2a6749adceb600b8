/**
 * @file
 * Tables written to text files on the user's desktop, for someone to look at. Nothing reads them back.
 */
#ifndef KORVEL_TABLES_MATRIX_DUMP_H
#define KORVEL_TABLES_MATRIX_DUMP_H

#include "containers/matrix.h"

#include <string_view>

namespace korvel
{

/**
 * Writes a table to `<desktop>/matrix/<name>.csv`, or, where that file exists, to the first of
 * `<name>(1).csv`,
 * `<name>(2).csv` and so on that does not.
 *
 * The first line is `n = <rows>; p = <cols>`, and each row has a line in which every cell is followed by
 * `;`. Numbers have 20 significant digits, trailing zeros left out, and so can show more digits than they
 * hold; a missing number is one like the others. Texts are written in UTF-8, a missing one as nothing.
 *
 * Nothing is reported. The folder is not made: when it is not there, or cannot be written to, nothing is
 * written.
 *
 * @param table `rows` by `cols`, read through the checked access
 * @param rows  rows to write
 * @param cols  columns to write
 * @param name  base name of the file; on Windows every byte is one character
 * @throws std::bad_alloc when memory is short
 */
template <class T>
void dumpTable(const matrix<T>& table, int rows, int cols, std::string_view name);

} // namespace korvel

#endif
