#include "linalg/descending_walk.h"

#include <cstddef>

namespace korvel::bench
{

double walkDescending(const double* cells, int n)
{
    constexpr int rows = 24;
    double sums[rows] = {};
    for (int first = 0; first < n; first += rows) {
        const int columns = first + rows < n ? first + rows : n;
        for (int i = 0; i < columns; ++i) {
            const double* column = cells + static_cast<std::ptrdiff_t>(columns - i) * rows;
            for (int k = 0; k < i; ++k, column += rows) {
#pragma GCC unroll 24
                for (int r = 0; r < rows; ++r) {
                    sums[r] += column[r];
                }
            }
        }
    }
    double total = 0.0;
    for (const double sum : sums) {
        total += sum;
    }
    return total;
}

} // namespace korvel::bench
