/**
 * @file
 * Plain twins of transposing, cell after cell in the order of the target's columns.
 */
#ifndef KORVEL_TESTS_REFERENCE_TRANSPOSE_H
#define KORVEL_TESTS_REFERENCE_TRANSPOSE_H

#include "containers/matrix.h"

#include <cstddef>

namespace korvel::reference
{

/** On trusted blocks; the spare slot of `y` stays. */
template <class From, class To>
void transpose(const matrix<From>& x, int rows, int cols, matrix<To>& y)
{
    y.Redim(cols, rows, To{});
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < cols; ++j) {
            y.data[j + static_cast<std::ptrdiff_t>(cols) * i] =
                static_cast<To>(x.data[i + static_cast<std::ptrdiff_t>(rows) * j]);
        }
    }
}

/** On chunks, with the checked access by linear index. */
inline void transposeChunks(const matrix<double>* const* x, int rows, int cols, matrix<double>* const* y)
{
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < cols; ++j) {
            const double value = (*x[j])[i];
            if (j < static_cast<int>(y[i]->nbElem)) {
                y[i]->data[j] = value;
            }
            y[i]->oobValue = value;
        }
    }
}

} // namespace korvel::reference

#endif
