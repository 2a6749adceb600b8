#include "linalg/packed_sweep.h"

#include "containers/cells.h"
#include "containers/packed_symmetric.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace
{

using korvel::packedPlace;
using korvel::packedRow;

double cleaned(double x)
{
    return std::fabs(x) < 1e-12 ? 0.0 : x;
}

template <class Cells>
void sweep(Cells& cells, int n, int k)
{
    const double d = -1.0 / cells[packedPlace(k, k)];
    cells.set(packedPlace(k, k), d);
    for (int i = 1; i <= n; ++i) {
        if (i == k) {
            continue;
        }
        const double before = cells[packedPlace(i, k)];
        const double t = d < 0.0 ? -before : before;
        cells.set(packedPlace(i, k), std::fabs(d) * before);
        for (int j = 1; j <= i; ++j) {
            if (j != k) {
                const std::int64_t place = packedRow(i) + j;
                cells.set(place, cleaned(cells[place] + t * cells[packedPlace(j, k)]));
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
                      korvel::writeVector(*packed, packedPlace(reached, reached) + 1));
    return 0;
}
