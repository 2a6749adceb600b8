#include "fitting/least_squares_blocks.h"

#include "containers/cells.h"
#include "fitting/swept_fit.h"
#include "fitting/term_columns.h"
#include "statistics/cross_covariance.h"
#include "statistics/vector_sums.h"

#include <cmath>
#include <cstddef>
#include <vector>

namespace
{

using korvel::machineEpsilon;
using korvel::storeChecked;
using korvel::swept_fit;
using korvel::term_columns;

/** One of the caller's tables. */
struct block {
    int cols;
    const matrix<double>* table;
};

/** The numbers of some columns, from 1 on. */
struct column_range {
    int first;
    int count;
};

/** The correlations of the columns of one table with those of a later one. */
void setCrossCorrelations(const std::vector<matrix<double>*>& columns, int rows, column_range x,
                          column_range y, matrix<double>& weights, swept_fit& fit)
{
    const auto from = [&](column_range range) {
        std::vector<matrix<double>*> list(columns.begin() + range.first - 1,
                                          columns.begin() + range.first - 1 + range.count);
        return list;
    };
    std::vector<matrix<double>> found(static_cast<std::size_t>(y.count), matrix<double>(x.count, 1, 0.0));
    std::vector<matrix<double>*> chunks;
    for (matrix<double>& chunk : found) {
        chunks.push_back(&chunk);
    }
    M_CorrMatMatSPV(from(x).data(), rows, x.count, from(y).data(), y.count, chunks.data(), nullptr, &weights,
                    -1, 0, -1, -1, 0);
    for (int j = 0; j < y.count; ++j) {
        for (int i = 0; i < x.count; ++i) {
            fit.set(x.first + i, y.first + j, (*chunks[static_cast<std::size_t>(j)])[i]);
        }
    }
}

void fillCorrelations(term_columns& columns, const std::vector<column_range>& ranges, matrix<double>& weights,
                      swept_fit& fit)
{
    const std::vector<matrix<double>*> chunks = columns.chunks();
    for (std::size_t b = 0; b < ranges.size(); ++b) {
        fit.setCorrelations(chunks.data() + ranges[b].first - 1, columns.rows(), ranges[b].first,
                            ranges[b].count, weights);
        for (std::size_t a = 0; a < b; ++a) {
            setCrossCorrelations(chunks, columns.rows(), ranges[a], ranges[b], weights, fit);
        }
    }
}

bool hasProduct(double si, double sj)
{
    return si * sj > machineEpsilon;
}

double standardError(const swept_fit& fit, int k, int df)
{
    if (df == 0 || fit.deviation(k) == 0.0) {
        return 0.0;
    }
    const double square = std::fabs(fit.at(k, k) * fit.residual()) / df;
    return square < 0.0 ? MISSING_DBL : std::sqrt(square) * fit.deviation(fit.response) / fit.deviation(k);
}

void writeIntercept(const swept_fit& fit, int n, double sumOfWeights, matrix<double>& coefficients,
                    matrix<double>& standardErrors)
{
    const double df = sumOfWeights - fit.terms - 1.0;
    storeChecked(standardErrors, fit.terms,
                 n - fit.terms != 1 ? fit.spread() * (sumOfWeights - 1.0) * fit.residual() / df / sumOfWeights
                                    : 0.0);
    storeChecked(coefficients, fit.terms, fit.intercept(coefficients, standardErrors));
    double variance = standardErrors[fit.terms];
    fit.forEachPair([&](int i, int j, double product) {
        variance = product * df != 0.0 ? variance - fit.pairVariance(i, j, product, df) : 0.0;
    });
    storeChecked(standardErrors, fit.terms, variance < 0.0 ? MISSING_DBL : std::sqrt(variance));
}

} // namespace

void OLSBasic2Lg(int n, int p1, matrix<double>* X1, int p2, matrix<double>* X2, int p3, matrix<double>* X3,
                 int p4, matrix<double>* X4, int p5, matrix<double>* X5, matrix<double>* Y,
                 matrix<double>* weights, int degree, short int noConstant, double tolerance,
                 matrix<double>* coefficients, matrix<double>* standardErrors, matrix<double>* fitted)
{
    if (degree != 1 || p1 + p2 + p3 + p4 + p5 < 1) {
        return;
    }
    term_columns columns(n);
    std::vector<column_range> ranges;
    for (const block& given : {block{p1, X1}, {p2, X2}, {p3, X3}, {p4, X4}, {p5, X5}}) {
        if (given.cols > 0) {
            ranges.push_back({columns.size() + 1, given.cols});
            columns.add(*given.table, given.cols);
        }
    }
    swept_fit fit(columns.size());
    columns.add(*Y);
    ++ranges.back().count;
    term_columns weightColumn(n);
    weightColumn.add(*weights);
    matrix<double>& heldWeights = *weightColumn.chunks().front();
    const double sumOfWeights = V_Sum2(heldWeights, n);
    if (noConstant == 0) {
        fillCorrelations(columns, ranges, heldWeights, fit);
    } else {
        korvel::fillWithoutConstant(columns, heldWeights, sumOfWeights, hasProduct, fit);
    }

    fit.sweepTerms(tolerance, [](int) {});
    for (int k = 1; k <= fit.terms; ++k) {
        if (fit.hasCoefficient(k)) {
            storeChecked(*coefficients, k - 1, fit.coefficient(k));
        }
        if (fit.hasCoefficient(k) || fit.deviation(k) == 0.0) {
            storeChecked(*standardErrors, k - 1, standardError(fit, k, n - fit.terms - 1));
        }
    }
    if (noConstant == 0) {
        writeIntercept(fit, n, sumOfWeights, *coefficients, *standardErrors);
    } else {
        storeChecked(*coefficients, fit.terms, 0.0);
    }
    korvel::writeFitted(columns, fit.terms, *coefficients, *fitted);
}
