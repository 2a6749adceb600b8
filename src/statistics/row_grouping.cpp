#include "statistics/row_grouping.h"

#include "ordering/apply_order.h"
#include "ordering/modes.h"
#include "ordering/quantiles.h"
#include "ordering/sort_by_column.h"
#include "ordering/sort_table.h"
#include "statistics/vector_extremes.h"
#include "statistics/vector_means.h"
#include "statistics/vector_sums.h"

#include <algorithm>
#include <vector>

namespace
{

enum aggregate { sum, mean, median, firstRow, lastRow, minimum, maximum, range };

/** The methods that weights change, without weights. */
struct plain_aggregates {
    double sum(matrix<double>& x, int, int n) const { return V_Sum2(&x, n); }
    double mean(matrix<double>& x, int, int n) const { return V_Mean2(&x, n); }
    double median(matrix<double>& x, int, int n) const { return V_Quantile(&x, n, 0.5); }
};

/** The same methods with weights: those of all rows, in sorted order. */
struct weighted_aggregates {
    matrix<double>& w;

    double sum(matrix<double>& x, int first, int n) const
    {
        auto weights = of(first, n);
        return V_Sum(&x, n, nullptr, &weights);
    }
    double mean(matrix<double>& x, int first, int n) const
    {
        auto weights = of(first, n);
        std::vector<short int> flags(static_cast<std::size_t>(n));
        return V_Mean(&x, n, flags.data(), &weights);
    }
    double median(matrix<double>& x, int first, int n) const
    {
        auto weights = of(first, n);
        return V_QuantileW(&x, n, &weights, 0.5);
    }

private:
    matrix<double> of(int first, int n) const
    {
        matrix<double> weights(n, 1, 0.0);
        for (int i = 0; i < n; ++i) {
            weights[i] = w[first + i];
        }
        return weights;
    }
};

/** The aggregate of a quantitative column over the rows `first` to `first + n - 1`; `unknown` for a method
 * that there is not. */
template <class Aggregates>
double aggregated(matrix<double>& x, int first, int n, int method, const Aggregates& by, double unknown)
{
    switch (method) {
    case sum:
        return by.sum(x, first, n);
    case mean:
        return by.mean(x, first, n);
    case median:
        return by.median(x, first, n);
    case firstRow:
        return x[0];
    case lastRow:
        return x[n - 1];
    case minimum:
        return V_Min2(&x, n);
    case maximum:
        return V_Max2(&x, n);
    case range: {
        const double most = V_Max2(&x, n);
        return most > MISSING_DBL ? most - V_Min2(&x, n) : MISSING_DBL;
    }
    default:
        return unknown;
    }
}

void copyColumns(const matrix<double>& x, int rows, int cols, matrix<double>& out)
{
    for (int j = 0; j < cols; ++j) {
        for (int i = 0; i < rows; ++i) {
            out.setElement(i, j, x.getElement(i, j));
        }
    }
}

/** Copies the table into `out` and sorts `out`, and `companion` unless it is null, by the key column. */
void sortByKey(const matrix<double>& x, int rows, int cols, int groupCol, matrix<double>& out,
               matrix<double>* companion)
{
    matrix<double> key(std::max(rows, 0), 1, 0.0);
    for (int i = 0; i < rows; ++i) {
        key[i] = x.vbget(i + 1, groupCol);
    }
    copyColumns(x, rows, cols, out);
    SortQ(&out, rows, cols, 1, rows, &key, companion, companion != nullptr ? 1 : 0, false, false);
}

/**
 * Walks the runs of equal keys in the sorted table and writes the aggregates of each run into the next result
 * row. That row never lies behind the start of the run, so the result may overwrite the table.
 */
template <class Aggregates>
int aggregateRuns(matrix<double>& out, int rows, int cols, const matrix<int>& kinds, int groupCol, int method,
                  const Aggregates& by)
{
    const int keyColumn = groupCol - 1;
    int groups = 0;
    for (int first = 0, last = 0; first < rows; first = last) {
        const double key = out.getElement(first, keyColumn);
        for (last = first + 1; last < rows && out.getElement(last, keyColumn) == key; ++last) {
        }
        const int row = groups++;
        out.setElement(row, keyColumn, key);
        for (int j = 0; j < cols; ++j) {
            if (j == keyColumn) {
                continue;
            }
            const int n = last - first;
            matrix<double> run(n, 1, 0.0);
            for (int i = 0; i < n; ++i) {
                run[i] = out.getElement(first + i, j);
            }
            out.setElement(row, j,
                           kinds[j] != 0 ? V_ModeCat(&run, n)
                                         : aggregated(run, first, n, method, by, out.getElement(row, j)));
        }
    }
    return groups;
}

bool rowsEqual(const matrix<double>& table, int a, int b, int columns)
{
    for (int j = 0; j < columns; ++j) {
        if (!(table.getElement(a, j) == table.getElement(b, j))) {
            return false;
        }
    }
    return true;
}

} // namespace

void M_GroupBy(matrix<double>* x, int rows, int cols, matrix<int>* kinds, int groupCol, int method, int& nOut,
               matrix<double>* out)
{
    sortByKey(*x, rows, cols, groupCol, *out, nullptr);
    nOut = aggregateRuns(*out, rows, cols, *kinds, groupCol, method, plain_aggregates{});
}

void M_GroupByW(matrix<double>* x, int rows, int cols, matrix<int>* kinds, int groupCol, int method,
                int& nOut, matrix<double>* out, matrix<double>* w)
{
    matrix<double> index(std::max(rows, 0), 1, 0.0);
    for (int i = 0; i < rows; ++i) {
        index[i] = i + 1;
    }
    sortByKey(*x, rows, cols, groupCol, *out, &index);
    SortApply2(w, rows, 1, &index);
    nOut = aggregateRuns(*out, rows, cols, *kinds, groupCol, method, weighted_aggregates{*w});
}

void M_Dedupe(matrix<double>* x, int rows, int p, int& nOut, matrix<double>* out)
{
    const int countColumn = p;
    const int identifierColumn = p + 1;
    const int keptColumn = p + 2;
    copyColumns(*x, rows, p + 1, *out);
    SortMatrixSeqQP1toP2(out, rows, p + 1, 1, p);

    nOut = 0;
    std::vector<double> dropped; // row after row: the data, then the identifier
    const auto writeRow = [&](int row, double count, double identifier, double kept) {
        out->setElement(row, countColumn, count);
        out->setElement(row, identifierColumn, identifier);
        out->setElement(row, keptColumn, kept);
    };
    for (int i = 0; i < rows; ++i) {
        // The count of a kept row is written over its identifier.
        const double identifier = out->getElement(i, p);
        if (nOut > 0 && rowsEqual(*out, nOut - 1, i, p)) {
            out->setElement(nOut - 1, countColumn, out->getElement(nOut - 1, countColumn) + 1.0);
            for (int j = 0; j < p; ++j) {
                dropped.push_back(out->getElement(i, j));
            }
            dropped.push_back(identifier);
        } else {
            for (int j = 0; j < p; ++j) {
                out->setElement(nOut, j, out->getElement(i, j));
            }
            writeRow(nOut, 1.0, identifier, 1.0);
            ++nOut;
        }
    }
    auto cell = dropped.begin();
    for (int row = nOut; row < rows; ++row) {
        for (int j = 0; j < p; ++j) {
            out->setElement(row, j, *cell++);
        }
        writeRow(row, 0.0, *cell++, 0.0);
    }
    SortQMatrixCol(out, rows, p + 3, identifierColumn + 1, 1, rows, false);
    SortQMatrixCol(out, rows, p + 3, keptColumn + 1, 1, rows, true);
}
