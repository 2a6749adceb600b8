#include "linalg/packed_sweep.h"

#include "containers/cells.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace
{

/** Where the elements of row `i` start, both counted from 1: element (i, j) is at `rowStart(i) + j`. */
constexpr std::int64_t rowStart(std::int64_t i)
{
    return i * (i - 1) / 2 - 1;
}

constexpr std::int64_t placeOf(std::int64_t i, std::int64_t j)
{
    return i < j ? rowStart(j) + i : rowStart(i) + j;
}

double cleaned(double x)
{
    return std::fabs(x) < 1e-12 ? 0.0 : x;
}

template <class Cells>
void sweep(Cells& cells, int n, int k)
{
    const double d = -1.0 / cells[placeOf(k, k)];
    cells.set(placeOf(k, k), d);
    for (int i = 1; i <= n; ++i) {
        if (i == k) {
            continue;
        }
        const double before = cells[placeOf(i, k)];
        const double t = d < 0.0 ? -before : before;
        cells.set(placeOf(i, k), std::fabs(d) * before);
        for (int j = 1; j <= i; ++j) {
            if (j != k) {
                const std::int64_t place = rowStart(i) + j;
                cells.set(place, cleaned(cells[place] + t * cells[placeOf(j, k)]));
            }
        }
    }
}

} // namespace

int M_Sweep(matrix<double>* packed, int n, int k)
{
    // A pivot before the first one lies outside whatever there is.
    const std::int64_t reached = k < 1 ? std::numeric_limits<int>::max() : std::max(n, k);
    korvel::withCells([=](auto& cells) { sweep(cells, n, k); },
                      korvel::writeVector(*packed, placeOf(reached, reached) + 1));
    return 0;
}
