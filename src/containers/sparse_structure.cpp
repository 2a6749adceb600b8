#include "containers/sparse_matrix.h"

namespace
{

/** Describes `rows` rows from `rowOffset` on. The flags may be any type that is written by index. */
template <class Flags>
void describeRows(const matrixSparse& m, int rows, int cols, int rowOffset, Flags& rowEmpty,
                  Flags& rowDiagOnly)
{
    const auto at = [](int i) { return static_cast<std::size_t>(i); };
    for (int i = 0; i < rows; ++i) {
        const std::int64_t tableRow = std::int64_t{rowOffset} + i;
        const korvel::entry_range row = korvel::entriesOfRow(m, tableRow);
        rowEmpty[at(i)] = row.first == row.last;
        rowDiagOnly[at(i)] = row.last - row.first == 1 && m.colIndex[row.first] == tableRow;
    }
    if (rows != cols) {
        for (int i = 0; i < std::max(rows, cols); ++i) {
            rowDiagOnly[at(i)] = false;
        }
    }
}

} // namespace

void matrixSparse::calcStrucInfo(int rows, int cols, bool* colEmpty, bool* rowEmpty, bool* rowDiagOnly, int,
                                 int)
{
    for (int j = 0; j < cols; ++j) {
        colEmpty[j] = true;
    }
    for (const int j : colIndex) {
        if (j >= 0 && j < cols) {
            colEmpty[j] = false;
        }
    }
    describeRows(*this, rows, cols, 0, rowEmpty, rowDiagOnly);
}

void matrixSparse::calcStrucInfo(int rows, int cols, std::vector<bool>& colEmpty, std::vector<bool>& rowEmpty,
                                 std::vector<bool>& rowDiagOnly, int rowOffset, int colOffset)
{
    const auto flagsFor = [](int count) { return static_cast<std::size_t>(std::max(count, 0)); };
    colEmpty.assign(flagsFor(cols), true);
    rowEmpty.assign(flagsFor(rows), false);
    rowDiagOnly.assign(flagsFor(std::max(rows, cols)), false);
    for (int i = 0; i < rows; ++i) {
        const korvel::entry_range row = korvel::entriesOfRow(*this, std::int64_t{rowOffset} + i);
        for (std::size_t k = row.first; k < row.last; ++k) {
            const std::int64_t c = std::int64_t{colIndex[k]} - colOffset;
            if (c >= 0 && c < cols && c >= colOffset) {
                colEmpty[static_cast<std::size_t>(c)] = false;
            }
        }
    }
    describeRows(*this, rows, cols, rowOffset, rowEmpty, rowDiagOnly);
}
