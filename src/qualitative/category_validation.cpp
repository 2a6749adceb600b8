#include "qualitative/category_validation.h"

#include "containers/views.h"
#include "qualitative/category_slots.h"
#include "qualitative/text_index.h"

#include <utility>

namespace
{

using korvel::column_slots;
using korvel::row_slots;

enum class unknown_category { ends, isPassedOver };

/** The positions of known names by their text; of equal names it is the last one. */
template <class Names>
void indexNames(const Names& names, int count, korvel::text_index& known)
{
    known.clear();
    for (int k = 0; k < count; ++k) {
        known.put(names.get(k), k);
    }
}

/**
 * Counts the rows of a column; `tally(i, k)` counts row i for the category at position k.
 *
 * @return false when a cell is no known category, which ended the counting
 */
template <class Column, class Tally>
bool countColumn(int n, const Column& column, const korvel::text_index& known, unknown_category rule,
                 Tally tally)
{
    return korvel::withCells(
        [&](auto cells) {
            for (int i = 0; i < n; ++i) {
                if (cells[i].empty()) {
                    continue;
                }
                const int k = known.find(cells[i]);
                if (k >= 0) {
                    tally(i, k);
                } else if (rule == unknown_category::ends) {
                    return false;
                }
            }
            return true;
        },
        column);
}

/** Adds a row's number to the frequency of a category. */
template <class Frequencies>
void addTo(const Frequencies& frequencies, int k, double number)
{
    frequencies.set(k, frequencies.get(k) + number);
}

unknown_category ruleOf(const cST_QualiInfo& result)
{
    return result.IgnoreNewCategoryInPred == 0 ? unknown_category::ends : unknown_category::isPassedOver;
}

} // namespace

void M_InfoQualiValid(matrix<text>* data, int n, int p, int width, matrix<int>* categoryCounts,
                      matrix<text>* categories, matrix<double>* counts, short int* newCategoryFound,
                      matrix<double>* weights)
{
    for (int j = 0; j < p; ++j) {
        korvel::fillSlots(row_slots<double>(*counts, j), width, 0.0);
    }
    *newCategoryFound = 0;
    korvel::text_index known;
    for (int j = 0; j < p; ++j) {
        indexNames(row_slots<const text>(*categories, j), (*categoryCounts)[j], known);
        const row_slots<double> sums(*counts, j);
        const auto tally = [&](int i, int k) {
            addTo(sums, k, weights != nullptr ? std::as_const(*weights)[i] : 1.0);
        };
        if (!countColumn(n, korvel::reading(*data).column(j, n), known, unknown_category::ends, tally)) {
            *newCategoryFound = -1;
            return;
        }
    }
}

void M_InfoQualiValid(matrix<text> const& column, int n, int variable, int categoryCount,
                      matrix<text>& categories, matrix<double>& counts, short int* newCategoryFound,
                      matrix<double>& weights)
{
    const row_slots<double> sums(counts, variable - 1);
    korvel::fillSlots(sums, sums.room(), 0.0);
    korvel::text_index known;
    indexNames(row_slots<const text>(categories, variable - 1), categoryCount, known);
    const auto tally = [&](int i, int k) { addTo(sums, k, std::as_const(weights)[i]); };
    const bool allKnown = countColumn(n, korvel::readVector(column, n), known, unknown_category::ends, tally);
    *newCategoryFound = allKnown ? 0 : -1;
}

void M_InfoQualiValid_ST(cST_MVect<text>& data, int n, int p, cST_QualiInfo& reference, cST_QualiInfo& result,
                         short int* newCategoryFound, matrix<double>& weights)
{
    column_slots<text> cells(data);
    column_slots<text> names(*reference.CatNames);
    column_slots<double> rows(*result.CatFreq);
    column_slots<double> sums(*result.CatFreqW);
    for (int j = 0; j < p; ++j) {
        korvel::fillSlots(rows[j], rows[j].room(), 0.0);
        korvel::fillSlots(sums[j], sums[j].room(), 0.0);
    }
    *newCategoryFound = 0;
    korvel::text_index known;
    for (int j = 0; j < p; ++j) {
        indexNames(names[j], (*reference.NbCat)[j], known);
        const auto tally = [&, counted = rows[j], weighed = sums[j]](int i, int k) {
            addTo(counted, k, 1.0);
            addTo(weighed, k, std::as_const(weights)[i]);
        };
        if (!countColumn(n, korvel::readVector(cells.column(j), n), known, ruleOf(result), tally)) {
            *newCategoryFound = -1;
            return;
        }
    }
}

void M_InfoQualiValid_Plus_ST(int variable, cST_MVect<text>& data, int n, int columns, int width,
                              cST_Vect<int>& categoryCounts, cST_QualiInfo& reference, cST_QualiInfo& result,
                              matrix<double>& weights, matrix<double>& secondWeights,
                              short int* newCategoryFound)
{
    const int j = variable - 1;
    column_slots<text> cells(data);
    column_slots<text> names(*reference.CatNames);
    column_slots<double> firstColumns(*result.CatFreq);
    column_slots<double> secondColumns(*result.CatFreqW);
    const auto first = firstColumns[j];
    const auto second = secondColumns[j];
    korvel::fillSlots(first, width, 0.0);
    korvel::fillSlots(second, width, 0.0);
    *newCategoryFound = 0;
    korvel::text_index known;
    indexNames(names[j], categoryCounts.Vect[j], known);
    const auto tally = [&](int i, int k) {
        addTo(first, k, std::as_const(weights)[i]);
        addTo(second, k, std::as_const(secondWeights)[i]);
    };
    for (int c = 0; c < columns; ++c) {
        if (!countColumn(n, korvel::readVector(cells.column(c), n), known, ruleOf(result), tally)) {
            *newCategoryFound = -1;
            return;
        }
    }
}
