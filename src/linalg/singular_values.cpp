#include "linalg/singular_values.h"

#include "containers/views.h"
#include "linalg/golub_kahan.h"
#include "tables/block_copy.h"

#include <cmath>

namespace
{

using korvel::reading;
using korvel::svd_shape;
using korvel::withCells;
using korvel::writing;

svd_shape shapeOf(int n, int p, int job, int mostSteps)
{
    const korvel::svd_job asked(job, n, p);
    return {n, p, asked.columnsOfU, asked.wantsV, mostSteps};
}

/** Decomposes a table in place, in its reduced form. */
template <class A, class U, class V>
int decomposeInPlace(const A& a, matrix<double>& s, const U& u, const V& v, const svd_shape& shape)
{
    const int orderOfV = shape.wantsV ? shape.p : 0;
    return withCells(
        [&](auto& cells, auto& left, auto& right, auto& values) {
            return korvel::golub_kahan(cells, left, right, values, shape).run();
        },
        a.table(shape.n, shape.p), u.table(shape.columnsOfU > 0 ? shape.n : 0, shape.columnsOfU),
        v.table(orderOfV, orderOfV), korvel::writeVector(s, std::min(shape.n + 1, shape.p)));
}

/** The same with the table as it was before. */
template <class A, class U, class V>
int decompose(const A& a, matrix<double>& s, const U& u, const V& v, const svd_shape& shape)
{
    matrix<double> copy(std::max(shape.n, 0), std::max(shape.p, 0), 0.0);
    korvel::copyBlock(a, {0, 0}, writing(copy), {0, 0}, shape.n, shape.p);
    if (a.table(shape.n, shape.p).inside()) {
        return decomposeInPlace(writing(copy), s, u, v, shape);
    }
    const int info = decomposeInPlace(a, s, u, v, shape);
    korvel::copyBlock(reading(copy), {0, 0}, a, {0, 0}, shape.n, shape.p);
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
    return decompose(writing(A), s, writing(left.get()), writing(right.get()), shapeOf(n, p, job, mostSteps));
}

matrix<double>& firstColumn(cST_MVect<double>& record)
{
    return record.Vectors.front().Vect;
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
    *info = decomposeInPlace(writing(A), firstColumn(s), writing(U), writing(V),
                             shapeOf(n, p, job, korvel::noLimit));
}

void M_GeneralizedSVDecomp_Fast_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& rowWeights,
                                   cST_MVect<double>& colWeights, cST_MVect<double>& s, cST_MVect<double>& U,
                                   cST_MVect<double>& V, int, int* info)
{
    constexpr int thinUAndV = 21;
    const auto from = reading(A);
    const auto left = writing(U);
    const auto right = writing(V);
    const matrix<double>& rowWeight = firstColumn(rowWeights);
    const matrix<double>& colWeight = firstColumn(colWeights);
    cST_MVect<double> scaled(n, p);
    cST_MVect<double> scaledLeft(n, std::min(n + 1, p));
    cST_MVect<double> scaledRight(p, p);
    for (int j = 0; j < p; ++j) {
        for (int i = 0; i < n; ++i) {
            writing(scaled).set(i, j, std::sqrt(rowWeight[i]) * from.get(i, j) * std::sqrt(colWeight[j]));
        }
    }
    M_SVDecomp_Fast_ST(scaled, n, p, s, scaledLeft, scaledRight, thinUAndV, info);
    for (int j = 0; j < std::min(p, n - 1); ++j) {
        for (int i = 0; i < n; ++i) {
            left.set(i, j, 1.0 / std::sqrt(rowWeight[i]) * reading(scaledLeft).get(i, j));
        }
    }
    for (int j = 0; j < p; ++j) {
        for (int i = 0; i < p; ++i) {
            right.set(i, j, 1.0 / std::sqrt(colWeight[i]) * reading(scaledRight).get(i, j));
        }
    }
}
