#include "missing/missing_rows.h"

#include "tables/runs_of_rows.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace
{

using korvel::reading;
using korvel::run_of_rows;
using korvel::writing;

std::vector<run_of_rows> notFlagged(const short int* flags, int n)
{
    return korvel::runsOf(n, [flags](int i) { return flags[i] == 0; });
}

/** Shortens the runs to `rows` rows, or adds those that stand behind as many rows in the table. */
void fitTo(std::vector<run_of_rows>& runs, int rows)
{
    int missing = rows - korvel::rowsOf(runs);
    if (missing > 0) {
        runs.push_back({rows - missing, missing});
    }
    while (missing < 0) {
        const int dropped = std::min(-missing, runs.back().count);
        runs.back().count -= dropped;
        missing += dropped;
        if (runs.back().count == 0) {
            runs.pop_back();
            missing = runs.empty() ? 0 : missing;
        }
    }
}

template <class T>
void moveUpKept(matrix<T>& x, int n, int p, const short int* flags)
{
    korvel::copyRuns(notFlagged(flags, n), reading(x), writing(x), p);
}

/**
 * Copies a run of cells. A short one is copied in pieces of fixed size, which take no call and seldom a wrong
 * guess; the last piece reaches behind the run, into cells that are stored afterwards.
 *
 * @param room how many cells both columns have from here on
 */
template <class T>
void copyAhead(const T* from, T* to, int count, int room)
{
    constexpr int piece = 8;
    constexpr int shortRun = 2 * piece;
    if (count > shortRun || count + piece > room) {
        std::copy_n(from, count, to);
        return;
    }
    for (int k = 0; k < count; k += piece) {
        std::memcpy(to + k, from + k, piece * sizeof(T));
    }
}

/** Spreads the `n` cells of a column to `rows` cells, at the given runs. */
template <class T>
void spreadCells(const T* from, int n, const std::vector<run_of_rows>& runs, T* to, int rows)
{
    const T missing = korvel::missingNumber<T>;
    int taken = 0;
    int next = 0;
    for (const run_of_rows& run : runs) {
        std::fill(to + next, to + run.first, missing);
        copyAhead(from + taken, to + run.first, run.count, std::min(n - taken, rows - run.first));
        taken += run.count;
        next = run.first + run.count;
    }
    std::fill(to + next, to + rows, missing);
}

template <class T>
void spreadRows(const matrix<T>& x, int n, int p, const short int* flags, int m, matrix<T>& result)
{
    const int rows = n + m;
    const std::vector<run_of_rows> runs = notFlagged(flags, rows);
    const int taken = korvel::rowsOf(runs);
    const auto in = reading(x);
    const auto out = writing(result);
    const T missing = korvel::missingNumber<T>;
    for (int j = 0; rows > 0 && j < p; ++j) {
        const T* const from = in.run(0, j, taken, 1);
        T* const to = out.run(0, j, rows, 1);
        if (from != nullptr && to != nullptr) {
            spreadCells(from, x.nbrows, runs, to, rows);
            out.leave(j, to[rows - 1]);
            continue;
        }
        for (int i = 0, next = 0; i < rows; ++i) {
            out.set(i, j, flags[i] == 0 ? in.get(next++, j) : missing);
        }
    }
}

} // namespace

void M_RemoveRowsWithMissing2(matrix<double>*& x, int n, int p, short int* flags)
{
    moveUpKept(*x, n, p, flags);
}

void M_RemoveRowsWithMissing2(matrix<text>*& x, int n, int p, short int* flags)
{
    moveUpKept(*x, n, p, flags);
}

void RemoveRowsWithMissingBool(matrix<short int>* x, int n, int p, int removed, short int* flags,
                               matrix<short int>* result)
{
    korvel::copyRowsKept(*x, n, p, removed, flags, *result);
}

void M_InsertMissing(matrix<double>* x, int n, int p, short int* flags, int m, matrix<double>* result)
{
    spreadRows(*x, n, p, flags, m, *result);
}

void M_InsertMissingLng(matrix<int>* x, int n, int p, short int* flags, int m, matrix<int>* result)
{
    spreadRows(*x, n, p, flags, m, *result);
}

namespace korvel
{

template <class T>
void copyRowsKept(const matrix<T>& x, int n, int p, int removed, const short int* flags, matrix<T>& result)
{
    std::vector<run_of_rows> runs = notFlagged(flags, n);
    fitTo(runs, n - removed);
    copyRuns(runs, reading(x), writing(result), p);
}

template void copyRowsKept(const matrix<double>&, int, int, int, const short int*, matrix<double>&);
template void copyRowsKept(const matrix<short int>&, int, int, int, const short int*, matrix<short int>&);
template void copyRowsKept(const matrix<text>&, int, int, int, const short int*, matrix<text>&);

void copyFirstRows(const matrix<text>& x, int rows, int cols, matrix<text>& result)
{
    copyBlock(reading(x), {0, 0}, writing(result), {0, 0}, rows, cols);
}

int countKept(const short int* flags, int n)
{
    return rowsOf(notFlagged(flags, n));
}

} // namespace korvel
