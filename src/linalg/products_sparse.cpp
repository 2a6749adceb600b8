#include "linalg/products_sparse.h"

#include "containers/cells.h"
#include "linalg/products_table_vector.h"
#include "linalg/vector_products.h"
#include "tables/transpose.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>
#include <vector>

namespace
{

using korvel::entriesOfRow;
using korvel::entry_range;

/** The sums of one row of a product, and the list of the columns that it has touched. */
class row_sums
{
public:
    explicit row_sums(std::size_t columns) : next_(columns, untouched), sums_(columns, 0.0) {}

    void add(int column, double term)
    {
        const auto j = static_cast<std::size_t>(column);
        if (column < 0 || j >= next_.size()) {
            return;
        }
        if (next_[j] == untouched) {
            next_[j] = head_;
            head_ = column;
        }
        sums_[j] += term;
    }

    /** Hands over column and sum of each touched column, the last one first, and starts anew. */
    template <class Emit>
    void take(Emit emit)
    {
        while (head_ != end) {
            const auto j = static_cast<std::size_t>(head_);
            emit(head_, sums_[j]);
            head_ = std::exchange(next_[j], untouched);
            sums_[j] = 0.0;
        }
    }

private:
    static constexpr int untouched = -2;
    static constexpr int end = -1;

    std::vector<int> next_;
    std::vector<double> sums_;
    int head_ = end;
};

/** Appends a row of the product to the entries of the result. */
void appendRow(const matrixSparse& A, int i, const matrixSparse& B, row_sums& sums, matrixSparse& result)
{
    const entry_range row = entriesOfRow(A, i);
    for (std::size_t a = row.first; a < row.last; ++a) {
        const entry_range other = entriesOfRow(B, A.colIndex[a]);
        for (std::size_t b = other.first; b < other.last; ++b) {
            sums.add(B.colIndex[b], A.values[a] * B.values[b]);
        }
    }
    sums.take([&](int column, double sum) {
        result.colIndex.push_back(column);
        result.values.push_back(sum);
    });
    if (result.values.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        throw std::length_error("more entries than a sparse table can have");
    }
}

/** The memory of a table's entries, without the entries. */
template <class T>
std::vector<T> memoryOf(std::vector<T>& entries)
{
    std::vector<T> memory = std::move(entries);
    memory.clear();
    return memory;
}

matrixSparse transposedOf(const matrixSparse& x, int rows, int cols)
{
    matrixSparse transposed;
    M_Transpose(x, std::max(rows, 0), std::max(cols, 0), transposed);
    return transposed;
}

} // namespace

int M_ProductAB(matrixSparse* A, int n, int p, matrixSparse* B, int q, matrixSparse* C, bool keep)
{
    if (n < 0 || q < 0) {
        return 0;
    }
    row_sums sums(static_cast<std::size_t>(std::max({n, p, q})));
    matrixSparse result;
    result.nbrows = n;
    result.nbcols = q;
    result.rowStart.assign(static_cast<std::size_t>(n) + 1, 0);
    if (keep && C != A && C != B) {
        result.colIndex = memoryOf(C->colIndex);
        result.values = memoryOf(C->values);
    }
    for (int i = 0; i < n; ++i) {
        appendRow(*A, i, *B, sums, result);
        result.rowStart[static_cast<std::size_t>(i) + 1] = static_cast<int>(result.values.size());
    }
    result.nnz = result.rowStart.back();
    C->nbrows = result.nbrows;
    C->nbcols = result.nbcols;
    C->nnz = result.nnz;
    C->rowStart = std::move(result.rowStart);
    C->colIndex = std::move(result.colIndex);
    C->values = std::move(result.values);
    return 0;
}

void M_ProductTrAB(matrixSparse* A, int n, int p, matrixSparse* B, int q, matrixSparse* C)
{
    matrixSparse transposed = transposedOf(*A, n, p);
    M_ProductAB(&transposed, p, n, B, q, C, false);
}

void M_ProductATrB(matrixSparse* A, int n, int p, matrixSparse* B, int m, matrixSparse* C)
{
    matrixSparse transposed = transposedOf(*B, m, p);
    M_ProductAB(A, n, p, &transposed, m, C, false);
}

void M_ProductTrAA(matrixSparse* A, int n, int p, matrixSparse* C)
{
    M_ProductTrAB(A, n, p, A, p, C);
}

void M_ProductATrA(matrixSparse* A, int n, int p, matrixSparse* C)
{
    M_ProductATrB(A, n, p, A, n, C);
}

void M_ProductABTrA(matrixSparse* A, int n, int p, matrixSparse* B, bool, matrixSparse* C, bool keep)
{
    matrixSparse product;
    M_ProductATrB(B, p, p, A, n, &product);
    M_ProductAB(A, n, p, &product, n, C, keep);
}

void M_ProductTrABA(matrixSparse* A, int n, int p, matrixSparse* B, bool, matrixSparse* C, bool keep)
{
    matrixSparse product;
    M_ProductTrAB(A, n, p, B, n, &product);
    M_ProductAB(&product, p, n, A, p, C, keep);
}

void M_ProductABC(matrixSparse* A, int n, int p, matrixSparse* B, int q, matrixSparse* C, int r,
                  matrixSparse* D)
{
    matrixSparse product;
    M_ProductAB(A, n, p, B, q, &product, false);
    M_ProductAB(&product, n, q, C, r, D, false);
}

void M_ProductTrABC(matrixSparse* A, int n, int p, matrixSparse* B, int q, matrixSparse* C, int r,
                    matrixSparse* D)
{
    matrixSparse product;
    M_ProductTrAB(A, n, p, B, q, &product);
    M_ProductAB(&product, p, q, C, r, D, false);
}

void M_ProductATrBC(matrixSparse* A, int n, int p, matrixSparse* B, int q, matrixSparse* C, int r,
                    matrixSparse* D)
{
    matrixSparse product;
    M_ProductATrB(A, n, p, B, q, &product);
    M_ProductAB(&product, n, q, C, r, D, false);
}

int M_ProductBV(matrixSparse* B, int n, int, matrix<double>* v, matrix<double>* y)
{
    const matrix<double>& factors = *v;
    for (int i = 0; i < n; ++i) {
        const entry_range row = entriesOfRow(*B, i);
        double sum = 0.0;
        for (std::size_t k = row.first; k < row.last; ++k) {
            sum += B->values[k] * factors[B->colIndex[k]];
        }
        korvel::storeChecked(*y, i, sum);
    }
    return 0;
}

void M_ProductTrBV(matrixSparse* B, int n, int p, matrix<double>* v, matrix<double>* y)
{
    matrix<double> dense = B->to_matrix(std::max(n, 0), std::max(p, 0));
    M_ProductTrBV(&dense, n, p, v, y);
}

void M_ProductTrABV(matrixSparse* A, int n, int p, matrixSparse* B, int q, matrix<double>* v,
                    matrix<double>* y)
{
    matrixSparse product;
    M_ProductTrAB(A, n, p, B, q, &product);
    M_ProductBV(&product, p, q, v, y);
}

double M_ProductTrVBV(matrix<double>* v, int n, matrixSparse* B)
{
    matrix<double> y(std::max(n, 0), 1, 0.0);
    M_ProductBV(B, n, n, v, &y);
    return V_ProductTrV1V2(v, n, &y);
}
