#include "random/row_choice.h"

#include "containers/cells.h"
#include "containers/conversion.h"
#include "ordering/sorted_keys.h"
#include "random/random_generators.h"
#include "random/random_table.h"

#include <algorithm>
#include <cmath>

namespace korvel
{

namespace
{

/** Whether the row at this distance from the start is taken. A step of 0 reaches no other row. */
bool onGrid(std::int64_t distance, std::int64_t step)
{
    return step == 0 ? distance == 0 : distance % step == 0;
}

std::int64_t floorToInt(double x)
{
    return truncateToInt(std::floor(x));
}

} // namespace

sampling_grid::sampling_grid(int rows, int k)
{
    const double intervals = static_cast<double>(k) - 1.0;
    step = floorToInt((static_cast<double>(rows) - 1.0) / intervals);
    span = rows - (std::int64_t{k} - 1) * step;
}

chosen_rows userDefinedRows(const matrix<double>& counts, int rows)
{
    chosen_rows chosen;
    for (int i = 0; i < rows; ++i) {
        const int copies = std::max(truncateToInt(counts[i]), 0);
        chosen.insert(chosen.end(), static_cast<std::size_t>(copies), std::int64_t{i} + 1);
    }
    return chosen;
}

chosen_rows rowsWithReplacement(int rows, int k, int* seed, short int flag, int* nextSeed)
{
    std::vector<double> draws(static_cast<std::size_t>(std::max(k, 0)));
    generateRandom01(draws.data(), k, 1, seed, flag, nextSeed);
    chosen_rows chosen;
    chosen.reserve(draws.size());
    for (const double u : draws) {
        chosen.push_back(floorToInt(rows * u) + 1);
    }
    std::sort(chosen.begin(), chosen.end());
    return chosen;
}

std::int64_t systematicStart(const sampling_grid& grid, double u)
{
    return floorToInt(u * static_cast<double>(grid.span)) + 1;
}

chosen_rows systematicRows(int rows, int k, const sampling_grid& grid, std::int64_t start,
                           matrix<double>& selected)
{
    const double notTaken = static_cast<double>(rows) + 1.0;
    chosen_rows chosen;
    for (std::int64_t row = 1; row < start && row <= rows; ++row) {
        storeChecked(selected, row - 1, notTaken);
    }
    for (std::int64_t row = start; row <= rows; ++row) {
        if (static_cast<std::int64_t>(chosen.size()) < k && onGrid(row - start, grid.step)) {
            chosen.push_back(row);
        } else {
            storeChecked(selected, row - 1, notTaken);
        }
    }
    return chosen;
}

chosen_rows stratifiedRows(int rows, int k, int* seed, short int flag, int* nextSeed)
{
    const sampling_grid grid(rows, k);
    const double span = static_cast<double>(grid.span);
    const std::int64_t firstCentre = floorToInt((span + 1.0) * 0.5);
    chosen_rows chosen;
    GetSeed(seed, &flag);
    for (std::int64_t centre = firstCentre; centre <= rows; centre += grid.step) {
        chosen.push_back(floorToInt(Random01() * span) + (centre - firstCentre) + 1);
        if (grid.step < 1) {
            break;
        }
    }
    GetSeedUpdate(nextSeed);
    return chosen;
}

chosen_rows labelledRows(const matrix<text>& labels, int rows, const matrix<double>& counts, int* seed,
                         short int flag, int* nextSeed)
{
    const sorted_texts sorted(rows, false, [&](std::int32_t i) -> const text& { return labels[i]; });
    chosen_rows chosen;
    int seedInUse = 0;
    int* groupSeed = seed;
    short int groupFlag = flag;
    std::size_t first = 0;
    for (int group = 0; first < sorted.size(); ++group) {
        std::size_t end = first + 1;
        while (end < sorted.size() && sorted.key(end) == sorted.key(first)) {
            ++end;
        }
        const int groupRows = static_cast<int>(end - first);
        const int size = truncateToInt(counts[group]);
        for (const std::int64_t r : rowsWithReplacement(groupRows, size, groupSeed, groupFlag, nextSeed)) {
            const bool inside = r >= 1 && r <= groupRows;
            chosen.push_back(
                inside ? std::int64_t{sorted.position(first + static_cast<std::size_t>(r) - 1)} + 1 : 0);
        }
        groupSeed = &seedInUse;
        groupFlag = 0;
        first = end;
    }
    return chosen;
}

void storeRowNumbers(const chosen_rows& chosen, matrix<double>& selected)
{
    for (std::size_t t = 0; t < chosen.size(); ++t) {
        storeChecked(selected, static_cast<std::int64_t>(t), static_cast<double>(chosen[t]));
    }
}

} // namespace korvel
