#include "random/shuffle.h"

#include "containers/views.h"
#include "random/permutation.h"

#include <algorithm>
#include <utility>

namespace korvel
{

template <class T>
void shuffleRows(const matrix<T>& x, int rows, int cols, matrix<T>& out, int* seed, short int flag,
                 int* nextSeed)
{
    const int count = std::max(rows, 0);
    matrix<int> order(count, 1);
    random1toN(order, count, -1, seed, &flag, nextSeed);

    matrix<T> work(count, 1, T{});
    for (int j = 0; j < cols; ++j) {
        withCells(
            [&](auto column) {
                for (int i = 0; i < count; ++i) {
                    work.data[i] = column[i];
                }
            },
            reading(x).column(j, count));
        withCells(
            [&](auto& column) {
                for (int i = 0; i < count; ++i) {
                    column.set(i, std::as_const(work)[std::int64_t{order.data[i]} - 1]);
                }
            },
            writing(out).column(j, count));
    }
}

template void shuffleRows(const matrix<double>&, int, int, matrix<double>&, int*, short int, int*);
template void shuffleRows(const matrix<int>&, int, int, matrix<int>&, int*, short int, int*);
template void shuffleRows(const matrix<text>&, int, int, matrix<text>&, int*, short int, int*);

} // namespace korvel
