#include "statistics/covariance.h"

#include "containers/record_columns.h"
#include "containers/views.h"
#include "statistics/chunk_correlations.h"
#include "statistics/pair_walk.h"

#include <cmath>
#include <vector>

namespace
{

using korvel::column_moments;
using korvel::denominator_choice;
using korvel::reading;
using korvel::storeChecked;
using korvel::weighted_rows;
using korvel::writing;

/** When a product of two variances makes a correlation. */
constexpr auto isNotZero = [](double product) { return std::fabs(product) > 0.0; };
constexpr auto isPositive = [](double product) { return product > 0.0; };

/** What the table of covariances becomes. */
struct finish {
    bool toCorrelations;
    bool undefinedIsZero;
};

/** Mirrors the upper half, in which an undefined pair is missing, and makes correlations of it if asked to.
 */
template <class Out, class IsDefined>
void finishTable(Out& out, int cols, const std::vector<column_moments>& columns, finish how,
                 IsDefined isDefined)
{
    const double undefined = how.undefinedIsZero ? 0.0 : MISSING_DBL;
    for (int i = 0; i < cols; ++i) {
        for (int j = i; j < cols; ++j) {
            double cell = out.get(i, j);
            if (cell == MISSING_DBL) {
                cell = undefined;
            } else if (how.toCorrelations) {
                const double product = columns[static_cast<std::size_t>(i)].variance *
                                       columns[static_cast<std::size_t>(j)].variance;
                const double correlation = i == j ? 1.0 : cell / std::sqrt(product);
                cell = isDefined(product) ? correlation : undefined;
            }
            out.set(i, j, cell);
            out.set(j, i, cell);
        }
    }
}

/**
 * The whole of a routine.
 *
 * @param out       source of the result
 * @param afterward `afterward(i, moments)`, called when no later pair needs column `i`
 */
template <class In, class Out, class IsDefined, class Afterward>
int fillTable(const In& x, const weighted_rows& rows, int cols, denominator_choice how, const Out& out,
              finish last, IsDefined isDefined, Afterward afterward)
{
    std::vector<column_moments> columns(cols > 0 ? static_cast<std::size_t>(cols) : 0);
    korvel::withCells(
        [&](auto& to) {
            korvel::forEachColumnPair(
                x, rows, cols, how, [&](int i, int j, double covariance) { to.set(i, j, covariance); },
                [&](int i, const column_moments& found) {
                    columns[static_cast<std::size_t>(i)] = found;
                    afterward(i, found);
                });
            finishTable(to, cols, columns, last, isDefined);
        },
        out);
    return 0;
}

/** What the members have in common that differ only in where the cells are. */
struct table_flags {
    short int bCorr;
    short int* iMissing;
    matrix<double>* w;
    short int bUnbiased;
    short int bFreq;
    short int bUndefinedIsZero;
};

template <class In, class Out>
int covCorr(const In& x, int rows, int cols, const Out& out, const table_flags& flags)
{
    return fillTable(x, {rows, flags.iMissing, flags.w}, cols, {flags.bUnbiased, flags.bFreq}, out,
                     {flags.bCorr != 0, flags.bUndefinedIsZero != 0}, isNotZero,
                     [](int, const column_moments&) {});
}

/** The statistics of column `i`: only a variance greater than 0 is rooted. */
void storeMoments(int i, const column_moments& found, matrix<double>& means, matrix<double>& sds,
                  matrix<double>& vars)
{
    storeChecked(means, i, found.mean);
    storeChecked(vars, i, found.variance);
    storeChecked(sds, i, found.variance > 0.0 ? std::sqrt(found.variance) : found.variance);
}

/** Centres and reduces the kept cells of a column. */
template <class Column>
void standardizeCells(const Column& column, const weighted_rows& rows, const column_moments& found,
                      bool bCenter, bool bReduce)
{
    if (bReduce ? !(found.variance > 0.0) : !bCenter) {
        return;
    }
    const double sd = std::sqrt(found.variance);
    const auto change = [&](double cell) {
        const double centred = bCenter ? cell - found.mean : cell;
        return bReduce ? centred / sd : centred;
    };
    korvel::withCells(
        [&](auto& cells) {
            for (int i = 0; i < rows.count; ++i) {
                if (rows.keeps(i) && cells[i] != MISSING_DBL) {
                    cells.set(i, change(cells[i]));
                }
            }
        },
        column);
}

} // namespace

int M_CovCorr(matrix<double>*& x, int rows, int cols, matrix<double>*& out, short int bCorr,
              short int* iMissing, matrix<double>* w, short int bUnbiased, short int bFreq,
              short int bUndefinedIsZero)
{
    out->Redim(cols, cols, 0.0);
    return covCorr(reading(*x), rows, cols, writing(*out).table(cols, cols),
                   {bCorr, iMissing, w, bUnbiased, bFreq, bUndefinedIsZero});
}

int M_CovCorrSPV(matrix<double>*& x, int rows, int cols, matrix<double>** out, short int bCorr,
                 short int* iMissing, matrix<double>* w, short int bUnbiased, short int bFreq,
                 short int bUndefinedIsZero)
{
    return covCorr(reading(*x), rows, cols, writing(out).table(cols, cols),
                   {bCorr, iMissing, w, bUnbiased, bFreq, bUndefinedIsZero});
}

int M_CovCorrSPV_T(matrix<double>*& x, int rows, int cols, matrix3D<matrix<double>>* out, short int bCorr,
                   short int* iMissing, matrix<double>* w, short int bUnbiased, short int bFreq,
                   short int bUndefinedIsZero)
{
    return covCorr(reading(*x), rows, cols, writing(*out).triangle(cols),
                   {bCorr, iMissing, w, bUnbiased, bFreq, bUndefinedIsZero});
}

int M_CovCorr3(matrix3D<matrix<double>>* x, int rows, int cols, matrix<double>* out, short int bCorr,
               short int* iMissing, matrix<double>* w, short int bUnbiased, short int bFreq,
               short int bUndefinedIsZero)
{
    return covCorr(reading(*x), rows, cols, writing(*out).table(cols, cols),
                   {bCorr, iMissing, w, bUnbiased, bFreq, bUndefinedIsZero});
}

int M_CovCorr3SPV(matrix3D<matrix<double>>* x, int rows, int cols, matrix3D<matrix<double>>* out,
                  short int bCorr, short int* iMissing, matrix<double>* w, short int bUnbiased,
                  short int bFreq, short int bUndefinedIsZero)
{
    return covCorr(reading(*x), rows, cols, writing(*out).table(cols, cols),
                   {bCorr, iMissing, w, bUnbiased, bFreq, bUndefinedIsZero});
}

int M_CovCorr_ST(cST_MVect<double>& x, int rows, int cols, cST_MVect<double>& out, short int bCorr,
                 short int* iMissing, matrix<double>* w, short int bUnbiased, short int bFreq,
                 short int bUndefinedIsZero)
{
    korvel::column_list from(x, cols);
    korvel::column_list to(out, cols);
    return covCorr(reading(from.table()), rows, cols, writing(to.table()).table(cols, cols),
                   {bCorr, iMissing, w, bUnbiased, bFreq, bUndefinedIsZero});
}

int M_CovCorrAndMeanStDevVar(matrix<double>* x, int rows, int cols, matrix<double>* out,
                             matrix<double>* means, matrix<double>* sds, matrix<double>* vars,
                             short int bCorr, short int* iMissing, matrix<double>* w, short int bUnbiased,
                             short int bFreq, short int bCenter, short int bReduce,
                             short int bUndefinedIsZero)
{
    const auto table = writing(*x);
    const weighted_rows kept{rows, iMissing, w};
    const auto afterward = [&](int i, const column_moments& found) {
        storeMoments(i, found, *means, *sds, *vars);
        standardizeCells(table.column(i, rows), kept, found, bCenter == -1, bReduce == -1);
    };
    return fillTable(reading(*x), kept, cols, {bUnbiased, bFreq}, writing(*out).table(cols, cols),
                     {bCorr == -1, bUndefinedIsZero != 0}, isPositive, afterward);
}

void korvel::correlationsOfChunks(matrix<double>* const* x, int rows, int cols, matrix<double>& out,
                                  matrix<double>& means, matrix<double>& sds, matrix<double>& vars,
                                  const matrix<double>& w)
{
    const auto afterward = [&](int i, const column_moments& found) {
        storeMoments(i, found, means, sds, vars);
    };
    fillTable(reading(x), {rows, nullptr, &w}, cols, {-1, -1}, writing(out).table(cols, cols), {true, true},
              isPositive, afterward);
}

int M_CovCorrVAndMeanStDevVar(matrix<double>*& x, int rows, int cols, matrix<double>*& out,
                              matrix<double>*& means, matrix<double>*& sds, matrix<double>*& vars,
                              short int bCorr, short int* iMissing, matrix<double>* w, short int bUnbiased,
                              short int bFreq, short int bCenter, short int bReduce,
                              short int bUndefinedIsZero)
{
    out->Redim(cols, cols, 0.0);
    for (matrix<double>* const vector : {means, sds, vars}) {
        vector->Redim(cols, 1, 0.0);
    }
    return M_CovCorrAndMeanStDevVar(x, rows, cols, out, means, sds, vars, bCorr, iMissing, w, bUnbiased,
                                    bFreq, bCenter, bReduce, bUndefinedIsZero);
}
