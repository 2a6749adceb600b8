#include "ordering/apply_order.h"

#include "containers/conversion.h"
#include "containers/views.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

namespace
{

/** The rows to take, counted from 0, and the number of rows that a column needs to hold them all. */
struct row_choice {
    std::vector<int> rows;
    int needed = 0;

    row_choice(const matrix<double>& order, int count)
    {
        // A row that no column has, for which the checked access reads the spare slot.
        constexpr int nowhere = std::numeric_limits<int>::max() - 1;
        rows.reserve(static_cast<std::size_t>(std::max(count, 0)));
        for (int i = 0; i < count; ++i) {
            const int number = korvel::truncateToInt(order[i]);
            rows.push_back(number >= 1 ? std::min(number - 1, nowhere) : nowhere);
            needed = std::max(needed, rows.back() + 1);
        }
    }
};

template <class From, class To>
void takeRows(const From& from, const row_choice& choice, int cols, const To& to)
{
    const auto count = static_cast<int>(choice.rows.size());
    for (int j = 0; j < cols; ++j) {
        korvel::withCells(
            [&](auto in, auto& out) {
                for (int i = 0; i < count; ++i) {
                    out.set(i, in[choice.rows[static_cast<std::size_t>(i)]]);
                }
            },
            from.column(j, choice.needed), to.column(j, count));
    }
}

template <class T>
void applyInPlace(matrix<T>& x, int rows, int cols, const matrix<double>& order)
{
    const row_choice choice(order, rows);
    matrix<T> copy(x);
    copy.oobValue = x.oobValue;
    takeRows(korvel::reading(copy), choice, cols, korvel::writing(x));
}

template <class T>
void apply(matrix<T>& x, int rows, int cols, const matrix<double>& order, matrix<T>& out)
{
    if (x.data == out.data) {
        applyInPlace(out, rows, cols, order);
    } else {
        takeRows(korvel::reading(x), row_choice(order, rows), cols, korvel::writing(out));
    }
}

} // namespace

void SortApply(matrix<double>* x, int rows, int cols, matrix<double>* order, matrix<double>* out)
{
    apply(*x, rows, cols, *order, *out);
}

void SortApply(matrix<int>* x, int rows, int cols, matrix<double>* order, matrix<int>* out)
{
    apply(*x, rows, cols, *order, *out);
}

void SortApply(matrix<text>* x, int rows, int cols, matrix<double>* order, matrix<text>* out)
{
    apply(*x, rows, cols, *order, *out);
}

void SortApply2(matrix<double>* x, int rows, int cols, matrix<double>* order)
{
    applyInPlace(*x, rows, cols, *order);
}

void SortApply2(matrix<int>* x, int rows, int cols, matrix<double>* order)
{
    applyInPlace(*x, rows, cols, *order);
}

void SortApply2(matrix<short int>* x, int rows, int cols, matrix<double>* order)
{
    applyInPlace(*x, rows, cols, *order);
}

void SortApply2(matrix<text>* x, int rows, int cols, matrix<double>* order)
{
    applyInPlace(*x, rows, cols, *order);
}

void SortApply2(cST_MVect<double>& x, int rows, int cols, matrix<double>* order)
{
    for (int j = 0; j < cols && static_cast<std::size_t>(j) < x.Vectors.size(); ++j) {
        applyInPlace(x.Vectors[static_cast<std::size_t>(j)].Vect, rows, 1, *order);
    }
}
