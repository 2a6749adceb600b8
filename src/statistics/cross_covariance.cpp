#include "statistics/cross_covariance.h"

#include "statistics/pair_walk.h"

#include <cmath>

namespace
{

using korvel::denominator_choice;
using korvel::reading;
using korvel::running_correlation;
using korvel::weighted_rows;
using korvel::writing;

/** What a pair of columns becomes. */
struct result_kind {
    short int bCorr;
    short int bSquare;
    short int bUndefinedIsZero;

    [[nodiscard]] double cell(const running_correlation& pair, denominator_choice how) const
    {
        const double denominator = pair.denominator(how.bUnbiased, how.bFreq);
        const double covariance = pair.products / denominator;
        if (bCorr == 0) {
            return covariance;
        }
        const double product = (pair.squaresX / denominator) * (pair.squaresY / denominator);
        if (!(std::fabs(product) - 1e-12 > 0.0)) {
            return bUndefinedIsZero != 0 ? 0.0 : MISSING_DBL;
        }
        const double correlation = covariance / std::sqrt(product);
        return bSquare != 0 ? correlation * correlation : correlation;
    }
};

template <class X, class Y, class Out>
void crossTable(const X& x, int colsX, const Y& y, int colsY, const Out& out, const weighted_rows& rows,
                denominator_choice how, result_kind kind)
{
    korvel::withCells(
        [&](auto& to) {
            for (int i = 0; i < colsX; ++i) {
                for (int j = 0; j < colsY; ++j) {
                    const auto pair = korvel::walkPair<running_correlation>(x.column(i, rows.count),
                                                                            y.column(j, rows.count), rows);
                    to.set(i, j, kind.cell(pair, how));
                }
            }
        },
        out.table(colsX, colsY));
}

} // namespace

int M_CorrMatMat(matrix<double>* x, int rows, int colsX, matrix<double>* y, int colsY, matrix<double>*& out,
                 short int* iMissing, matrix<double>* w, short int bCorr, short int bSquare,
                 short int bUnbiased, short int bFreq, short int bUndefinedIsZero)
{
    out->Redim(colsX, colsY, 0.0);
    crossTable(reading(*x), colsX, reading(*y), colsY, writing(*out), {rows, iMissing, w}, {bUnbiased, bFreq},
               {bCorr, bSquare, bUndefinedIsZero});
    return 0;
}

int M_CorrMatMatSPV(matrix<double>** x, int rows, int colsX, matrix<double>** y, int colsY,
                    matrix<double>** out, short int* iMissing, matrix<double>* w, short int bCorr,
                    short int bSquare, short int bUnbiased, short int bFreq, short int bUndefinedIsZero)
{
    crossTable(reading(x), colsX, reading(y), colsY, writing(out), {rows, iMissing, w}, {bUnbiased, bFreq},
               {bCorr, bSquare, bUndefinedIsZero});
    return 0;
}

double V_Correl2W(matrix<double>* x, int n, matrix<double>* y, matrix<double>* w)
{
    const auto pair = korvel::withCells(
        [n](auto left, auto right, auto weights) {
            running_correlation state;
            for (int i = 0; i < n; ++i) {
                if (weights[i] > 0.0 && left[i] > MISSING_DBL && right[i] > MISSING_DBL) {
                    state.add(left[i], right[i], weights[i]);
                }
            }
            return state;
        },
        n, *x, *y, *w);
    const double product = pair.squaresX * pair.squaresY;
    return product > 0.0 ? pair.products / std::sqrt(product) : MISSING_DBL;
}
