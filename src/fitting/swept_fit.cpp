#include "fitting/swept_fit.h"

#include "containers/cells.h"
#include "linalg/product_forms.h"
#include "statistics/chunk_correlations.h"
#include "statistics/column_deviations.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <new>
#include <vector>

namespace korvel
{

namespace
{

/** The sums of products x·y·w of all pairs of columns, over the rows whose weight is not 0: the upper half.
 */
class product_sums
{
public:
    product_sums(const term_columns& columns, const double* weights)
        : columns_(columns), order_(columns.size()),
          sums_(static_cast<std::size_t>(order_) * static_cast<std::size_t>(order_))
    {
        const bool areOnes =
            std::all_of(weights, weights + columns.rows(), [](double w) { return w == 1.0; });
        areOnes ? multiplyColumns() : addWeighted(weights);
    }

    /** Of columns i and j, counted from 0, i not above j. */
    [[nodiscard]] double at(int i, int j) const { return sums_[place(i, j)]; }

private:
    [[nodiscard]] std::size_t place(int i, int j) const
    {
        return static_cast<std::size_t>(i) + static_cast<std::size_t>(j) * static_cast<std::size_t>(order_);
    }

    /** A weight of 1 changes no product, so that the sums are those of a product of tables. */
    void multiplyColumns()
    {
        std::vector<const double*> list;
        for (int j = 0; j < order_; ++j) {
            list.push_back(columns_[j]);
        }
        kernels::product form{order_, order_, columns_.rows()};
        form.left.columns.list = list.data();
        form.left.sumsDownColumns = true;
        form.right = form.left;
        form.result = {sums_.data(), order_};
        form.kept = kernels::part::upper;
        multiply(form);
    }

    static constexpr int width = 4;

    /** Rows are taken some hundreds at a time, which stay in the cache while all pairs of columns walk them,
     * and four sums side by side. */
    void addWeighted(const double* weights)
    {
        constexpr int atOnce = 256;
        for (int first = 0; first < columns_.rows(); first += atOnce) {
            const int last = std::min(first + atOnce, columns_.rows());
            for (int i = 0; i < order_; ++i) {
                for (int j = i; j < order_; j += width) {
                    addRows(i, j, weights, first, last);
                }
            }
        }
    }

    void addRows(int i, int j, const double* weights, int first, int last)
    {
        std::array<double, width> sums{};
        std::array<const double*, width> right{};
        const int count = std::min(width, order_ - j);
        for (int l = 0; l < width; ++l) {
            const int column = j + std::min(l, count - 1);
            right[static_cast<std::size_t>(l)] = columns_[column];
            sums[static_cast<std::size_t>(l)] = at(i, column);
        }
        const double* const left = columns_[i];
        for (int r = first; r < last; ++r) {
            const double w = weights[r];
            if (w != 0.0) {
                for (std::size_t l = 0; l < width; ++l) {
                    sums[l] += left[r] * right[l][r] * w;
                }
            }
        }
        for (int l = 0; l < count; ++l) {
            sums_[place(i, j + l)] = sums[static_cast<std::size_t>(l)];
        }
    }

    const term_columns& columns_;
    const int order_;
    std::vector<double> sums_;
};

/** Adds the term of one column to the rows of a stretch, and nothing for a missing cell. */
void addTerm(double coefficient, const double* column, int count, double* sums)
{
    if (std::find(column, column + count, MISSING_DBL) == column + count) {
        for (int i = 0; i < count; ++i) {
            sums[i] += coefficient * column[i];
        }
        return;
    }
    for (int i = 0; i < count; ++i) {
        if (column[i] != MISSING_DBL) {
            sums[i] += coefficient * column[i];
        }
    }
}

/** The order of the table of so many terms. */
int orderOf(int terms)
{
    constexpr int most = 65535; // of a packed table that a `matrix` can hold
    if (terms >= most) {
        throw std::bad_alloc();
    }
    return terms + 1;
}

} // namespace

swept_fit::swept_fit(int termCount)
    : terms(termCount), response(orderOf(terms)), entered(terms), packed(packedElements(response), 1, 0.0),
      means(response, 1, 0.0), deviations(response, 1, 0.0)
{
}

void swept_fit::setCorrelations(matrix<double>* const* columns, int rows, int first, int count,
                                const matrix<double>& weights)
{
    matrix<double> correlations(count, count, 0.0);
    matrix<double> variances(count, 1, 0.0);
    matrix<double> ownMeans(count, 1, means.data + first - 1, true);
    matrix<double> ownDeviations(count, 1, deviations.data + first - 1, true);
    correlationsOfChunks(columns, rows, count, correlations, ownMeans, ownDeviations, variances, weights);
    for (int i = 0; i < count; ++i) {
        for (int j = 0; j <= i; ++j) {
            set(first + i, first + j, correlations.getElement(i, j));
        }
    }
}

double swept_fit::intercept(const matrix<double>& coefficients, matrix<double>& standardErrors) const
{
    double found = mean(response);
    for (int k = 1; k <= terms; ++k) {
        if (entered > 0) {
            found -= mean(k) * coefficients[k - 1];
        }
        const double part = mean(k) * standardErrors[k - 1];
        storeChecked(standardErrors, terms, standardErrors[terms] + part * part);
    }
    return found;
}

void fillWithoutConstant(term_columns& columns, matrix<double>& weights, double sumOfWeights,
                         deviations_test isDefined, swept_fit& fit)
{
    matrix<double> variances(fit.response, 1, 0.0);
    M_MeanStDevVarSPV(columns.chunks().data(), columns.rows(), fit.response, &fit.means, &fit.deviations,
                      &variances, nullptr, &weights, -1, -1);
    const product_sums sums(columns, weights.data);
    for (int i = 1; i <= fit.response; ++i) {
        for (int j = 1; j <= i; ++j) {
            const double si = fit.deviation(i);
            const double sj = fit.deviation(j);
            fit.set(i, j, isDefined(si, sj) ? sums.at(j - 1, i - 1) / (sumOfWeights - 1.0) / (si * sj) : 0.0);
        }
    }
}

void writeFitted(const term_columns& columns, int terms, const matrix<double>& coefficients,
                 matrix<double>& fitted)
{
    constexpr int atOnce = 512;
    std::array<double, atOnce> sums;
    withCells(
        [&](auto& to) {
            for (int first = 0; first < columns.rows(); first += atOnce) {
                const int count = std::min(atOnce, columns.rows() - first);
                std::fill_n(sums.begin(), count, 0.0);
                for (int k = 0; k < terms; ++k) {
                    addTerm(coefficients[k], columns[k] + first, count, sums.data());
                }
                for (int i = 0; i < count; ++i) {
                    to.set(first + i, coefficients[terms] + sums[static_cast<std::size_t>(i)]);
                }
            }
        },
        writeVector(fitted, columns.rows()));
}

} // namespace korvel
