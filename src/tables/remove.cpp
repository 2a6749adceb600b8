#include "tables/remove.h"

#include "tables/block_copy.h"
#include "tables/runs_of_rows.h"

#include <algorithm>
#include <vector>

using korvel::copyBlock;
using korvel::reading;
using korvel::run_of_rows;
using korvel::writing;

namespace
{

template <class T>
std::vector<run_of_rows> notListed(const matrix<T>& list, int n)
{
    std::vector<bool> listed(static_cast<std::size_t>(std::max(n, 0)));
    const auto length = static_cast<std::int64_t>(list.nbElem);
    for (std::int64_t k = 0; k < length; ++k) {
        const T number = list.data[k];
        if (number >= T{1} && number <= static_cast<T>(n) &&
            static_cast<T>(static_cast<int>(number)) == number) {
            listed[static_cast<std::size_t>(number) - 1] = true;
        }
    }
    return korvel::runsOf(n, [&](int k) { return !listed[static_cast<std::size_t>(k)]; });
}

/** Of `n` rows or columns: how many come before number `k`, and how many up to and including it. */
struct neighbours {
    int before;
    int upTo;

    neighbours(int n, int k)
        : before(std::clamp(std::max(k, 1) - 1, 0, std::max(n, 0))), upTo(std::clamp(k, 0, std::max(n, 0)))
    {
    }
};

template <class T>
void moveUp(matrix<T>& x, int rows, int cols, int first, int last)
{
    const int from = std::max(first, 1);
    if (from <= last) {
        copyBlock(reading(x), {last, 0}, writing(x), {from - 1, 0}, std::int64_t{rows} - last, cols);
    }
}

} // namespace

void M_RemoveCol(matrix<double>* x, int rows, int cols, int k, matrix<double>* out)
{
    const neighbours kept(cols, k);
    copyBlock(reading(*x), {0, 0}, writing(*out), {0, 0}, rows, kept.before);
    copyBlock(reading(*x), {0, kept.upTo}, writing(*out), {0, kept.upTo - 1}, rows, cols - kept.upTo);
}

void M_RemoveRow(matrix<double>* x, int rows, int cols, int k, matrix<double>* out)
{
    const neighbours kept(rows, k);
    copyBlock(reading(*x), {0, 0}, writing(*out), {0, 0}, kept.before, cols);
    copyBlock(reading(*x), {kept.upTo, 0}, writing(*out), {kept.upTo - 1, 0}, rows - kept.upTo, cols);
}

void M_RemoveCols2(matrix<double>* x, int rows, int cols, int first, int last)
{
    const int from = std::max(first, 1);
    if (from <= last) {
        copyBlock(reading(*x), {0, last}, writing(*x), {0, from - 1}, rows, std::int64_t{cols} - last);
    }
}

void M_RemoveRows2(matrix<double>*& x, int rows, int cols, int first, int last)
{
    moveUp(*x, rows, cols, first, last);
}

void M_RemoveRows2(matrix<text>*& x, int rows, int cols, int first, int last)
{
    moveUp(*x, rows, cols, first, last);
}

int M_RemoveColsInList(matrix<double>* x, int rows, int cols, matrix<double>* list, matrix<double>* out)
{
    int stored = 0;
    for (const run_of_rows& run : notListed(*list, cols)) {
        copyBlock(reading(*x), {0, run.first}, writing(*out), {0, stored}, rows, run.count);
        stored += run.count;
    }
    return 0;
}

int M_RemoveRowsInList(matrix<double>* x, int rows, int cols, matrix<int>* list, matrix<double>* out)
{
    korvel::copyRuns(notListed(*list, rows), reading(*x), writing(*out), cols);
    return 0;
}

namespace korvel
{

template <class T>
int countNotListed(const matrix<T>& list, int n)
{
    return rowsOf(notListed(list, n));
}

template int countNotListed(const matrix<double>&, int);
template int countNotListed(const matrix<int>&, int);

} // namespace korvel
