#include "ordering/sort_vector.h"

#include "containers/cells.h"
#include "ordering/row_range.h"
#include "ordering/sorted_keys.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace
{

/**
 * Sorts the elements of the range on this thread. `landed(k, position)` is told where the text of rank k came
 * from, unless every text stays.
 */
template <class T, class Landed>
void sortRange(matrix<T>& x, const korvel::row_range& range, bool descending, Landed landed)
{
    if (range.count == 0 || !korvel::holds(x, range.first + range.count)) {
        return;
    }
    T* elements = x.data + range.first;
    const auto count = static_cast<std::size_t>(range.count);
    const auto found =
        korvel::orderOf(range.count, descending, [=](std::int32_t k) -> const T& { return elements[k]; });
    if (found == korvel::key_order::sorted) {
        return;
    }
    if constexpr (korvel::is_text<T>) {
        std::vector<T> moved(std::make_move_iterator(elements), std::make_move_iterator(elements + count));
        const korvel::sorted_texts sorted(
            range.count, descending,
            [&](std::int32_t k) -> const T& { return moved[static_cast<std::size_t>(k)]; },
            korvel::sort_threads::one);
        for (std::size_t k = 0; k < count; ++k) {
            landed(k, sorted.position(k));
            elements[k] = std::move(moved[static_cast<std::size_t>(sorted.position(k))]);
        }
    } else if (found == korvel::key_order::reverse) {
        std::reverse(elements, elements + count);
    } else {
        const korvel::sorted_numbers<T> sorted(
            range.count, descending, [=](std::int32_t k) { return elements[k]; }, korvel::sort_threads::one);
        for (std::size_t k = 0; k < count; ++k) {
            elements[k] = sorted.key(k);
        }
    }
}

constexpr auto ignorePosition = [](std::size_t, int) {};

} // namespace

void SortQVector(matrix<double>* x, int n, int from, int to, bool bDesc)
{
    sortRange(*x, {from, to, n}, bDesc, ignorePosition);
}

void SortQVector(matrix<int>* x, int n, int from, int to, bool bDesc)
{
    sortRange(*x, {from, to, n}, bDesc, ignorePosition);
}

void SortQVector(matrix<text>* x, int n, int from, int to, bool bDesc)
{
    sortRange(*x, {from, to, n}, bDesc, ignorePosition);
}

void SortQVector2(matrix<text>* x, int n, int from, int to, bool bDesc, matrix<int>* index)
{
    for (int i = 0; i < n; ++i) {
        (*index)[i] = i + 1;
    }
    const korvel::row_range range(from, to, n);
    sortRange(*x, range, bDesc, [&](std::size_t k, int position) {
        (*index)[range.first + static_cast<std::ptrdiff_t>(k)] = range.first + position + 1;
    });
}

short int V_IsSorted(matrix<double>* x, int n, bool bStrict)
{
    return korvel::withCells(
        [&](auto values) -> short int {
            for (int i = 0; i + 1 < n; ++i) {
                if (!(bStrict ? values[i] < values[i + 1] : values[i] <= values[i + 1])) {
                    return 0;
                }
            }
            return -1;
        },
        n, *x);
}
