#include "fitting/least_squares.h"

#include "containers/views.h"
#include "fitting/swept_fit.h"
#include "fitting/term_columns.h"
#include "statistics/vector_sums.h"

#include <cmath>

namespace
{

using korvel::machineEpsilon;
using korvel::packedPlace;
using korvel::storeChecked;
using korvel::swept_fit;
using korvel::term_columns;

/** The terms of the design, powers first and pairs of predictors behind them. */
term_columns designOf(int n, int p, const matrix<double>& X, int degree, short int interactions)
{
    term_columns terms(n);
    if (degree > 0) {
        terms.add(X, p);
    }
    for (int k = 2; k <= degree; ++k) {
        for (int j = 0; j < p; ++j) {
            terms.addProduct(terms[(k - 2) * p + j], terms[j]);
        }
    }
    if (interactions == -1 && p > 1) {
        term_columns predictors(n);
        predictors.add(X, p);
        for (int a = 0; a < p; ++a) {
            for (int b = a + 1; b < p; ++b) {
                terms.addProduct(predictors[a], predictors[b]);
            }
        }
    }
    return terms;
}

bool hasProduct(double si, double sj)
{
    return si != MISSING_DBL && sj != MISSING_DBL && si * sj > machineEpsilon;
}

void writeSwept(const swept_fit& fit, matrix<double>& table)
{
    korvel::withCells(
        [&](auto& to) {
            for (int j = 0; j < fit.response; ++j) {
                for (int i = 0; i < fit.response; ++i) {
                    to.set(i, j, fit.at(i + 1, j + 1));
                }
            }
        },
        korvel::writing(table).table(fit.response, fit.response));
}

/** The intercept and its standard error, which starts from what stands there unless `isDetermined`. */
void writeIntercept(const swept_fit& fit, double sumOfWeights, double df, bool isDetermined,
                    matrix<double>& coefficients, matrix<double>& standardErrors)
{
    if (isDetermined) {
        storeChecked(standardErrors, fit.terms,
                     fit.spread() * (sumOfWeights - 1.0) * fit.residual() / df / sumOfWeights);
    }
    storeChecked(coefficients, fit.terms, fit.intercept(coefficients, standardErrors));
    double variance = standardErrors[fit.terms];
    fit.forEachPair([&](int i, int j, double product) { variance -= fit.pairVariance(i, j, product, df); });
    storeChecked(standardErrors, fit.terms, std::sqrt(variance));
}

} // namespace

void OLSBasic(int n, int p, matrix<double>* X, matrix<double>* Y, matrix<double>* weights, int degree,
              short int interactions, short int noConstant, double tolerance, matrix<double>* coefficients,
              matrix<double>* fitted)
{
    matrix<double> standardErrors(korvel::designTerms(p, degree, interactions) + 1, 1, 0.0);
    OLSBasic2(n, p, X, Y, weights, degree, interactions, noConstant, tolerance, coefficients, &standardErrors,
              fitted);
}

void OLSBasic2(int n, int p, matrix<double>* X, matrix<double>* Y, matrix<double>* weights, int degree,
               short int interactions, short int noConstant, double tolerance, matrix<double>* coefficients,
               matrix<double>* standardErrors, matrix<double>* fitted)
{
    const int order = korvel::designTerms(p, degree, interactions) + 1;
    matrix<double> swept(order, order, 0.0);
    matrix<double> means(order, 1, 0.0);
    matrix<double> standardDeviations(order, 1, 0.0);
    OLSBasic3(n, p, X, Y, weights, degree, interactions, noConstant, tolerance, coefficients, standardErrors,
              fitted, &swept, &means, &standardDeviations);
}

void OLSBasic3(int n, int p, matrix<double>* X, matrix<double>* Y, matrix<double>* weights, int degree,
               short int interactions, short int noConstant, double tolerance, matrix<double>* coefficients,
               matrix<double>* standardErrors, matrix<double>* fitted, matrix<double>* sweptMatrix,
               matrix<double>* means, matrix<double>* standardDeviations)
{
    const double sumOfWeights = V_Sum2(*weights, n);
    swept_fit fit(korvel::designTerms(p, degree, interactions));
    term_columns columns = designOf(n, p, *X, degree, interactions);
    columns.add(*Y);
    term_columns weightColumn(n);
    weightColumn.add(*weights);
    matrix<double>& heldWeights = *weightColumn.chunks().front();
    const bool hasConstant = noConstant == 0;
    if (hasConstant) {
        fit.setCorrelations(columns.chunks().data(), n, 1, fit.response, heldWeights);
    } else {
        korvel::fillWithoutConstant(columns, heldWeights, sumOfWeights, hasProduct, fit);
    }

    fit.sweepTerms(tolerance, [&](int k) { fit.set(fit.response, k, 0.0); });
    writeSwept(fit, *sweptMatrix);
    for (int k = 0; k < fit.response; ++k) {
        storeChecked(*means, k, fit.means.data[k]);
        storeChecked(*standardDeviations, k, fit.deviations.data[k]);
    }

    const double df = sumOfWeights - (hasConstant ? fit.entered + 1 : fit.entered);
    const bool isDetermined = df > machineEpsilon && sumOfWeights > machineEpsilon;
    for (int k = 1; k <= fit.terms; ++k) {
        if (!fit.hasCoefficient(k)) {
            continue;
        }
        storeChecked(*coefficients, k - 1, fit.coefficient(k));
        if (isDetermined) {
            storeChecked(*standardErrors, k - 1,
                         std::sqrt(std::fabs(fit.at(k, k) * fit.residual()) / df) *
                             fit.deviation(fit.response) / fit.deviation(k));
        }
    }
    if (hasConstant) {
        writeIntercept(fit, sumOfWeights, df, isDetermined, *coefficients, *standardErrors);
    } else {
        storeChecked(*coefficients, fit.terms, 0.0);
    }
    korvel::writeFitted(columns, fit.terms, *coefficients, *fitted);
}

double OLSCheckIfIn(matrix<double>* packed, int P, int k, double tolerance)
{
    const matrix<double>& T = *packed;
    const double pivot = T[packedPlace(k, k)];
    if (!(pivot > tolerance) || P < 0) {
        return pivot;
    }
    for (int i = 1; i <= P + 1; ++i) {
        const double a = T[packedPlace(k, i)];
        const double c = a * a / pivot - T[packedPlace(i, i)];
        if (c > 0.0 && 1.0 / c > tolerance) {
            return 1.0 / c;
        }
    }
    return pivot;
}
