#include "linalg/lu_solutions.h"

#include "linalg/kernels/factors.h"
#include "tables/transpose.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace
{

/** Doubles on a line of the cache: registers that lie across two of them cost twice. */
struct alignas(64) cache_line {
    double cells[8];
};

double* columnOf(matrix<double>& a, std::size_t j)
{
    return a.data + static_cast<std::size_t>(a.nbrows) * j;
}

} // namespace

matrix<double> korvel::solveForUnits(matrix<double>& factors, const std::vector<std::size_t>& pivots)
{
    const std::size_t n = pivots.size();
    // The row that ends in each place after all swaps.
    std::vector<std::size_t> origin(n);
    std::iota(origin.begin(), origin.end(), std::size_t{0});
    for (std::size_t i = 0; i < n; ++i) {
        std::swap(origin[i], origin[pivots[i]]);
    }
    M_Transpose2(&factors, factors.nbrows, factors.nbcols);
    matrix<double> inverse(factors.nbrows, factors.nbcols, 0);
    const korvel::kernels::factor_kernel& kernel = korvel::kernels::factorKernel();
    const auto sides = static_cast<std::size_t>(kernel.unitSides);
    std::vector<cache_line> lines(n * sides * sizeof(double) / sizeof(cache_line));
    auto* const solutions = reinterpret_cast<double*>(lines.data());
    for (std::size_t first = 0; first < n; first += sides) {
        kernel.solveForUnits(
            {factors.data, static_cast<std::ptrdiff_t>(n), static_cast<std::ptrdiff_t>(first), solutions});
        const std::size_t count = std::min(sides, n - first);
        for (std::size_t i = 0; i < n; ++i) {
            for (std::size_t side = 0; side < count; ++side) {
                columnOf(inverse, i)[origin[first + side]] = solutions[i * sides + side];
            }
        }
    }
    return inverse;
}
