/**
 * @file
 * Coordinates for a biplot after a singular value decomposition (K. R. Gabriel, Biometrika 58, 1971), and the
 * squared cosines of its observations. Tables are read and written through the checked access of their form.
 */
#ifndef KORVEL_FITTING_BIPLOT_H
#define KORVEL_FITTING_BIPLOT_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "platform/export.h"

#include <algorithm>

namespace korvel
{

/** How many columns a table has at least for all of some positions, counted from 1, to lie in it. */
[[nodiscard]] inline int columnsReached(const matrix<int>& positions, int n)
{
    int most = 0;
    for (int i = 0; i < n; ++i) {
        most = std::max(most, positions[i]);
    }
    return most;
}

} // namespace korvel

/**
 * Rescales coordinates by powers of the singular values: those of rows by s^(alpha/2 - 1/2), those of columns
 * by s^(-alpha/2), or not at all for an `alpha` of 0. So with 1 the rows stay as they are, and with 0 the
 * columns do.
 *
 * @param rowCoordinates      `rows` by `axes`
 * @param extraRowCoordinates `extraRows` by `axes`, to stand below them; may be null when there are none
 * @param columnCoordinates   `columns` by `axes`
 * @param rows                rows
 * @param extraRows           further rows
 * @param columns             columns
 * @param axes                axes
 * @param singularValues      `axes` elements
 * @param scale               1: nothing more. Otherwise the coordinates of columns are also multiplied by its
 * root; a negative one has the missing value for its root
 * @param alpha               see above
 * @param rowResult           resized to `rows` + `extraRows` by `axes` and filled; a missing cell stays
 * missing
 * @param columnResult        resized to `columns` by `axes` and filled, likewise
 * @return 0
 */
KORVEL_API int BiplotTransData(matrix<double>* rowCoordinates, matrix<double>* extraRowCoordinates,
                               matrix<double>* columnCoordinates, int rows, int extraRows, int columns,
                               int axes, matrix<double>* singularValues, double scale, double alpha,
                               matrix<double>* rowResult, matrix<double>* columnResult);

/** The same with the coordinates of rows, and of columns, as `axes` chunks. */
KORVEL_API int BiplotTransData(matrix<double>** rowCoordinates, matrix<double>* extraRowCoordinates,
                               matrix<double>** columnCoordinates, int rows, int extraRows, int columns,
                               int axes, matrix<double>* singularValues, double scale, double alpha,
                               matrix<double>* rowResult, matrix<double>* columnResult);

/**
 * Squared cosines: each cell squared, over the sum of squares of its row by `M_SquaredRows`. Where that sum
 * is missing, so are the row's cells; where it is not above 1e-12, the cells of the result stay as they are.
 *
 * @param x      `n` by `p`
 * @param n      rows
 * @param p      columns
 * @param result `n` by `p`, and may be such an `x`; a table of another shape becomes zeros of this one first
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void cComputeCosines(matrix<double>* x, int n, int p, matrix<double>*& result);

/** The same on `p` chunks. */
KORVEL_API void cComputeCosinesSPV(matrix3D<matrix<double>>* x, int n, int p, matrix<double>*& result);

/**
 * Marks one cell in each row of a table with -1.
 *
 * @param positions `n` columns, counted from 1; one below 1, or beyond the table, marks nothing
 * @param n         rows
 * @param table     `n` rows of cells, of which only the marked ones change
 */
KORVEL_API void M_BoldCosines(matrix<int>* positions, int n, matrix<int>* table);

#endif
