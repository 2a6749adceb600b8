#include "statistics/correlation_repair.h"

#include "containers/map_cells.h"
#include "linalg/cone_projection.h"
#include "linalg/projections.h"
#include "linalg/reductions.h"
#include "statistics/correlation_conversion.h"
#include "statistics/weighted_sums.h"
#include "tables/block_copy.h"

#include <cmath>
#include <cstdint>

namespace
{

using korvel::reading;
using korvel::writing;

constexpr int success = 0;
constexpr int missingInput = -1;
constexpr double tolerance = 1e-6;
constexpr auto isPresent = [](auto x) { return x != MISSING_DBL; };

bool isFinite(const matrix<double>& table)
{
    for (std::uint64_t k = 0; k < table.nbElem; ++k) {
        if (!std::isfinite(table.data[k])) {
            return false;
        }
    }
    return true;
}

matrix<double> diagonalOfOnes(int n)
{
    matrix<double> made(n, n, 0.0);
    for (int i = 0; i < n; ++i) {
        made.setElement(i, i, 1.0);
    }
    return made;
}

/** Symmetric, with a diagonal of ones and no cell above 1 in magnitude. */
bool looksLikeCorrelations(const matrix<double>& table)
{
    for (int j = 0; j < table.nbcols; ++j) {
        for (int i = j; i < table.nbrows; ++i) {
            const double cell = table.getElement(i, j);
            if (cell != (i == j ? 1.0 : table.getElement(j, i)) || std::fabs(cell) > 1.0) {
                return false;
            }
        }
    }
    return true;
}

/** The steps of the search, on a dense table. */
class nearest_correlations
{
public:
    /** Whether `table` is left as it is. Otherwise it becomes a table of which only the diagonal is to be set
     * to 1. */
    bool search(matrix<double>& table)
    {
        const int n = table.nbrows;
        matrix<double> corrected(n, n, 0.0);
        matrix<double> correction(n, n, 0.0);
        matrix<double> difference(n, n, 0.0);
        matrix<double> projected(n, n, 0.0);
        const bool mayStay = looksLikeCorrelations(table);
        double change = 0.0;
        for (bool first = true; first || change > tolerance; first = false) {
            M_Sums1As2B(&table, n, n, &correction, 1.0, -1.0, &corrected);
            project(corrected, projected);
            if (first && mayStay && cone_.wasInside()) {
                return true;
            }
            subtract(projected, corrected, correction);
            M_UProject(&projected, n, &table);
            subtract(table, projected, difference);
            change = M_RowSumNorm(&difference, n, n) / M_RowSumNorm(&table, n, n);
        }
        return false;
    }

private:
    /** `M_SProject` with weights of 1, by which no finite number is changed, but for the sign of a zero. */
    void project(matrix<double>& table, matrix<double>& projected)
    {
        const int n = table.nbrows;
        if (isFinite(table)) {
            korvel::mapCells(
                n, n, [](double x) { return x + 0.0; }, writing(table), reading(table));
            cone_.form(table, n, projected);
            if (isFinite(projected)) {
                return;
            }
        }
        matrix<double> weights = diagonalOfOnes(n);
        M_SProject(&table, n, &weights, &projected);
    }

    static void subtract(const matrix<double>& a, const matrix<double>& b, matrix<double>& out)
    {
        korvel::mapCells(
            a.nbrows, a.nbcols, [](double x, double y) { return x - y; }, writing(out), reading(a),
            reading(b));
    }

    korvel::cone_projection cone_;
};

/**
 * Repairs a table in any form.
 *
 * @param load  fills a dense table with its cells
 * @param store takes the cells of a dense table, with 1.0 on the diagonal
 */
template <class Load, class Store>
int repair(int n, bool isComplete, Load load, Store store)
{
    if (!isComplete) {
        return missingInput;
    }
    if (n > 0) {
        matrix<double> table(n, n, 0.0);
        load(table);
        if (!nearest_correlations().search(table)) {
            store(table);
        }
    }
    return success;
}

/** Fills a dense table with the cells of a view. */
template <class View>
auto loadFrom(const View& view, int n)
{
    return [=](matrix<double>& table) { korvel::copyBlock(view, {}, writing(table), {}, n, n); };
}

} // namespace

int M_CorrMatFromSymMat(matrix<double>* x, int n)
{
    return repair(n, korvel::allCells(n, n, isPresent, reading(*x)), loadFrom(reading(*x), n),
                  [=](matrix<double>& table) { M_UProject(&table, n, x); });
}

int M_CorrMatFromSymMatSPV(matrix<double>** x, int n)
{
    return repair(n, korvel::allCells(n, n, isPresent, reading(x)), loadFrom(reading(x), n),
                  [=](matrix<double>& table) { M_UProjectSPV(&table, n, x); });
}

int M_CorrMatFromSymMatSPV_T(matrix3D<matrix<double>>* x, int n)
{
    const auto columns = reading(*x);
    bool isComplete = true;
    for (int j = 0; isComplete && j < n; ++j) {
        isComplete = korvel::withCells([=](auto cells) { return korvel::allOf(n - j, isPresent, cells); },
                                       columns.column(j, n - j));
    }
    const auto load = [=](matrix<double>& table) {
        korvel::withCells(
            [=](const auto& from, auto& to) {
                for (int j = 0; j < n; ++j) {
                    for (int i = 0; i < n; ++i) {
                        to.set(i, j, from.get(i, j));
                    }
                }
            },
            columns.triangle(n), writing(table).table(n, n));
    };
    return repair(n, isComplete, load, [=](matrix<double>& table) { M_UProjectSPV_T(&table, n, x); });
}

int M_CovMatFromSymMat(matrix<double>* x, int n)
{
    if (!korvel::allCells(n, n, isPresent, reading(*x))) {
        return missingInput;
    }
    if (n < 1) {
        return success;
    }
    matrix<double> variances(n, 1, 0.0);
    for (int i = 0; i < n; ++i) {
        variances[i] = x->getElement(i, i);
    }
    matrix<double> correlations(n, n, 0.0);
    M_CorrMatFromCovMat(x, n, &correlations, -1);
    M_CorrMatFromSymMat(&correlations, n);
    M_CovMatFromCorrMat(&correlations, n, &variances, x);
    return success;
}
