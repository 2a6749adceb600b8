/**
 * @file
 * The sparse form of a `double` table: compressed rows in which a value is kept only when it is not a zero.
 */
#ifndef KORVEL_CONTAINERS_SPARSE_MATRIX_H
#define KORVEL_CONTAINERS_SPARSE_MATRIX_H

#include "containers/matrix.h"
#include "platform/export.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

/**
 * The magnitude below which a value counts as zero. Three tests use it, and they differ at the number itself
 * and at a NaN. `setElement` and `vbset` drop `|v| < SPARSE_ZERO`. A load keeps `|x| > SPARSE_ZERO`. A filled
 * table has no entries when `|value| <= SPARSE_ZERO`. So a load drops a NaN, and the others store it.
 */
inline constexpr double SPARSE_ZERO = 1e-18;

template <class T>
class cST_MVect;

/**
 * A table of `double` in compressed rows. It always owns its storage and has no virtual operations.
 *
 * The entries of row i, 0-based, stand at the positions from `rowStart[i]` to `rowStart[i + 1] - 1` of
 * `colIndex` and `values`, in no particular column order: every lookup scans the row, and a new entry goes in
 * at the front of its row. Where a column occurs twice in a row, the first occurrence is the one that is
 * found. A stored value may be a zero when a routine has put it there itself.
 *
 * The accessors test only `nbrows < i` and `nbcols < j`, so that an index equal to the count passes. The row
 * past the end and a negative row have no entries: they read as 0.0, and a write to them does nothing. A
 * column past the end or a negative one is stored and read like any other, and left out wherever the table is
 * laid out densely.
 *
 * One thread at a time may write an object.
 */
class KORVEL_TYPE matrixSparse
{
public:
    std::int32_t nbrows = 0; ///< Rows of the table.
    std::int32_t nbcols = 0; ///< Columns of the table.
    /** Number of stored entries; a table made with `reserve` starts from the number it has room for. */
    std::int32_t nnz = 0;
    std::vector<int> colIndex;  ///< Column, 0-based, of each stored entry.
    std::vector<int> rowStart;  ///< `nbrows + 1` positions in `colIndex` and `values`; the first is 0.
    std::vector<double> values; ///< Value of each stored entry, in step with `colIndex`.

    /** No rows, no columns, no entries. */
    KORVEL_API matrixSparse();
    KORVEL_API matrixSparse(const matrixSparse& src);            ///< A copy of its own.
    KORVEL_API matrixSparse& operator=(const matrixSparse& src); ///< Becomes a copy.

    /**
     * A table filled with one value.
     *
     * @param rows    number of rows
     * @param cols    number of columns
     * @param value   with `|value| <= SPARSE_ZERO` the table has no entries. Otherwise it is full, but the
     *                column of every entry is `value` truncated to an integer (the smallest integer when it
     *                has none) and not its own: such a table reads `value` in that column and 0.0 elsewhere
     *                until the caller rewrites `colIndex`.
     * @param reserve for a table without entries: make room for `rows * cols` of them, and let `nnz` start
     *                from that number
     * @throws std::bad_alloc or std::length_error when the table cannot be had, also for counts below -1
     */
    KORVEL_API matrixSparse(int rows, int cols, double value, bool reserve);

    /** `outputSparse(m)` on an empty table. */
    KORVEL_API explicit matrixSparse(matrix<double>* m);

    KORVEL_API ~matrixSparse(); ///< Frees what the table holds.

    /**
     * The element in row `i` and column `j`, both 0-based.
     * @return -1.0 when `nbrows < i` or `nbcols < j`; 0.0 when no entry is stored
     */
    KORVEL_API double getElement(int i, int j) const;

    /** `getElement(i - 1, j - 1)`. */
    KORVEL_API double vbget(int i, int j);

    /**
     * Stores `v` in row `i` and column `j`, both 0-based; nothing happens when `nbrows < i` or `nbcols < j`.
     *
     * With `|v| < SPARSE_ZERO` a stored entry is taken out. Otherwise an element whose magnitude is not below
     * `SPARSE_ZERO` is overwritten, and any other gets a new entry at the front of its row. `nnz` follows.
     * @throws std::bad_alloc when memory is short; the table is then as it was
     */
    KORVEL_API void setElement(int i, int j, double v);

    /** `setElement(i - 1, j - 1, v)`. */
    KORVEL_API void vbset(int i, int j, double v);

    /** Linear access does not exist for a sparse table: these four do nothing and return 0.0. */
    KORVEL_API double getElement(int k);
    KORVEL_API double setElement(int k, double v);
    KORVEL_API double vbget(int k);
    KORVEL_API double vbset(int k, double v);

    /**
     * Replaces the contents of this table by those of the dense table `m`, in spite of its name.
     *
     * Every cell with `|x| > SPARSE_ZERO` is stored, in ascending column order within its row. One oddity is
     * kept: the start of row 1 is set only by an entry of row 1 or of a later row. When row 0 is the only one
     * with entries, in a table of two rows or more, they therefore read as row 1's.
     *
     * @param m the table; not null. Its counts become this table's, also below 0, and then there are no
     * entries
     * @throws std::bad_alloc when memory is short, std::length_error when there are more entries than a
     * 32-bit position can tell; this table is then as it was
     */
    KORVEL_API void outputSparse(matrix<double>* m);

    /**
     * The same from a table of labelled columns, of `nbrowsmax` rows and `nbcols` columns.
     *
     * @param t the table; not null. A cell past the end of its column reads that column's `oobValue`, at
     *          first -1.0, and is stored as such; columns that `t` counts but does not have are zeros
     * @throws std::bad_alloc, std::length_error as above
     */
    KORVEL_API void outputSparse(cST_MVect<double>* t);

    /**
     * The structure of the whole table.
     *
     * @param rows        number of rows to describe; rows that the table does not have are empty
     * @param cols        number of columns to describe
     * @param colEmpty    receives `cols` flags: true when no stored entry has that column. Entries in other
     *                    columns are passed over
     * @param rowEmpty    receives `rows` flags: true when the row has no entries
     * @param rowDiagOnly receives, when `rows` equals `cols`, `rows` flags: true when the row has exactly one
     *                    entry and that one is on the diagonal. When they differ the larger of the two counts
     *                    of flags is set to false, so there must be room for that many
     *
     * The last two arguments are not used.
     */
    KORVEL_API void calcStrucInfo(int rows, int cols, bool* colEmpty, bool* rowEmpty, bool* rowDiagOnly, int,
                                  int);

    /**
     * The structure of the block of `rows` by `cols` that starts at row `rowOffset` and column `colOffset`.
     *
     * @param rows        number of rows of the block; rows that the table does not have are empty
     * @param cols        number of columns of the block
     * @param colEmpty    receives `cols` flags, all true except those that an entry clears. An entry in
     *                    column j clears flag c = j - `colOffset` when `colOffset` <= c < `cols`. The shifted
     *                    column is compared with the unshifted offset, so the first `colOffset` columns of a
     *                    shifted block always count as empty
     * @param rowEmpty    receives `rows` flags: true when the row has no entries in any column of the table
     * @param rowDiagOnly receives, when `rows` equals `cols`, `rows` flags: true when the row has exactly one
     *                    entry and its column is the row's own number in the table. When they differ it
     *                    receives false for the larger of the two counts
     * @param rowOffset   first row of the block, 0-based
     * @param colOffset   first column of the block, 0-based
     * A count below 0 stands for none.
     * @throws std::bad_alloc when memory is short
     */
    KORVEL_API void calcStrucInfo(int rows, int cols, std::vector<bool>& colEmpty,
                                  std::vector<bool>& rowEmpty, std::vector<bool>& rowDiagOnly, int rowOffset,
                                  int colOffset);

    /** No rows, no columns, no entries, and the storage released. */
    KORVEL_API void ReInit();

    /**
     * Makes this the filled table that the constructor with `reserve` false makes. No old entry survives.
     * @throws std::bad_alloc or std::length_error when the table cannot be had; it is then empty
     */
    KORVEL_API void Redim(int rows, int cols, double value);

    /** Makes `dst` a copy of this table. A table copied to itself becomes empty. */
    KORVEL_API void copyMatTo(matrixSparse* dst);

    /**
     * The inverse of the first `nbrows` columns of this table, through a dense copy: Crout's LU decomposition
     * with implicit row scaling and partial pivoting, then one solution per unit vector (Golub and Van Loan,
     * Matrix Computations, chapter 3). Of equal pivot candidates the last is taken. Every sum is a running
     * subtraction in ascending index order.
     *
     * @param dst      receives the inverse, element by element in column order under the rule of
     * `setElement`, on top of what it has. The caller gives it its size: what does not fit is left out. May
     *                 be this table. Untouched on failure
     * @param singular set to -1 on failure, otherwise left alone
     * @param tol      a pivot must be above 1e-8 in magnitude when this is positive, and otherwise above
     *                 2.220446049250313e-16
     * @return 0, or -1 when a row has no entry but zeros or a pivot is not above the threshold (a NaN is
     * not). A table without rows has nothing to invert: 0.
     * @throws std::bad_alloc when memory is short, or the dense copy would have more than 2147483647 elements
     */
    KORVEL_API int inverse1(matrixSparse* dst, short int& singular, double tol);

    /** `to_matrix(nbrows, nbcols)`. */
    KORVEL_API matrix<double> to_matrix();

    /**
     * A dense table of `rows` by `cols` with the stored entries of the first `rows` rows, and 0.0 elsewhere.
     * Where a column is stored twice in a row, the last stays. An entry whose column lies outside is left
     * out.
     * @throws std::bad_alloc when memory is short
     */
    KORVEL_API matrix<double> to_matrix(int rows, int cols);
};

namespace korvel
{

/** Positions in `colIndex` and `values`, from `first` up to, but not including, `last`. */
struct entry_range {
    std::size_t first = 0;
    std::size_t last = 0;
};

/** Whether row `i`, 0-based, is one that can hold entries. */
[[nodiscard]] inline bool hasRow(const matrixSparse& m, std::int64_t i)
{
    return i >= 0 && i < m.nbrows && static_cast<std::size_t>(i) + 1 < m.rowStart.size();
}

/**
 * Where the entries of row `i`, 0-based, stand. A row that the table does not have has none, and no range
 * reaches past the arrays, whatever has been written into `rowStart`.
 */
[[nodiscard]] inline entry_range entriesOfRow(const matrixSparse& m, std::int64_t i)
{
    if (!hasRow(m, i)) {
        return {};
    }
    const auto row = static_cast<std::size_t>(i);
    const std::size_t stored = std::min(m.colIndex.size(), m.values.size());
    const auto position = [&](std::size_t k) { return static_cast<std::size_t>(std::max(m.rowStart[k], 0)); };
    const std::size_t last = std::min(position(row + 1), stored);
    return {std::min(position(row), last), last};
}

/** The position of the first entry of `row` in column `j`, or `row.last` when there is none. */
[[nodiscard]] inline std::size_t findEntry(const matrixSparse& m, entry_range row, int j)
{
    std::size_t k = row.first;
    while (k < row.last && m.colIndex[k] != j) {
        ++k;
    }
    return k;
}

} // namespace korvel

#endif
