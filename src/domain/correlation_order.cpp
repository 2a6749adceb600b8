#include "domain/correlation_order.h"

#include "linalg/symmetric_eigen.h"
#include "missing/missing_counts.h"
#include "ordering/apply_order.h"
#include "ordering/sort_table.h"
#include "statistics/vector_extremes.h"
#include "statistics/vector_variance.h"
#include "tables/transpose.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace
{

/** What the variables are sorted by. */
enum order_method { byLargest = 1, byVariance = 2, byEigenvector = 3 };

/** The key that the first row gives. */
double keyOfFirstRow(const matrix<double>& corr, int n, int method)
{
    matrix<double> row(n, 1, 0.0);
    for (int j = 0; j < n; ++j) {
        row.data[j] = corr.getElement(0, j);
    }
    std::vector<short int> noFlags(static_cast<std::size_t>(n));
    if (method == byLargest) {
        return V_Max(&row, n, noFlags.data());
    }
    matrix<double> ones(n, 1, 1.0);
    return V_Var(&row, n, noFlags.data(), &ones, -1, -1);
}

/** Puts rows and columns in an order. */
template <class T>
void reorder(matrix<T>* table, int n, matrix<double>& order)
{
    SortApply2(table, n, n, &order);
    M_Transpose2(table, n, n);
    SortApply2(table, n, n, &order);
}

} // namespace

void ReOrderCorrelations(matrix<double>* corr, int n, int method, matrix<text>* labels,
                         matrix<double>* pValues, matrix<int>* flags)
{
    const int count = std::max(n, 0);
    matrix<double> keys(count, 1, 0.0);
    matrix<double> order(count, 1, 0.0);
    matrix<double> values;
    matrix<double> vectors;
    const bool hasVectors = method == byEigenvector && M_NbMissing2(corr, n, n) == 0 &&
                            M_Eigen(corr, &values, &vectors, n, -1) == 0;
    for (int i = 0; i < count; ++i) {
        corr->setElement(i, i, MISSING_DBL);
        if (method == byLargest || method == byVariance) {
            keys.data[i] = keyOfFirstRow(*corr, n, method);
        } else if (hasVectors) {
            keys.data[i] = vectors.getElement(i, 0);
        }
        corr->setElement(i, i, 1.0);
        order.data[i] = i + 1;
    }
    SortQ(&order, count, 1, 1, count, &keys, nullptr, 0, true, false);
    SortApply2(labels, count, 1, &order);
    reorder(corr, count, order);
    reorder(pValues, count, order);
    reorder(flags, count, order);
}
