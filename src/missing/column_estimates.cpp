#include "missing/column_estimates.h"

#include "containers/views.h"
#include "missing/column_modes.h"
#include "statistics/column_means.h"
#include "statistics/vector_means.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace
{

using korvel::withCells;
using korvel::writing;

/** Fills the missing numbers of flagged rows, row after row, by the mean of their column. */
template <class View>
void fillFlaggedRows(const View& table, int rows, int cols, const short int* rowFlags,
                     const matrix<double>& means)
{
    withCells(
        [&](auto& x) {
            for (int i = 0; rowFlags != nullptr && i < rows; ++i) {
                for (int j = 0; rowFlags[i] != 0 && j < cols; ++j) {
                    if (x.get(i, j) <= MISSING_DBL) {
                        x.set(i, j, means[j]);
                    }
                }
            }
        },
        table.table(rows, cols));
}

double meanOfVector(matrix<double>& x, int n, matrix<double>* weights)
{
    const auto length = static_cast<std::size_t>(std::max(n, 0));
    std::vector<short int> noFlags(length);
    if (weights != nullptr) {
        return V_Mean(&x, n, noFlags.data(), weights);
    }
    matrix<double> ones(static_cast<int>(length), 1, 1.0);
    return V_Mean(&x, n, noFlags.data(), &ones);
}

void fillFlaggedElements(matrix<double>& x, int n, const short int* rowFlags, double mean)
{
    withCells(
        [&](auto& cells) {
            for (int i = 0; rowFlags != nullptr && i < n; ++i) {
                if (rowFlags[i] != 0 && cells[i] <= MISSING_DBL) {
                    cells.set(i, mean);
                }
            }
        },
        korvel::writeVector(x, n));
}

} // namespace

void EstimateRowsWithMissingMean(matrix<double>* statisticsTable, int n, matrix<double>*& table, int rows,
                                 int p, short int* rowFlags, matrix<double>* weights)
{
    if (p < 1) {
        fillFlaggedElements(*table, rows, rowFlags, meanOfVector(*statisticsTable, n, weights));
        return;
    }
    matrix<double> means;
    matrix<double>* filled = &means;
    M_Mean(statisticsTable, n, p, filled, weights);
    fillFlaggedRows(writing(*table), rows, p, rowFlags, means);
}

void EstimateRowsWithMissingMeanSPV(matrix<double>** table, int n, int p, short int* rowFlags,
                                    matrix<double>* weights)
{
    matrix<double> means;
    matrix<double>* filled = &means;
    M_MeanSPV(table, n, std::max(p, 0), filled, weights);
    fillFlaggedRows(writing(table), n, p, rowFlags, means);
}

void EstimateRowsWithMissingMode(matrix<text>* statisticsTable, int n, matrix<text>*& table, int rows, int p,
                                 matrix<double>* weights)
{
    const std::vector<text> modes = korvel::modesOfColumns(*statisticsTable, n, p, weights);
    for (int j = 0; j < p; ++j) {
        const text& mode = modes[static_cast<std::size_t>(j)];
        for (int i = 0; i < rows; ++i) {
            if (table->getElement(i, j).empty()) {
                table->setElement(i, j, mode);
            }
        }
    }
}
