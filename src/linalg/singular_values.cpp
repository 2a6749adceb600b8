#include "linalg/singular_values.h"

#include "containers/views.h"
#include "linalg/golub_kahan.h"
#include "linalg/kernels/singular_values.h"
#include "linalg/product_forms.h"
#include "tables/block_copy.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>
#include <vector>

namespace
{

using korvel::column_places;
using korvel::reading;
using korvel::svd_shape;
using korvel::withCells;
using korvel::writing;

svd_shape shapeOf(int n, int p, int job, int mostSteps)
{
    const korvel::svd_job asked(job, n, p);
    return {n, p, asked.columnsOfU, asked.wantsV, mostSteps};
}

/** What is to be decomposed, and where the results go; the tables are of one form. */
template <class Table>
struct decomposition {
    Table& A;
    matrix<double>& s;
    Table& U;
    Table& V;
    const svd_shape shape;

    [[nodiscard]] auto sourceOfA() const { return writing(A).table(shape.n, shape.p); }
    [[nodiscard]] auto sourceOfU() const
    {
        return writing(U).table(shape.wantsU ? shape.n : 0, shape.columnsOfU);
    }
    [[nodiscard]] auto sourceOfV() const { return writing(V).table(orderOfV(), orderOfV()); }
    [[nodiscard]] auto sourceOfValues() const
    {
        return korvel::writeVector(s, std::min(shape.n + 1, shape.p));
    }
    [[nodiscard]] int orderOfV() const { return shape.wantsV ? shape.p : 0; }

    /** Whether all cells lie inside, and are enough to pay for what the kernel lays out first. */
    [[nodiscard]] bool suitsKernel() const
    {
        constexpr int small = 5;
        return shape.n > 0 && shape.p > 0 && std::max(shape.n, shape.p) >= small && sourceOfA().inside() &&
               sourceOfU().inside() && sourceOfV().inside() && sourceOfValues().inside();
    }
};

/** Decomposes a table in place by the plain loops, in its reduced form. */
template <class Source, class Table>
int decomposePlainly(const Source& cellsOfA, const decomposition<Table>& what)
{
    return withCells(
        [&](auto& cells, auto& left, auto& right, auto& values) {
            return korvel::golub_kahan(cells, left, right, values, what.shape).run();
        },
        cellsOfA, what.sourceOfU(), what.sourceOfV(), what.sourceOfValues());
}

/** Decomposes a table on raw memory; it receives its reduced form when it is not to be kept. */
template <class Table>
int decomposeInKernel(const decomposition<Table>& what, bool keepsTable)
{
    const svd_shape& shape = what.shape;
    const column_places<double> A(what.A, shape.n, shape.p);
    const column_places<double> U(what.U, shape.n, shape.columnsOfU);
    const column_places<double> V(what.V, shape.p, what.orderOfV());
    const auto& kernel = korvel::kernels::singularValueKernel();
    const auto scratch = std::make_unique_for_overwrite<double[]>(kernel.scratchSize(shape));
    korvel::kernels::svd_problem problem{shape};
    problem.table = A.get();
    problem.values = what.s.data;
    problem.U = U.get();
    problem.V = V.get();
    problem.keepsTable = keepsTable;
    return kernel.decompose(problem, scratch.get());
}

/** Leaves the table as it was. */
template <class Table>
int decompose(const decomposition<Table>& what)
{
    if (what.suitsKernel()) {
        return decomposeInKernel(what, true);
    }
    const int n = what.shape.n;
    const int p = what.shape.p;
    const auto A = writing(what.A);
    matrix<double> copy(std::max(n, 0), std::max(p, 0), 0.0);
    korvel::copyBlock(A, {0, 0}, writing(copy), {0, 0}, n, p);
    if (what.sourceOfA().inside()) {
        return decomposePlainly(writing(copy).table(n, p), what);
    }
    const int info = decomposePlainly(what.sourceOfA(), what);
    korvel::copyBlock(reading(copy), {0, 0}, A, {0, 0}, n, p);
    return info;
}

/** A table, or one without cells where there is none. */
template <class Table>
class table_or_none
{
public:
    explicit table_or_none(Table* table) : table_(table != nullptr ? table : &none_) {}
    table_or_none(const table_or_none&) = delete;
    table_or_none& operator=(const table_or_none&) = delete;

    [[nodiscard]] Table& get() const { return *table_; }

private:
    Table none_{};
    Table* table_;
};

template <class Table>
int decompose(Table& A, int n, int p, matrix<double>& s, Table* U, Table* V, int job, int mostSteps)
{
    const table_or_none<Table> left(U);
    const table_or_none<Table> right(V);
    return decompose(decomposition<Table>{A, s, left.get(), right.get(), shapeOf(n, p, job, mostSteps)});
}

matrix<double>& firstColumn(cST_MVect<double>& record)
{
    return record.Vectors.front().Vect;
}

std::size_t at(int k)
{
    return static_cast<std::size_t>(k);
}

/** The roots of the first `count` weights. */
std::vector<double> rootsOf(const matrix<double>& weights, int count)
{
    std::vector<double> roots(at(std::max(count, 0)));
    for (int k = 0; k < count; ++k) {
        roots[at(k)] = std::sqrt(weights[k]);
    }
    return roots;
}

/** Multiplies each row of some columns by the inverse of its root. */
template <class From, class To>
void divideRows(const From& from, const std::vector<double>& roots, int columns, const To& to)
{
    for (int j = 0; j < columns; ++j) {
        for (std::size_t i = 0; i < roots.size(); ++i) {
            const int row = static_cast<int>(i);
            to.set(row, j, 1.0 / roots[i] * from.get(row, j));
        }
    }
}

} // namespace

void M_SVDecomp(matrix<double>* A, int n, int p, matrix<double>* s, matrix<double>* U, matrix<double>* V,
                int job, int* info)
{
    *info = decompose(*A, n, p, *s, U, V, job, korvel::stepsOfDense);
}

void M_SVDecompSPV(matrix3D<matrix<double>>* A, int n, int p, matrix<double>* s, matrix3D<matrix<double>>* U,
                   matrix3D<matrix<double>>* V, int job, int* info)
{
    *info = decompose(*A, n, p, *s, U, V, job, korvel::stepsOfChunked);
}

void M_SVDecomp_Fast_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& s, cST_MVect<double>& U,
                        cST_MVect<double>& V, int job, int* info)
{
    const decomposition<cST_MVect<double>> what{A, firstColumn(s), U, V, shapeOf(n, p, job, korvel::noLimit)};
    *info = what.suitsKernel() ? decomposeInKernel(what, false) : decomposePlainly(what.sourceOfA(), what);
}

void M_GeneralizedSVDecomp_Fast_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& rowWeights,
                                   cST_MVect<double>& colWeights, cST_MVect<double>& s, cST_MVect<double>& U,
                                   cST_MVect<double>& V, int, int* info)
{
    constexpr int thinUAndV = 21;
    const std::vector<double> rowRoot = rootsOf(firstColumn(rowWeights), n);
    const std::vector<double> colRoot = rootsOf(firstColumn(colWeights), p);
    cST_MVect<double> scaled(n, p);
    cST_MVect<double> scaledLeft(n, std::min(n + 1, p));
    cST_MVect<double> scaledRight(p, p);
    const auto from = reading(A);
    const auto to = writing(scaled);
    for (int j = 0; j < p; ++j) {
        for (int i = 0; i < n; ++i) {
            to.set(i, j, rowRoot[at(i)] * from.get(i, j) * colRoot[at(j)]);
        }
    }
    M_SVDecomp_Fast_ST(scaled, n, p, s, scaledLeft, scaledRight, thinUAndV, info);
    divideRows(reading(scaledLeft), rowRoot, std::min(p, n - 1), writing(U));
    divideRows(reading(scaledRight), colRoot, p, writing(V));
}
