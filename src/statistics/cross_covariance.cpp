#include "statistics/cross_covariance.h"

#include "statistics/pair_walk.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

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

bool missesNone(const korvel::column_pointers& columns, int rows)
{
    return std::all_of(columns.begin(), columns.end(), [rows](const double* column) {
        return std::find(column, column + rows, MISSING_DBL) == column + rows;
    });
}

/** The sums of each column of one table with each of another, when no cell is missing: then the sums of
 * squares of a pair are those of its columns, and all pairs of both tables are walked side by side. */
class complete_pairs
{
public:
    complete_pairs(korvel::column_pointers x, const korvel::column_pointers& y, const weighted_rows& rows)
        : colsX_(static_cast<int>(x.size())), products_(x.size() * y.size()), squares_(x.size() + y.size())
    {
        x.insert(x.end(), y.begin(), y.end());
        korvel::walkPairsInMemory(x, rows, [this](int i, int j, const korvel::running_covariance& pair) {
            if (i == j) {
                squares_[static_cast<std::size_t>(i)] = pair.products;
                sumW_ = pair.sumW;
                kept_ = pair.kept;
            } else if (i < colsX_ && j >= colsX_) {
                products_[place(i, j - colsX_)] = pair.products;
            }
        });
    }

    [[nodiscard]] running_correlation at(int i, int j) const
    {
        running_correlation pair;
        pair.sumW = sumW_;
        pair.kept = kept_;
        pair.products = products_[place(i, j)];
        pair.squaresX = squares_[static_cast<std::size_t>(i)];
        pair.squaresY = squares_[static_cast<std::size_t>(colsX_ + j)];
        return pair;
    }

private:
    [[nodiscard]] std::size_t place(int i, int j) const
    {
        return static_cast<std::size_t>(i) + static_cast<std::size_t>(j) * static_cast<std::size_t>(colsX_);
    }

    int colsX_;
    std::vector<double> products_;
    std::vector<double> squares_;
    double sumW_ = 0.0;
    int kept_ = 0;
};

template <class X, class Y, class Out>
void crossTable(const X& x, int colsX, const Y& y, int colsY, const Out& out, const weighted_rows& rows,
                denominator_choice how, result_kind kind)
{
    const auto fill = [&](auto sumsOf) {
        korvel::withCells(
            [&](auto& to) {
                for (int i = 0; i < colsX; ++i) {
                    for (int j = 0; j < colsY; ++j) {
                        to.set(i, j, kind.cell(sumsOf(i, j), how));
                    }
                }
            },
            out.table(colsX, colsY));
    };
    const auto left = korvel::columnsInMemory(x, rows, colsX);
    const auto right = korvel::columnsInMemory(y, rows, colsY);
    if (!left.empty() && !right.empty() && missesNone(left, rows.count) && missesNone(right, rows.count)) {
        const complete_pairs pairs(left, right, rows);
        fill([&](int i, int j) { return pairs.at(i, j); });
    } else {
        fill([&](int i, int j) {
            return korvel::walkPair<running_correlation>(x.column(i, rows.count), y.column(j, rows.count),
                                                         rows);
        });
    }
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
