/**
 * @file
 * The inner loops of LU and Cholesky decomposition and of the inverse from LU factors, compiled for each
 * instruction set. Every element is one accumulator from which products are taken, a multiplication and then
 * a subtraction, in the order of its rule; what runs side by side are elements that do not depend on each
 * other.
 *
 * Tables are column after column, `stride` elements from one column to the next.
 */
#ifndef KORVEL_LINALG_KERNELS_FACTORS_H
#define KORVEL_LINALG_KERNELS_FACTORS_H

#include <cstddef>

namespace korvel::kernels
{

/** Columns of a panel that is decomposed in one go, and the order of the triangles that are solved so. */
constexpr std::ptrdiff_t panelWidth = 8;

/**
 * The lower part of some columns in the middle of an LU decomposition. Multipliers have their signs changed,
 * there and in what follows, so that their products are added: c + (-l)*u is c - l*u to the last bit.
 */
struct lu_panel {
    double* cells; ///< from the diagonal on
    std::ptrdiff_t stride;
    std::ptrdiff_t rows;
    std::ptrdiff_t cols; ///< at most `panelWidth`
    double* scales;      ///< of its rows; a row that is swapped down takes its own along
    int* pivots;         ///< receives for each column the row that was chosen, from 1, counted in the table
    int rowsAbove;       ///< rows of the table above the panel
};

/** What became of a panel. */
struct panel_outcome {
    bool hasPivots; ///< false: a column has no element that compares, and the panel is of no use
    bool isOdd;     ///< whether the number of swaps is odd
    bool hasZero;   ///< whether a pivot was exactly 0 and was replaced
};

/** Some rows of a Cholesky decomposition, the rows above them being done. */
struct cholesky_rows {
    const double* table;
    std::ptrdiff_t tableStride;
    double* factor;
    std::ptrdiff_t factorStride;
    std::ptrdiff_t first;   ///< of the rows
    std::ptrdiff_t count;   ///< of the rows, at most `choleskyRows`
    std::ptrdiff_t columns; ///< columns to form, at most `first + count`
    double least;           ///< a pivot fails below it
    std::ptrdiff_t order;   ///< of the table
    double* byRow;          ///< the factor so far, row after row, row i from i * (i + 1) / 2 on
    double* scratch;        ///< `choleskyRows` times the order
};

/** Unit vectors for which the LU factors of a table are solved, each with its 1 a row below the one before.
 */
struct unit_sides {
    const double* factors; ///< row after row: L without its diagonal of ones, and U
    std::ptrdiff_t order;
    std::ptrdiff_t first; ///< row of the first 1
    double* solutions; ///< receives for each row the elements of all sides; those past the order are scratch
};

/** What is compiled once for each instruction set. */
struct factor_kernel {
    /** Copies a square table and finds the largest magnitude of each row, NaN passed over. */
    void (*copyAndScale)(const double* table, std::ptrdiff_t stride, std::ptrdiff_t order, double* copy,
                         double* largest);

    /** Decomposes a panel by Crout's method, swapping rows within the panel. */
    panel_outcome (*decomposePanel)(const lu_panel& panel);

    /** Solves for some columns with a lower triangle, a unit diagonal implied, of at most `panelWidth` rows.
     */
    void (*solveTriangle)(const double* triangle, std::ptrdiff_t triangleStride, std::ptrdiff_t order,
                          double* columns, std::ptrdiff_t stride, std::ptrdiff_t count);

    /**
     * Forms rows of a Cholesky factor, each sum in descending order, and stores them.
     * @return the number of columns formed: fewer than asked for when a pivot is below `least`, or is 0 with
     *         rows below it
     */
    std::ptrdiff_t (*formCholeskyRows)(const cholesky_rows& rows);

    /** Rows of a Cholesky factor that are formed side by side. */
    std::ptrdiff_t choleskyRows;

    /** Forward substitution for each side from its 1 on, then back substitution, each sum in ascending order.
     */
    void (*solveForUnits)(const unit_sides& sides);

    /** Sides that are solved side by side. */
    std::ptrdiff_t unitSides;
};

/** The kernel of the instruction set in use; see `product.h`. */
[[nodiscard]] const factor_kernel& factorKernel() noexcept;

namespace baseline
{
extern const factor_kernel factorKernel;
}

namespace avx2
{
extern const factor_kernel factorKernel;
}

namespace avx512
{
extern const factor_kernel factorKernel;
}

} // namespace korvel::kernels

#endif
