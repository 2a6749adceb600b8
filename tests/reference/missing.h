/**
 * @file
 * Plain loops over the checked access for missing cells: flags of rows, and rows taken out of a table and put
 * back, with nothing done for speed.
 */
#ifndef KORVEL_TESTS_REFERENCE_MISSING_H
#define KORVEL_TESTS_REFERENCE_MISSING_H

#include "containers/matrix.h"
#include "containers/missing.h"

#include <concepts>
#include <vector>

namespace korvel::reference
{

inline bool isMissing(double cell)
{
    return cell == MISSING_DBL;
}
inline bool isMissing(const text& cell)
{
    return cell.empty();
}

/** The test for flags. It compares numbers by order, so it also finds those below the sentinel. */
inline bool isFlagged(double cell)
{
    return cell <= MISSING_DBL;
}
inline bool isFlagged(const text& cell)
{
    return cell.empty();
}

/** Cell (i, j) of a dense table, or element i of chunk j. */
template <class T>
T cellOf(const matrix<T>& x, int i, int j)
{
    return x.getElement(i, j);
}
template <class T>
T cellOf(matrix<T>* const* x, int i, int j)
{
    return (*x[j])[i];
}

template <class Table>
std::vector<short int> rowFlags(const Table& x, int rows, int cols, const std::vector<short int>* given)
{
    std::vector<short int> found;
    for (int i = 0; i < rows; ++i) {
        bool isSet = given != nullptr && (*given)[static_cast<std::size_t>(i)] == -1;
        for (int j = 0; j < cols; ++j) {
            isSet = isFlagged(cellOf(x, i, j)) || isSet;
        }
        found.push_back(isSet ? short{-1} : short{0});
    }
    return found;
}

/** The flags of `out` afterwards. */
template <class T>
std::vector<short int> allMissingRows(const matrix<T>& x, int rows, int cols,
                                      const std::vector<short int>& flags, std::vector<short int> out)
{
    for (int i = 0; i < rows; ++i) {
        int missing = 0;
        for (int j = 0; j < cols; ++j) {
            missing += isMissing(x.getElement(i, j)) ? 1 : 0;
        }
        if (flags[static_cast<std::size_t>(i)] == -1 && missing == cols) {
            out[static_cast<std::size_t>(i)] = -1;
        }
    }
    return out;
}

template <class T>
void insertRows(const matrix<T>& x, int n, int p, const std::vector<short int>& flags, int m,
                matrix<T>& result)
{
    const T missing = std::same_as<T, int> ? static_cast<T>(MISSING_LNG) : static_cast<T>(MISSING_DBL);
    for (int j = 0; j < p; ++j) {
        int taken = 0;
        for (int i = 0; i < n + m; ++i) {
            if (flags[static_cast<std::size_t>(i)] != 0) {
                result.setElement(i, j, missing);
            } else {
                result.setElement(i, j, x.getElement(taken, j));
                ++taken;
            }
        }
    }
}

} // namespace korvel::reference

#endif
