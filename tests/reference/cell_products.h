/**
 * @file
 * Plain twins of products and sums of tables cell by cell, and of sums over their cells: loops over the
 * checked access, with nothing done for speed.
 */
#ifndef KORVEL_TESTS_REFERENCE_CELL_PRODUCTS_H
#define KORVEL_TESTS_REFERENCE_CELL_PRODUCTS_H

#include "containers/matrix.h"

#include <cmath>

namespace korvel::reference
{

using table = matrix<double>;

inline double orMissing(double a, double b)
{
    if (a == MISSING_DBL) {
        return MISSING_DBL;
    }
    if (b == MISSING_DBL) {
        return MISSING_DBL;
    }
    return a * b;
}

/** c(i, j) = cell(i, j), column after column. */
template <class Cell>
void fill(table& c, int n, int p, Cell cell)
{
    for (int j = 0; j < p; ++j) {
        for (int i = 0; i < n; ++i) {
            c.setElement(i, j, cell(i, j));
        }
    }
}

/** The sum of term(i, j), row after row. */
template <class Term>
double sumRows(int n, int p, Term term)
{
    double sum = 0.0;
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < p; ++j) {
            sum += term(i, j);
        }
    }
    return sum;
}

/** The largest sum over j of the magnitudes of cell(i, j) that are above the missing value. */
template <class Cell>
double rowSumNorm(int n, int m, Cell cell)
{
    double largest = 0.0;
    for (int i = 0; i < n; ++i) {
        double sum = 0.0;
        for (int j = 0; j < m; ++j) {
            if (cell(i, j) > MISSING_DBL) {
                sum += std::fabs(cell(i, j));
            }
        }
        if (sum > largest) {
            largest = sum;
        }
    }
    return largest;
}

} // namespace korvel::reference

#endif
