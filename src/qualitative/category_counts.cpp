#include "qualitative/category_counts.h"

#include "containers/views.h"
#include "qualitative/caller_categories.h"
#include "qualitative/category_order.h"
#include "qualitative/category_slots.h"
#include "qualitative/text_index.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace
{

template <class Column>
int countTexts(int n, const Column& column)
{
    return korvel::withCells(
        [n](auto cells) {
            korvel::text_index index;
            int count = 0;
            for (int i = 0; i < n; ++i) {
                if (!cells[i].empty() && index.findOrPut(cells[i], count) == count) {
                    ++count;
                }
            }
            return count;
        },
        column);
}

template <class View>
int countColumns(const View& data, int n, int p, matrix<int>& categoryCounts)
{
    const std::vector<int> counts =
        korvel::forEachVariable<int>(p, [&](int j) { return countTexts(n, data.column(j, n)); });
    int largest = 0;
    for (int j = 0; j < p; ++j) {
        const int count = counts[static_cast<std::size_t>(j)];
        korvel::storeChecked(categoryCounts, j, count);
        largest = std::max(largest, count);
    }
    return largest;
}

} // namespace

int GetMaxCat(matrix<text> const& data, int n, int p, matrix<int>& categoryCounts)
{
    return countColumns(korvel::reading(data), n, p, categoryCounts);
}

int korvel::largestCategoryCount(const korvel::caller_texts& data, int n, int p, matrix<int>& categoryCounts)
{
    return countColumns(data, n, p, categoryCounts);
}

int GetMaxCat(matrix<text> const& column, int n, int& categoryCount)
{
    categoryCount = countTexts(n, korvel::readVector(column, n));
    return categoryCount;
}

int CheckUniqueCatByVar(matrix<text> const& categories, int p, int, matrix<int> const& categoryCounts)
{
    // A name that was seen is a second use wherever its slot is another one: one of the two slots is the
    // later one.
    korvel::text_index slotOf;
    for (int j = 0; j < p; ++j) {
        const korvel::row_slots<const text> names(categories, j);
        for (int k = 0; k < categoryCounts[j]; ++k) {
            if (slotOf.findOrPut(names.get(k), k) != k) {
                return 1;
            }
        }
    }
    return 0;
}
