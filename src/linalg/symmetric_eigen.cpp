#include "linalg/symmetric_eigen.h"

#include "containers/cell_tests.h"
#include "containers/map_cells.h"
#include "containers/stretches.h"
#include "containers/views.h"
#include "linalg/clear_result.h"
#include "linalg/tridiagonal_ql.h"
#include "ordering/sort_table.h"
#include "tables/block_copy.h"
#include "tables/blocks.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace
{

using korvel::reading;
using korvel::withCells;
using korvel::writing;

constexpr int success = 0;
constexpr int failure = -1;

constexpr auto isPresent = [](auto x) { return x != MISSING_DBL; };

/** Sorts the values, and the vectors as rows of a table with them. */
template <class View>
void sortDescending(const View& vectors, matrix<double>& values, int n)
{
    matrix<double> rows(n, n, 0.0);
    withCells(
        [n, &rows](const auto& cells) {
            for (int j = 0; j < n; ++j) {
                for (int i = 0; i < n; ++i) {
                    rows.data[j + std::ptrdiff_t{n} * i] = cells.get(i, j);
                }
            }
        },
        vectors.table(n, n));
    SortQ(&rows, n, n, 1, n, &values, nullptr, 0, true, true);
    withCells(
        [n, &rows](auto& cells) {
            for (int j = 0; j < n; ++j) {
                for (int i = 0; i < n; ++i) {
                    cells.set(i, j, rows.data[j + std::ptrdiff_t{n} * i]);
                }
            }
        },
        vectors.table(n, n));
}

/** Replaces the cells of a symmetric table by its eigenvectors. */
template <class View>
int decompose(const View& vectors, matrix<double>& values, int n, short int sortFlag, int tooMany)
{
    std::vector<double> e(static_cast<std::size_t>(std::max(n, 0)));
    const bool converged =
        withCells([&](auto& a, auto& d) { return korvel::decomposeSymmetric(a, d, e.data(), n, tooMany); },
                  vectors.table(n, n), korvel::writeVector(values, n));
    if (!converged) {
        return failure;
    }
    if (sortFlag == -1 && n > 0) {
        sortDescending(vectors, values, n);
    }
    return success;
}

/** Runs `work`, and makes a failure of whatever it throws. */
template <class Work>
int withoutExceptions(Work work)
{
    try {
        return work();
    } catch (...) {
        return failure;
    }
}

/** The dense cells of a sparse table, stored under its rule for zeros. */
class sparse_rule_view
{
public:
    explicit sparse_rule_view(matrix<double>& cells) : cells_(&cells) {}

    [[nodiscard]] auto table(int, int) const
    {
        return korvel::source(access{cells_}, true, [cells = cells_] { return access{cells}; });
    }

private:
    struct access {
        matrix<double>* cells;

        [[nodiscard]] double get(int i, int j) const { return cells->data[place(i, j)]; }
        void set(int i, int j, double value) const
        {
            cells->data[place(i, j)] = std::fabs(value) < SPARSE_ZERO ? 0.0 : value;
        }
        [[nodiscard]] std::ptrdiff_t place(int i, int j) const
        {
            return i + static_cast<std::ptrdiff_t>(cells->nbrows) * j;
        }
    };

    matrix<double>* cells_;
};

/** Stores the cells of a dense table that are not 0 in an empty sparse one, row by row. */
void storeEntries(const matrix<double>& cells, matrixSparse& to)
{
    for (int i = 0; i < cells.nbrows; ++i) {
        for (int j = 0; j < cells.nbcols; ++j) {
            if (const double value = cells.getElement(i, j); value != 0.0) {
                to.colIndex.push_back(j);
                to.values.push_back(value);
            }
        }
        to.nnz = static_cast<int>(to.values.size());
        to.rowStart[static_cast<std::size_t>(i) + 1] = to.nnz;
    }
}

} // namespace

int M_Eigen(matrix<double> const& A, matrix<double>& values, matrix<double>& vectors, int n,
            short int sortFlag)
{
    if (!korvel::allCells(n, n, isPresent, reading(A))) {
        return failure;
    }
    return withoutExceptions([&] {
        values.Redim(n, 1, 0.0);
        vectors.Redim(n, n, 0.0);
        korvel::copyBlock(reading(A), {0, 0}, writing(vectors), {0, 0}, n, n);
        return decompose(writing(vectors), values, n, sortFlag, korvel::sweepsTooMany);
    });
}

int M_Eigen(matrix<double>* A, matrix<double>* values, matrix<double>* vectors, int n, short int sortFlag)
{
    return M_Eigen(std::as_const(*A), *values, *vectors, n, sortFlag);
}

int M_Eigen(matrixSparse* A, matrix<double>* values, matrixSparse* vectors, int n, short int sortFlag)
{
    return withoutExceptions([&] {
        matrix<double> cells(n, n, 0.0);
        const auto view = sparse_rule_view(cells);
        const auto dense = view.table(n, n);
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) {
                const double cell = A->getElement(i, j);
                if (!isPresent(cell)) {
                    return failure;
                }
                dense.set(i, j, cell);
            }
        }
        values->Redim(n, 1, 0.0);
        vectors->Redim(n, n, 0.0);
        const int status = decompose(view, *values, n, sortFlag, korvel::sweepsTooMany);
        storeEntries(cells, *vectors);
        return status;
    });
}

int M_EigenSPV(matrix3D<matrix<double>>* A, matrix<double>*& values, matrix3D<matrix<double>>* vectors, int n,
               short int sortFlag)
{
    if (!korvel::allCells(n, n, isPresent, reading(*A))) {
        return failure;
    }
    values->Redim(n, 1, 0.0);
    korvel::clearResult(*vectors, n, n);
    korvel::copyBlock(reading(*A), {0, 0}, writing(*vectors), {0, 0}, n, n);
    return decompose(writing(*vectors), *values, n, sortFlag, korvel::sweepsTooMany);
}

int M_EigenDestroySPV(matrix3D<matrix<double>>* A, matrix<double>*& values, int n, short int sortFlag)
{
    if (!korvel::allCells(n, n, isPresent, reading(*A))) {
        return failure;
    }
    values->Redim(n, 1, 0.0);
    return decompose(writing(*A), *values, n, sortFlag, korvel::sweepsTooMany);
}

int M_EigenSPV_T(matrix3D<matrix<double>>* A, matrix<double>* values, matrix3D<matrix<double>>* vectors,
                 int n, short int sortFlag)
{
    const auto triangle = reading(*A);
    for (int j = 0; j < n; ++j) {
        const auto noneMissing = [&](const auto& cells) { return korvel::allOf(n - j, isPresent, cells); };
        if (!withCells(noneMissing, triangle.column(j, n - j))) {
            return failure;
        }
    }
    values->Redim(n, 1, 0.0);
    M_CopyBlockSPV_T(A, 1, n, 1, n, vectors);
    return decompose(writing(*vectors), *values, n, sortFlag, korvel::sweepsTooManyOfTriangle);
}
