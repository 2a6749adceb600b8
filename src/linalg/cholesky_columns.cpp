#include "linalg/cholesky_columns.h"

#include "containers/views.h"
#include "linalg/kernels/factors.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace
{

using index = std::ptrdiff_t;

constexpr std::size_t line = 8; // doubles in a line of the cache

/** The first place that begins a line: registers that lie across two of them cost twice. */
double* lineStart(double* memory)
{
    constexpr std::uintptr_t bytes = line * sizeof(double);
    const std::uintptr_t over = reinterpret_cast<std::uintptr_t>(memory) % bytes;
    return memory + (bytes - over) % bytes / sizeof(double);
}

/** The decomposition of a block that lies inside its table, some rows at a time. */
int formInside(const matrix<double>& A, index n, matrix<double>& L, double least)
{
    const korvel::kernels::factor_kernel& kernel = korvel::kernels::factorKernel();
    const index block = kernel.choleskyRows * n;
    const index triangle = n * (n + 1) / 2;
    const auto space =
        std::make_unique_for_overwrite<double[]>(static_cast<std::size_t>(block + triangle) + line);
    double* const cells = lineStart(space.get());
    index columns = n;
    for (index first = 0; first < n; first += kernel.choleskyRows) {
        korvel::kernels::cholesky_rows rows{};
        rows.table = A.data;
        rows.tableStride = A.nbrows;
        rows.factor = L.data;
        rows.factorStride = L.nbrows;
        rows.first = first;
        rows.count = std::min(kernel.choleskyRows, n - first);
        rows.columns = std::min(columns, first + rows.count);
        rows.least = least;
        rows.order = n;
        rows.byRow = cells + block;
        rows.scratch = cells;
        const index formed = kernel.formCholeskyRows(rows);
        if (formed < rows.columns) {
            columns = formed;
        }
    }
    if (columns > 0) {
        L.oobValue = L.data[n - 1 + L.nbrows * (columns - 1)];
    }
    return columns == n ? 0 : -1;
}

} // namespace

int korvel::formCholesky(const matrix<double>& A, int n, matrix<double>& L, double least)
{
    const auto from = reading(A).table(n, n);
    const auto to = writing(L).table(n, n);
    if (n > 0 && from.inside() && to.inside()) {
        return formInside(A, n, L, least);
    }
    return withCells(
        [&](const auto& a, auto& l) {
            return formCholesky(
                a, n, l, [](int) {}, [least](double pivot) { return pivot < least; });
        },
        from, to);
}
