#include "missing/missing_rows.h"

#include "tables/runs_of_rows.h"

#include <algorithm>
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

template <class T>
void spreadRows(const matrix<T>& x, int n, int p, const short int* flags, int m, matrix<T>& result)
{
    const std::vector<run_of_rows> runs = notFlagged(flags, n + m);
    for (int j = 0; j < p; ++j) {
        int taken = 0;
        int next = 0;
        const auto fillUpTo = [&](int row) {
            const T missing = korvel::missingNumber<T>;
            korvel::fillBlock(result, {next, j}, row - next, 1, missing);
        };
        for (const run_of_rows& run : runs) {
            fillUpTo(run.first);
            korvel::copyBlock(reading(x), {taken, j}, writing(result), {run.first, j}, run.count, 1);
            taken += run.count;
            next = run.first + run.count;
        }
        fillUpTo(n + m);
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
