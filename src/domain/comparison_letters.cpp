#include "domain/comparison_letters.h"

#include "containers/cells.h"
#include "ordering/sort_table.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <utility>
#include <vector>

namespace
{

/** Columns of a table of letters. */
constexpr int mostColumns = 256;

/** The text of a letter, counted from 0: A to Z, then AA to IV. */
text letter(int number)
{
    constexpr int letters = 26;
    const auto single = [](int k) { return static_cast<char16_t>(u'A' + k); };
    return number < letters ? text(1, single(number))
                            : text{single(number / letters - 1), single(number % letters)};
}

/** Which pairs of levels differ significantly. */
class pair_table
{
public:
    pair_table(const matrix<double>& pairs, int count, int firstColumn, int secondColumn,
               const matrix<int>& significance)
    {
        for (int t = 0; t < count; ++t) {
            differs_.try_emplace(
                {pairs.getElement(t, firstColumn - 1), pairs.getElement(t, secondColumn - 1)},
                significance[t] != 0);
        }
    }

    [[nodiscard]] bool differ(double level, double other) const
    {
        const auto found = differs_.find({std::max(level, other), std::min(level, other)});
        return found != differs_.end() && found->second;
    }

private:
    std::map<std::pair<double, double>, bool> differs_;
};

/** For each level, in sorted order, the last one down the order to which nothing differs from it. */
std::vector<int> reachOf(const std::vector<double>& levels, const pair_table& pairs)
{
    const int count = static_cast<int>(levels.size());
    std::vector<int> reach;
    for (int i = 0; i < count; ++i) {
        int last = i;
        while (last + 1 < count && !pairs.differ(levels[static_cast<std::size_t>(i)],
                                                 levels[static_cast<std::size_t>(last) + 1])) {
            ++last;
        }
        reach.push_back(last);
    }
    return reach;
}

/** The sets of levels that share a letter, by their positions. */
std::vector<std::vector<int>> sharingSets(const std::vector<int>& reach)
{
    std::vector<std::vector<int>> sets;
    std::vector<int> current; // the levels that reach position i
    for (int i = 0; i < static_cast<int>(reach.size()); ++i) {
        current.push_back(i);
        const auto endsHere = [&](int level) { return reach[static_cast<std::size_t>(level)] == i; };
        if (std::any_of(current.begin(), current.end(), endsHere)) {
            sets.push_back(current);
            std::erase_if(current, endsHere);
        }
    }
    return sets;
}

/** Sorts the rows of a table by one of its columns, and the order with them. */
void sortLevels(matrix<double>& values, int column, matrix<double>& order, bool isDescending)
{
    const int rows = values.nbrows;
    matrix<double> keys(rows, 1, 0.0);
    for (int i = 0; i < rows; ++i) {
        keys.data[i] = values.getElement(i, column);
    }
    SortQ(&values, rows, values.nbcols, 1, rows, &keys, &order, 1, isDescending, false);
}

/** Lists the pairs of levels, the larger number first, in the order (2, 1), (3, 1), (3, 2), (4, 1) and so on,
 * and whether each is significant. */
void listPairs(const matrix<int>& significance, matrix<double>& pairs, matrix<int>& perPair)
{
    for (int t = 1; t <= pairs.nbrows; ++t) {
        const int r = static_cast<int>(std::sqrt(2.0 * t + 0.25) + 0.499999999999);
        const int smaller = t - r * (r - 1) / 2;
        pairs.vbset(t, 1, r + 1);
        pairs.vbset(t, 2, smaller);
        perPair.data[t - 1] = significance.vbget(r + 1, smaller);
    }
}

} // namespace

short int BuildGroupingForDiffs(matrix<double>& values, int valueColumn, matrix<double> const& pairs,
                                int pairCount, matrix<int> const& significance, matrix<text>& labels,
                                int& groupCount, matrix<double>& order, int firstPairColumn,
                                int secondPairColumn, short int& done, short int descending)
{
    const int column = std::max(valueColumn, 1) - 1;
    if (done == 0) {
        sortLevels(values, column, order, descending != 0);
        done = -1;
    }
    std::vector<int> positions;
    std::vector<double> levels;
    for (int i = 0; i < values.nbrows; ++i) {
        if (values.getElement(i, column) > MISSING_DBL) {
            positions.push_back(i);
            levels.push_back(order[i]);
        }
    }
    const pair_table significant(pairs, pairCount, firstPairColumn, secondPairColumn, significance);
    const std::vector<std::vector<int>> sets = sharingSets(reachOf(levels, significant));
    // The first column is the first level's, even where that level has no value or is not there: it has no
    // letter then.
    const bool firstHasNoLetter = positions.empty() || positions.front() > 0;
    groupCount = firstHasNoLetter ? 1 : 0;
    for (std::size_t number = 0; number < sets.size(); ++number) {
        ++groupCount;
        if (groupCount > mostColumns) {
            return 0;
        }
        for (const int level : sets[number]) {
            labels.vbset(positions[static_cast<std::size_t>(level)] + 1, groupCount,
                         letter(static_cast<int>(number)));
        }
    }
    return -1;
}

void GetCompMatrices(matrix<double>& means, int k, int column, matrix<int>& significance,
                     short int sortResult, matrix<int>& order, matrix<text>* labels, int* groupCount,
                     short int* success, short int descending)
{
    const int count = std::max(k, 0);
    const std::int64_t pairCount = std::int64_t{count} * (count - 1) / 2;
    const int rows = static_cast<int>(std::min<std::int64_t>(pairCount, std::numeric_limits<int>::max()));
    matrix<double> values(count, 1, 0.0);
    matrix<double> sorted(count, 1, 0.0);
    for (int i = 0; i < count; ++i) {
        korvel::storeChecked(order, i, i + 1);
        sorted.data[i] = i + 1;
        values.data[i] = column == 0 ? means[i] : means.getElement(i, column - 1);
    }
    matrix<double> pairs(rows, 2, 0.0);
    matrix<int> perPair(rows, 1);
    listPairs(significance, pairs, perPair);
    std::fill_n(labels->data, labels->nbElem, text());
    short int done = 0;
    *success = BuildGroupingForDiffs(values, 1, pairs, rows, perPair, *labels, *groupCount, sorted, 1, 2,
                                     done, descending);
    if (sortResult != 0) {
        SortQ(labels, count, labels->nbcols, 1, count, &sorted, nullptr, 0, false, false);
        return;
    }
    for (int i = 0; i < count; ++i) {
        korvel::storeChecked(order, i, static_cast<int>(sorted.data[i]));
        if (column == 0) {
            korvel::storeChecked(means, i, values.data[i]);
        } else {
            means.setElement(i, column - 1, values.data[i]);
        }
    }
}
