#include "qualitative/category_info.h"

#include "containers/views.h"
#include "qualitative/caller_categories.h"
#include "qualitative/category_list.h"
#include "qualitative/category_order.h"
#include "qualitative/category_slots.h"
#include "statistics/stand_ins.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace
{

using korvel::category_order;
using korvel::row_slots;

/**
 * Lists the categories of one variable; `tally(i, k, started)` counts row i for the category at position k.
 *
 * @return their number; 1 for a column without any
 */
template <class Column, class Names, class Tally>
int listVariable(int n, const Column& column, const Names& names, korvel::text_index& index, Tally tally)
{
    index.clear();
    korvel::category_list<Names> list(names, index);
    korvel::withCells(
        [&](auto cells) {
            korvel::listCategories(
                n, cells, list, [](const korvel::hashed_text& cell) { return cell; },
                [&](int i, int k, bool started) {
                    if (k >= 0) {
                        tally(i, k, started);
                    }
                });
        },
        column);
    return std::max(list.size(), 1);
}

/** Adds a number to the frequency of a category; the first one is the frequency. */
template <class Frequencies>
void addTo(const Frequencies& frequencies, int k, bool started, double number)
{
    frequencies.set(k, started ? number : frequencies.get(k) + number);
}

/** The position of the first of the largest of `count` frequencies. */
template <class Frequencies>
int positionOfMode(const Frequencies& frequencies, int count)
{
    int largest = 0;
    for (int k = 1; k < count; ++k) {
        if (frequencies.get(k) > frequencies.get(largest)) {
            largest = k;
        }
    }
    return largest;
}

/** A table of frequencies, and what each row adds to them. */
template <class Weights>
struct frequency_table {
    matrix<double>& sums;
    const Weights& weights;
};
template <class Weights>
frequency_table(matrix<double>&, const Weights&) -> frequency_table<Weights>;

constexpr korvel::unit_weights oneEach{};

/**
 * Every variable with its categories and frequencies, in tables of `width` columns.
 *
 * @param slotsOf     `slotsOf(j, found)`: how many slots of variable j count, given how many categories were
 * found
 * @param frequencies the first ones decide on the mode
 */
template <class View, class SlotsOf, class First, class... More>
void inventory(const View& data, int n, int p, int width, matrix<text>& modes,
               matrix<double>& modeFrequencies, matrix<text>& categories, int& total, short int sort,
               SlotsOf slotsOf, const First& frequencies, const More&... more)
{
    const auto forTables = [&](auto act) {
        act(frequencies);
        (act(more), ...);
    };
    modes.Redim(p, 1, text());
    modeFrequencies.Redim(p, 1, 0.0);
    categories.Redim(p, width, text());
    forTables([&](const auto& table) { table.sums.Redim(p, width, 0.0); });

    total = 0;
    std::vector<int> counts;
    korvel::text_index index;
    for (int j = 0; j < p; ++j) {
        const row_slots<text> names(categories, j);
        const row_slots<double> sums(frequencies.sums, j);
        const auto tally = [&](int i, int k, bool started) {
            forTables([&](const auto& table) {
                addTo(row_slots<double>(table.sums, j), k, started, table.weights[i]);
            });
        };
        const int count = slotsOf(j, listVariable(n, data.column(j, n), names, index, tally));
        if (count > 0) {
            const int mode = positionOfMode(sums, count);
            korvel::storeChecked(modes, j, names.get(mode));
            korvel::storeChecked(modeFrequencies, j, sums.get(mode));
        }
        counts.push_back(count);
        total += count;
    }
    if (sort == -1) {
        const auto orders = korvel::forEachVariable<category_order>(p, [&](int j) {
            return korvel::orderOfCategories(row_slots<const text>(categories, j),
                                             counts[static_cast<std::size_t>(j)]);
        });
        for (int j = 0; j < p; ++j) {
            const category_order& order = orders[static_cast<std::size_t>(j)];
            korvel::permute(order, row_slots<text>(categories, j));
            forTables([&](const auto& table) { korvel::permute(order, row_slots<double>(table.sums, j)); });
        }
    }
}

/** Of each variable as many slots count as it has categories. */
template <class View>
void ofAnyNumber(const View& data, int n, int p, int width, matrix<int>& categoryCounts, matrix<text>& modes,
                 matrix<double>& modeFrequencies, matrix<text>& categories, matrix<double>& frequencies,
                 const matrix<double>& weights, int& total, short int sort)
{
    categoryCounts.Redim(p, 1, 0);
    const auto allFound = [&](int j, int found) {
        korvel::storeChecked(categoryCounts, j, found);
        return found;
    };
    inventory(data, n, p, width, modes, modeFrequencies, categories, total, sort, allFound,
              frequency_table{frequencies, weights});
}

/** Of each variable `count` slots do; rows and weights are both summed. */
template <class View>
void ofFixedNumber(const View& data, int n, int p, int width, int count, matrix<text>& modes,
                   matrix<double>& modeFrequencies, matrix<text>& categories, matrix<double>& frequencies,
                   matrix<double>& weightedFrequencies, const matrix<double>& weights, int& total,
                   short int sort)
{
    inventory(
        data, n, p, width, modes, modeFrequencies, categories, total, sort, [&](int, int) { return count; },
        frequency_table{frequencies, oneEach}, frequency_table{weightedFrequencies, weights});
}

} // namespace

void M_InfoQuali(matrix<text>* data, int n, int p, matrix<text>* modes, matrix<double>* modeFrequencies,
                 matrix<int>* categoryCounts, matrix<text>* categories, matrix<double>* frequencies,
                 matrix<double>* weights, int* total, short int sort)
{
    if (weights == nullptr) {
        matrix<double> ones(n, 1, 1.0);
        M_InfoQuali(data, n, p, modes, modeFrequencies, categoryCounts, categories, frequencies, &ones, total,
                    sort);
        return;
    }
    M_InfoQuali2(*data, n, p, n, *categoryCounts, *modes, *modeFrequencies, *categories, *frequencies,
                 *weights, total, sort);
}

void M_InfoQuali2(matrix<text> const& data, int n, int p, int width, matrix<int>& categoryCounts,
                  matrix<text>& modes, matrix<double>& modeFrequencies, matrix<text>& categories,
                  matrix<double>& frequencies, matrix<double>& weights, int* total, short int sort)
{
    ofAnyNumber(korvel::reading(data), n, p, width, categoryCounts, modes, modeFrequencies, categories,
                frequencies, weights, *total, sort);
}

void M_InfoQuali2(matrix<text> const& data, int n, int variable, int& categoryCount, text& mode,
                  double& modeFrequency, matrix<text>& categories, matrix<double>& frequencies,
                  matrix<double>& weights, int* total, short int sort)
{
    const korvel::vector_slots<text> names(categories);
    const korvel::vector_slots<double> sums(frequencies);
    korvel::text_index index;
    const auto tally = [&](int i, int k, bool started) {
        addTo(sums, k, started, std::as_const(weights)[i]);
    };
    categoryCount = listVariable(n, korvel::reading(data).column(variable - 1, n), names, index, tally);
    const int position = positionOfMode(sums, categoryCount);
    mode = names.get(position);
    modeFrequency = sums.get(position);
    *total = categoryCount;
    if (sort == -1) {
        const category_order order = korvel::orderOfCategories(names, categoryCount);
        korvel::permute(order, names);
        korvel::permute(order, sums);
    }
}

void M_InfoQuali3(matrix<text>& data, int n, int p, int width, int count, matrix<text>& modes,
                  matrix<double>& modeFrequencies, matrix<text>& categories, matrix<double>& frequencies,
                  matrix<double>& weightedFrequencies, matrix<double> weights, int* total, short int sort)
{
    ofFixedNumber(korvel::reading(data), n, p, width, count, modes, modeFrequencies, categories, frequencies,
                  weightedFrequencies, weights, *total, sort);
}

void korvel::infoQuali2(const caller_texts& data, int n, int p, int width, matrix<int>& categoryCounts,
                        matrix<text>& modes, matrix<double>& modeFrequencies, matrix<text>& categories,
                        matrix<double>& frequencies, const matrix<double>& weights, int* total,
                        short int sort)
{
    ofAnyNumber(data, n, p, width, categoryCounts, modes, modeFrequencies, categories, frequencies, weights,
                *total, sort);
}

void korvel::infoQuali3(const caller_texts& data, int n, int p, int width, int count, matrix<text>& modes,
                        matrix<double>& modeFrequencies, matrix<text>& categories,
                        matrix<double>& frequencies, matrix<double>& weightedFrequencies,
                        const matrix<double>& weights, int* total, short int sort)
{
    ofFixedNumber(data, n, p, width, count, modes, modeFrequencies, categories, frequencies,
                  weightedFrequencies, weights, *total, sort);
}
