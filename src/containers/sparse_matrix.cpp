#include "containers/sparse_matrix.h"

#include "containers/conversion.h"

#include <cmath>

namespace
{

/** Makes room for one more element, growing in the same steps as a vector does by itself. */
template <class T>
void makeRoomForOne(std::vector<T>& v)
{
    if (v.size() == v.capacity()) {
        v.reserve(std::max<std::size_t>(4, 2 * v.capacity()));
    }
}

template <class T>
void append(std::vector<T>& target, const std::vector<T>& source)
{
    target.insert(target.end(), source.begin(), source.end());
}

/** Fills `m` as the constructor describes, or leaves it unchanged when memory is short. */
void fill(matrixSparse& m, int rows, int cols, double value, bool reserve)
{
    const std::uint64_t all = korvel::elementCount(rows, cols);
    std::vector<int> rowStart(static_cast<std::size_t>(std::int64_t{rows} + 1));
    std::vector<int> colIndex;
    std::vector<double> values;
    const bool full = !(std::fabs(value) <= SPARSE_ZERO);
    if (full) {
        colIndex.assign(all, korvel::truncateToInt(value));
        values.assign(all, value);
        for (std::size_t k = 1; k < rowStart.size(); ++k) {
            rowStart[k] = static_cast<int>(korvel::elementCount(static_cast<int>(k), cols));
        }
    } else if (reserve) {
        colIndex.reserve(all);
        values.reserve(all);
    }
    m.nbrows = rows;
    m.nbcols = cols;
    m.nnz = full || reserve ? static_cast<std::int32_t>(all) : 0;
    m.colIndex.swap(colIndex);
    m.rowStart.swap(rowStart);
    m.values.swap(values);
}

} // namespace

matrixSparse::matrixSparse() = default;
matrixSparse::matrixSparse(const matrixSparse& src) = default;
matrixSparse& matrixSparse::operator=(const matrixSparse& src) = default;
matrixSparse::~matrixSparse() = default;

matrixSparse::matrixSparse(int rows, int cols, double value, bool reserve)
{
    fill(*this, rows, cols, value, reserve);
}

matrixSparse::matrixSparse(matrix<double>* m)
{
    outputSparse(m);
}

double matrixSparse::getElement(int i, int j) const
{
    if (nbrows < i || nbcols < j) {
        return -1.0;
    }
    const korvel::entry_range row = korvel::entriesOfRow(*this, i);
    const std::size_t found = korvel::findEntry(*this, row, j);
    return found < row.last ? values[found] : 0.0;
}

double matrixSparse::vbget(int i, int j)
{
    return getElement(i - 1, j - 1);
}

void matrixSparse::setElement(int i, int j, double v)
{
    // The row past the end passes the accessors' test, but has no place to store an entry.
    if (!korvel::hasRow(*this, i) || nbcols < j) {
        return;
    }
    const korvel::entry_range row = korvel::entriesOfRow(*this, i);
    const std::size_t found = korvel::findEntry(*this, row, j);
    const bool stored = found < row.last;
    const auto shiftLaterRows = [&](int step) {
        nnz += step;
        for (std::size_t k = static_cast<std::size_t>(i) + 1; k < rowStart.size(); ++k) {
            rowStart[k] += step;
        }
    };
    const auto at = [](auto& array, std::size_t k) { return array.begin() + static_cast<std::ptrdiff_t>(k); };

    if (!(std::fabs(v) < SPARSE_ZERO)) {
        if (stored && !(std::fabs(values[found]) < SPARSE_ZERO)) {
            values[found] = v;
            return;
        }
        makeRoomForOne(colIndex);
        makeRoomForOne(values);
        colIndex.insert(at(colIndex, row.first), j);
        values.insert(at(values, row.first), v);
        shiftLaterRows(1);
    } else if (stored) {
        colIndex.erase(at(colIndex, found));
        values.erase(at(values, found));
        shiftLaterRows(-1);
    }
}

void matrixSparse::vbset(int i, int j, double v)
{
    setElement(i - 1, j - 1, v);
}

double matrixSparse::getElement(int)
{
    return 0.0;
}

double matrixSparse::setElement(int, double)
{
    return 0.0;
}

double matrixSparse::vbget(int)
{
    return 0.0;
}

double matrixSparse::vbset(int, double)
{
    return 0.0;
}

void matrixSparse::ReInit()
{
    nbrows = 0;
    nbcols = 0;
    nnz = 0;
    std::vector<int>().swap(colIndex);
    std::vector<int>().swap(rowStart);
    std::vector<double>().swap(values);
}

void matrixSparse::Redim(int rows, int cols, double value)
{
    ReInit();
    fill(*this, rows, cols, value, false);
}

void matrixSparse::copyMatTo(matrixSparse* dst)
{
    dst->ReInit();
    append(dst->colIndex, colIndex);
    append(dst->rowStart, rowStart);
    append(dst->values, values);
    dst->nbrows = nbrows;
    dst->nbcols = nbcols;
    dst->nnz = nnz;
}

matrix<double> matrixSparse::to_matrix()
{
    return to_matrix(nbrows, nbcols);
}

matrix<double> matrixSparse::to_matrix(int rows, int cols)
{
    matrix<double> dense(rows, cols, 0);
    for (std::int64_t i = 0; i < rows; ++i) {
        const korvel::entry_range row = korvel::entriesOfRow(*this, i);
        for (std::size_t k = row.first; k < row.last; ++k) {
            // A column outside leads past the block. A negative one leads before it, which as an unsigned
            // number is far past it.
            const auto position = static_cast<std::uint64_t>(std::int64_t{colIndex[k]} * rows + i);
            if (position < dense.nbElem) {
                dense.data[position] = values[k];
            }
        }
    }
    return dense;
}
