#include "missing/expected_frequencies.h"

#include "containers/views.h"

#include <algorithm>
#include <cstddef>
#include <vector>

void ReplaceMissingInContengencyByExp_ST(cST_MVect<double>& table, int rows)
{
    const auto height = static_cast<std::size_t>(std::max(rows, 0));
    const auto width =
        static_cast<std::size_t>(std::clamp(table.nbcols, 0, static_cast<int>(table.Vectors.size())));
    std::vector<double> rowSums(height);
    std::vector<double> columnSums(width);
    const auto cells = korvel::writing(table);
    for (std::size_t j = 0; j < width; ++j) {
        korvel::withCells(
            [&](auto& x) {
                for (std::size_t i = 0; i < height; ++i) {
                    const double cell = x[static_cast<int>(i)];
                    if (!(cell <= MISSING_DBL)) {
                        rowSums[i] += cell;
                        columnSums[j] += cell;
                    }
                }
            },
            cells.column(static_cast<int>(j), rows));
    }
    double total = 0.0;
    for (const double sum : rowSums) {
        if (sum != MISSING_DBL) {
            total += sum;
        }
    }
    for (std::size_t j = 0; j < width; ++j) {
        korvel::withCells(
            [&](auto& x) {
                for (std::size_t i = 0; i < height; ++i) {
                    if (x[static_cast<int>(i)] <= MISSING_DBL) {
                        x.set(static_cast<int>(i), rowSums[i] * columnSums[j] / total);
                    }
                }
            },
            cells.column(static_cast<int>(j), rows));
    }
}
