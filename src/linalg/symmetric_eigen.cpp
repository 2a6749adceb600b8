#include "linalg/symmetric_eigen.h"

#include "containers/cell_tests.h"
#include "containers/map_cells.h"
#include "containers/stretches.h"
#include "containers/views.h"
#include "linalg/clear_result.h"
#include "linalg/eigen_decomposition.h"
#include "linalg/kernels/symmetric_eigen.h"
#include "linalg/product_forms.h"
#include "linalg/tridiagonal_ql.h"
#include "ordering/sort_table.h"
#include "ordering/sorted_keys.h"
#include "tables/block_copy.h"
#include "tables/blocks.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <numeric>
#include <utility>
#include <vector>

namespace
{

using korvel::reading;
using korvel::withCells;
using korvel::writing;
using korvel::kernels::eigen_problem;

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

/** Replaces the cells of a symmetric table by its eigenvectors, cell by cell. */
template <class View>
int decomposePlainly(const View& vectors, matrix<double>& values, int n, short int sortFlag, int tooMany)
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

/** The order in which the vectors are wanted; sorts the values when asked to. */
std::vector<int> orderOfVectors(double* values, int n, short int sortFlag)
{
    std::vector<int> order(static_cast<std::size_t>(n));
    if (sortFlag != -1) {
        std::iota(order.begin(), order.end(), 0);
        return order;
    }
    const korvel::sorted_numbers<double> sorted(n, true, [values](std::int32_t k) { return values[k]; });
    std::vector<double> keys(order.size());
    for (std::size_t k = 0; k < order.size(); ++k) {
        order[k] = sorted.position(k);
        keys[k] = sorted.key(k);
    }
    std::copy(keys.begin(), keys.end(), values);
    return order;
}

/** The same on raw memory. */
int decomposeInKernel(const eigen_problem& problem, short int sortFlag)
{
    const auto& kernel = korvel::kernels::symmetricEigenKernel();
    const auto scratch = std::make_unique_for_overwrite<double[]>(kernel.scratchSize(problem.n));
    if (!kernel.decompose(problem, scratch.get())) {
        return failure;
    }
    const auto order = orderOfVectors(problem.values, static_cast<int>(problem.n), sortFlag);
    kernel.arrange(problem, order.data(), scratch.get());
    return success;
}

/** The block of a dense table that has no cell but those of n columns of n; null for any other table. */
double* blockOf(matrix<double>& table, int n)
{
    return table.nbrows == n ? table.data : nullptr;
}
double* blockOf(matrix3D<matrix<double>>&, int)
{
    return nullptr;
}

/**
 * The eigenvectors of one table into another, or in place. In the kernel when all cells lie inside; otherwise
 * through the checked access, which is the loop's own.
 */
template <class From, class To>
int decompose(const From& from, To& vectors, matrix<double>& values, int n, short int sortFlag, int tooMany)
{
    if (n < 1) {
        return success;
    }
    const auto to = writing(vectors);
    if (!reading(from).table(n, n).inside() || !to.table(n, n).inside() || !korvel::holds(values, n)) {
        if (static_cast<const void*>(&from) != &vectors) {
            korvel::copyBlock(reading(from), {0, 0}, to, {0, 0}, n, n);
        }
        return decomposePlainly(to, values, n, sortFlag, tooMany);
    }
    const korvel::column_places<const double> source(from, n, n);
    eigen_problem problem{n, source.get(), blockOf(vectors, n), values.data, tooMany};
    if (problem.vectors != nullptr) {
        return decomposeInKernel(problem, sortFlag);
    }
    const auto size = static_cast<std::size_t>(n);
    const auto block = std::make_unique_for_overwrite<double[]>(size * size);
    problem.vectors = block.get();
    const int status = decomposeInKernel(problem, sortFlag);
    const korvel::column_places<double> target(vectors, n, n);
    for (int j = 0; status == success && j < n; ++j) {
        std::copy_n(block.get() + size * static_cast<std::size_t>(j), size, target.get()(j));
    }
    return status;
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

int korvel::eigenDecomposition(const matrix<double>& A, matrix<double>& values, matrix<double>& vectors,
                               int n, short int sortFlag)
{
    if (!allCells(n, n, isPresent, reading(A))) {
        return failure;
    }
    values.Redim(n, 1, 0.0);
    vectors.Redim(n, n, 0.0);
    return decompose(A, vectors, values, n, sortFlag, sweepsTooMany);
}

int M_Eigen(matrix<double> const& A, matrix<double>& values, matrix<double>& vectors, int n,
            short int sortFlag)
{
    return withoutExceptions([&] { return korvel::eigenDecomposition(A, values, vectors, n, sortFlag); });
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
        const int status = decomposePlainly(view, *values, n, sortFlag, korvel::sweepsTooMany);
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
    return decompose(std::as_const(*A), *vectors, *values, n, sortFlag, korvel::sweepsTooMany);
}

int M_EigenDestroySPV(matrix3D<matrix<double>>* A, matrix<double>*& values, int n, short int sortFlag)
{
    if (!korvel::allCells(n, n, isPresent, reading(*A))) {
        return failure;
    }
    values->Redim(n, 1, 0.0);
    return decompose(std::as_const(*A), *A, *values, n, sortFlag, korvel::sweepsTooMany);
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
    return decompose(std::as_const(*vectors), *vectors, *values, n, sortFlag,
                     korvel::sweepsTooManyOfTriangle);
}
