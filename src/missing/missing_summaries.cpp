#include "missing/missing_summaries.h"

#include "containers/cell_tests.h"
#include "containers/stretches.h"
#include "containers/views.h"
#include "statistics/pairs.h"
#include "statistics/table_extremes.h"
#include "statistics/vector_extremes.h"

#include <cstdint>

using korvel::withCells;

double V_SumIfNotMissing(matrix<double>* x, int n, matrix<double>* y)
{
    if (n < 1) {
        return MISSING_DBL;
    }
    const auto presentInBoth = [](korvel::pair a, korvel::pair b) {
        return korvel::only(korvel::present(a), korvel::only(korvel::present(b), a));
    };
    return withCells([=](auto... cells) { return korvel::sumOf(0, n, presentInBoth, cells...); }, n, *x, *y);
}

void MatToVect_NoMissing(matrix<double>* x, int n, int p, matrix<double>* counts, double& emptyColumns,
                         matrix<double>* vector)
{
    std::int64_t stored = 0;
    for (int j = 0; j < p; ++j) {
        const std::int64_t before = stored;
        withCells(
            [&](auto cells, auto& out) {
                for (int i = 0; i < n; ++i) {
                    if (!korvel::isMissing(cells[i])) {
                        out.set(stored, cells[i]);
                        ++stored;
                    }
                }
            },
            korvel::reading(*x).column(j, n), korvel::writeVector(*vector, stored + n));
        const double count = (*counts)[j] + static_cast<double>(stored - before);
        korvel::storeChecked(*counts, j, count);
        emptyColumns += count == 0.0 ? 1.0 : 0.0;
    }
}

namespace korvel
{

double smallestPresent(const matrix<double>& x, int n)
{
    return V_Min2(x, n);
}

double smallestPresent(const cST_MVect<double>& x, int rows, int cols)
{
    return smallestOf(x, rows, cols);
}

} // namespace korvel
