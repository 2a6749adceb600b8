#include "statistics/column_deviations.h"

#include "containers/transposed_view.h"
#include "statistics/column_moments.h"

namespace
{

using korvel::column_moments;
using korvel::denominator_choice;
using korvel::forEachColumnMoments;
using korvel::reading;
using korvel::storeChecked;
using korvel::weighted_rows;

template <class View>
void meansAndDeviations(const View& x, const weighted_rows& rows, int cols, denominator_choice how,
                        matrix<double>& means, matrix<double>& sds)
{
    forEachColumnMoments(x, rows, cols, how, [&](int j, const column_moments& found) {
        storeChecked(means, j, found.mean);
        storeChecked(sds, j, found.deviation());
    });
}

template <class View>
void meansDeviationsAndVariances(const View& x, const weighted_rows& rows, int cols, denominator_choice how,
                                 matrix<double>& means, matrix<double>& sds, matrix<double>& vars)
{
    forEachColumnMoments(x, rows, cols, how, [&](int j, const column_moments& found) {
        storeChecked(means, j, found.mean);
        storeChecked(sds, j, found.deviation());
        storeChecked(vars, j, found.variance);
    });
}

} // namespace

void M_MeanStDev(matrix<double>* x, int rows, int cols, matrix<double>* means, matrix<double>* sds,
                 short int* iMissing, matrix<double>* w, short int bUnbiased, short int bFreq, short int flag)
{
    const int kept = flag == 0 || flag == -1 ? rows : 0;
    meansAndDeviations(reading(*x), {kept, flag == 0 ? iMissing : nullptr, w}, cols, {bUnbiased, bFreq},
                       *means, *sds);
}

void M_MeanStDevVar(matrix<double>* x, int rows, int cols, matrix<double>* means, matrix<double>* sds,
                    matrix<double>* vars, short int* iMissing, matrix<double>* w, short int bUnbiased,
                    short int bFreq)
{
    meansDeviationsAndVariances(reading(*x), {rows, iMissing, w}, cols, {bUnbiased, bFreq}, *means, *sds,
                                *vars);
}

void M_MeanStDevVarSPV(matrix<double>** x, int rows, int cols, matrix<double>* means, matrix<double>* sds,
                       matrix<double>* vars, short int* iMissing, matrix<double>* w, short int bUnbiased,
                       short int bFreq)
{
    meansDeviationsAndVariances(reading(x), {rows, iMissing, w}, cols, {bUnbiased, bFreq}, *means, *sds,
                                *vars);
}

void M_MeanStDevByRow(matrix<double>* x, int rows, int cols, matrix<double>*& means, matrix<double>*& sds,
                      matrix<double>* w, short int bUnbiased, short int bFreq)
{
    means->Redim(rows, 1, 0.0);
    sds->Redim(rows, 1, 0.0);
    meansAndDeviations(korvel::transposed_view(*x), {cols, nullptr, w}, rows, {bUnbiased, bFreq}, *means,
                       *sds);
}

void M_MeanStDevVarOneInMat(matrix<double>* x, int rows, int cols, double* mean, double* sd, double* var,
                            matrix<double>* w, short int bUnbiased, short int bFreq)
{
    korvel::running_variance state;
    for (int j = 0; j < cols; ++j) {
        korvel::addColumn(state, reading(*x).column(j, rows), weighted_rows{rows, nullptr, w});
    }
    *mean = state.mean;
    *var = state.variance(bUnbiased, bFreq);
    *sd = korvel::deviationFrom(*var);
}
