/**
 * @file
 * The modes of columns of texts, which fill their empty cells.
 */
#ifndef KORVEL_MISSING_COLUMN_MODES_H
#define KORVEL_MISSING_COLUMN_MODES_H

#include "containers/matrix.h"

#include <vector>

namespace korvel
{

/**
 * For each column the text whose weights have the largest sum, the first to appear of equals; empty where all
 * texts are.
 * @param weights null: all are 1.0
 */
[[nodiscard]] std::vector<text> modesOfColumns(const matrix<text>& table, int rows, int cols,
                                               matrix<double>* weights);

} // namespace korvel

#endif
