#include "statistics/centering.h"

#include "statistics/column_moments.h"
#include "statistics/kept_cells.h"

namespace
{

using korvel::changing;
using korvel::column_moments;
using korvel::denominator_choice;
using korvel::no_flags;
using korvel::resizeResult;
using korvel::storeChecked;

constexpr short int yes = -1;

constexpr auto centred = [](const column_moments& column, auto change) {
    change([mean = column.mean](double x) { return x - mean; });
};

constexpr auto reduced = [](const column_moments& column, auto change) {
    change([sd = column.deviation()](double x) { return x / sd; });
};

constexpr auto standardized = [](const column_moments& column, auto change) {
    const double sd = column.deviation();
    if (sd > 0.0) {
        change([mean = column.mean, sd](double x) { return (x - mean) / sd; });
    } else {
        change([](double x) { return x; });
    }
};

/**
 * Changes the columns of a table by their own means and deviations.
 *
 * @param x      a `changed_table`
 * @param w      `rows` weights, or null
 * @param change one of those above
 * @param means  receives the means, or null
 * @param sds    receives the deviations, or null
 */
template <class Changed, class Change>
void changeColumns(const Changed& x, int rows, int cols, const matrix<double>* w, denominator_choice how,
                   Change change, matrix<double>* means = nullptr, matrix<double>* sds = nullptr)
{
    for (matrix<double>* statistics : {means, sds}) {
        if (statistics != nullptr && cols > 0) {
            statistics->Redim(cols, 1);
        }
    }
    korvel::forEachColumnMoments(x.source, {rows, nullptr, w}, cols, how,
                                 [&](int j, const column_moments& found) {
                                     change(found, [&](auto cell) { x.change(j, rows, no_flags{}, cell); });
                                     if (means != nullptr) {
                                         storeChecked(*means, j, found.mean);
                                         storeChecked(*sds, j, found.deviation());
                                     }
                                 });
}

} // namespace

void M_Standardize2(matrix<double>* x, int rows, int cols, short int bUnbiased)
{
    changeColumns(changing(*x), rows, cols, nullptr, {bUnbiased, yes}, standardized);
}

void M_Standardize2SPV(matrix<double>** x, int rows, int cols, short int bUnbiased)
{
    changeColumns(changing(x), rows, cols, nullptr, {bUnbiased, yes}, standardized);
}

void M_Standardize3(matrix<double>*& x, int rows, int cols, matrix<double>*& means, matrix<double>*& sds,
                    short int bUnbiased, short int bFreq)
{
    changeColumns(changing(*x), rows, cols, nullptr, {bUnbiased, bFreq}, standardized, means, sds);
}

void M_StandardizeW(matrix<double>* x, int rows, int cols, matrix<double>* w, short int bUnbiased,
                    short int bFreq, matrix<double>* out)
{
    changeColumns(changing(*x, out), rows, cols, w, {bUnbiased, bFreq}, standardized);
}

void M_StandardizeW2(matrix<double>*& x, int rows, int cols, matrix<double>* w, short int bUnbiased,
                     short int bFreq)
{
    changeColumns(changing(*x), rows, cols, w, {bUnbiased, bFreq}, standardized);
}

void M_StandardizeW3(matrix<double>*& x, int rows, int cols, matrix<double>* w, matrix<double>*& means,
                     matrix<double>*& sds, short int bUnbiased, short int bFreq)
{
    changeColumns(changing(*x), rows, cols, w, {bUnbiased, bFreq}, standardized, means, sds);
}

void M_StandardizeW3SPV(matrix<double>** x, int rows, int cols, matrix<double>* w, matrix<double>*& means,
                        matrix<double>*& sds, short int bUnbiased, short int bFreq)
{
    changeColumns(changing(x), rows, cols, w, {bUnbiased, bFreq}, standardized, means, sds);
}

void M_Center(matrix<double>* x, int rows, int cols, matrix<double>* out)
{
    changeColumns(changing(*x, out), rows, cols, nullptr, {}, centred);
}

void M_CenterW(matrix<double>* x, int rows, int cols, matrix<double>* w, matrix<double>* out)
{
    changeColumns(changing(*x, out), rows, cols, w, {}, centred);
}

void M_Center2(matrix<double>*& x, int rows, int cols)
{
    changeColumns(changing(*x), rows, cols, nullptr, {}, centred);
}

void M_CenterW2(matrix<double>*& x, int rows, int cols, matrix<double>* w)
{
    changeColumns(changing(*x), rows, cols, w, {}, centred);
}

void M_CenterW2SPV(matrix<double>** x, int rows, int cols, matrix<double>* w)
{
    changeColumns(changing(x), rows, cols, w, {}, centred);
}

void M_Reduce(matrix<double>* x, int rows, int cols, matrix<double>*& out, short int bUnbiased,
              short int bFreq)
{
    M_ReduceW(x, rows, cols, nullptr, out, bUnbiased, bFreq);
}

void M_ReduceW(matrix<double>* x, int rows, int cols, matrix<double>* w, matrix<double>*& out,
               short int bUnbiased, short int bFreq)
{
    resizeResult(out, x, rows, cols);
    changeColumns(changing(*x, out), rows, cols, w, {bUnbiased, bFreq}, reduced);
}

void M_Reduce2(matrix<double>*& x, int rows, int cols, short int bUnbiased)
{
    changeColumns(changing(*x), rows, cols, nullptr, {bUnbiased, yes}, reduced);
}

void M_ReduceW2(matrix<double>*& x, int rows, int cols, matrix<double>* w, short int bUnbiased,
                short int bFreq)
{
    changeColumns(changing(*x), rows, cols, w, {bUnbiased, bFreq}, reduced);
}
