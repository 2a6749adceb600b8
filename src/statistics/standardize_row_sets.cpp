#include "statistics/standardize_row_sets.h"

#include "statistics/centering.h"
#include "statistics/column_moments.h"
#include "statistics/kept_cells.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace
{

/** The rows with a group code from 1 to `nGroups`, group after group, ascending in each. */
std::vector<int> rowsByGroup(const matrix<int>& groups, int rows, int nGroups)
{
    std::vector<int> members;
    for (int i = 0; i < rows; ++i) {
        if (1 <= groups[i] && groups[i] <= nGroups) {
            members.push_back(i);
        }
    }
    std::stable_sort(members.begin(), members.end(), [&](int a, int b) { return groups[a] < groups[b]; });
    return members;
}

/** Calls `move(cell of the group, cell of the table)` for the rows of a group in each column. */
template <class Move>
void forEachCell(std::span<const int> members, int cols, Move move)
{
    for (int j = 0; j < cols; ++j) {
        for (std::size_t k = 0; k < members.size(); ++k) {
            move(static_cast<int>(k), members[k], j);
        }
    }
}

} // namespace

void M_StandardizeMatrix(matrix<double>*& x, int rows, int cols, matrix<double>*& y, int yRows,
                         matrix<double>*& z, int zRows)
{
    const auto changeColumn = [&](int j, const korvel::column_moments& found) {
        const double sd = found.deviation();
        if (sd > 0.0) {
            const auto cell = [mean = found.mean, sd](double value) { return (value - mean) / sd; };
            korvel::changeAlike(j, cell, {{x, rows}, {y, yRows}, {z, zRows}});
        }
    };
    korvel::forEachColumnMoments(korvel::reading(*x), {rows, nullptr, nullptr}, cols, {-1, -1}, changeColumn);
}

void M_StandardizeByGroup(matrix<double>* x, int rows, int cols, matrix<int>* groups, int nGroups,
                          short int bStandardize, short int bUnbiased)
{
    const std::vector<int> members = rowsByGroup(*groups, rows, nGroups);
    for (auto first = members.begin(); first != members.end();) {
        const auto last =
            std::find_if(first, members.end(), [&](int i) { return (*groups)[i] != (*groups)[*first]; });
        const std::span group(first, last);
        const int count = static_cast<int>(group.size());
        matrix<double> gathered(count, cols, 0.0);
        matrix<double>* work = &gathered;
        forEachCell(group, cols, [&](int k, int i, int j) { work->setElement(k, j, x->getElement(i, j)); });
        if (bStandardize == -1) {
            M_Standardize2(work, count, cols, bUnbiased);
        } else {
            M_Center2(work, count, cols);
        }
        forEachCell(group, cols, [&](int k, int i, int j) { x->setElement(i, j, work->getElement(k, j)); });
        first = last;
    }
}
