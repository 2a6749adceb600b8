#include "linalg/products_table_vector.h"

#include "linalg/product_members.h"
#include "reference/products.h"
#include "support/sparse_tables.h"

#include <utility>

using namespace korvel::test;

namespace
{

std::vector<product_member> members()
{
    std::vector<product_member> all;
    all.push_back(
        {"BV",
         [](counts c) {
             return shapes{{c.n, c.p}, {c.p, 1}};
         },
         [](counts c) {
             return shape{c.n, 1};
         },
         [](operands& t, counts c, table& y) { EXPECT_EQ(M_ProductBV(&t[0], c.n, c.p, &t[1], &y), 0); },
         [](operands& t, counts c, table& y) {
             plainVector(c.n, c.p, y, [&](int i, int k) { return t[0].getElement(i, k) * t[1][k]; });
         },
         false, false, true});
    all.push_back({"TrBV",
                   [](counts c) {
                       return shapes{{c.n, c.p}, {c.n, 1}};
                   },
                   [](counts c) {
                       return shape{c.p, 1};
                   },
                   [](operands& t, counts c, table& y) { M_ProductTrBV(&t[0], c.n, c.p, &t[1], &y); },
                   [](operands& t, counts c, table& y) {
                       plainVector(c.p, c.n, y,
                                   [&](int j, int i) { return t[0].getElement(i, j) * t[1][i]; });
                   },
                   false, false, true});
    all.push_back({"VTrB",
                   [](counts c) {
                       return shapes{{c.n, 1}, {c.p, c.n}};
                   },
                   [](counts c) {
                       return shape{c.p, 1};
                   },
                   [](operands& t, counts c, table& y) { M_ProductVTrB(&t[0], c.n, &t[1], c.p, &y); },
                   [](operands& t, counts c, table& y) {
                       plainVector(c.p, c.n, y,
                                   [&](int j, int k) { return t[0][k] * t[1].getElement(j, k); });
                   },
                   false, false, true});
    all.push_back({"VB",
                   [](counts c) {
                       return shapes{{c.n, 1}, {c.n, c.p}};
                   },
                   [](counts c) {
                       return shape{c.p, 1};
                   },
                   [](operands& t, counts c, table& y) {
                       table* result = &y;
                       M_ProductVB(&t[0], c.n, &t[1], c.p, result);
                   },
                   [](operands& t, counts c, table& y) { plainVB(t[0], c.n, t[1], c.p, y); }, false, false,
                   true});
    return all;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(TableVector, ProductMember, ::testing::ValuesIn(members()), nameOf);
INSTANTIATE_TEST_SUITE_P(TableVector, DenseProductMember, ::testing::ValuesIn(members()), nameOf);

TEST(TableVectorProducts, VectorTimesTableStopsAtTheFirstMissingCell)
{
    matrix<double> v = vectorOf<double>({MISSING_DBL, 1.0});
    matrix<double> B = tableOf({{1, 2, 3}, {4, 5, 6}});
    matrix<double> y;
    matrix<double>* result = &y;
    M_ProductVB(&v, 2, &B, 3, result);
    EXPECT_TRUE(sameTables(y, vectorOf<double>({MISSING_DBL, MISSING_DBL, MISSING_DBL})));
    v.data[0] = 2.0;
    B.data[3] = MISSING_DBL;
    M_ProductVB(&v, 2, &B, 3, result);
    EXPECT_TRUE(sameTables(y, vectorOf<double>({6.0, MISSING_DBL, 12.0})));
}

TEST(TableVectorProducts, QuadraticFormGoesByWayOfTableTimesVector)
{
    matrix<double> B = tableOf({{2, 1}, {0, 3}});
    matrix<double> v = vectorOf<double>({1, -1});
    matrix<double> w = vectorOf<double>({4, 5});
    EXPECT_SAME_BITS(M_ProductTrVBV(&v, 2, &B), 4.0);
    EXPECT_SAME_BITS(M_ProductTrVBV(std::as_const(v), 2, std::as_const(B)), 4.0);
    EXPECT_SAME_BITS(M_ProductTrV1BV2(&w, 2, &B, &v), -11.0);
}

TEST(TableVectorProducts, FormsSumTheTableTimesTheLastVectorFirst)
{
    for (const int n : productSizes) {
        random_cells cells(static_cast<std::uint64_t>(n) + 1, odd_cells::missing_and_zeros);
        matrix<double> B = tableOfRandom(cells, {n, n});
        matrix<double> x1 = cells.values(n);
        matrix<double> x2 = cells.values(n);
        const auto form = [&](const matrix<double>& left, const matrix<double>& right) {
            matrix<double> y(n, 1, 0.0);
            plainVector(n, n, y, [&](int i, int k) { return B.getElement(i, k) * right[k]; });
            double sum = 0.0;
            for (int i = 0; i < n; ++i) {
                sum += left[i] * y[i];
            }
            return sum;
        };
        EXPECT_SAME_BITS(M_ProductTrV1BV2(&x1, n, &B, &x2), form(x1, x2));
        EXPECT_SAME_BITS(M_ProductTrVBV(&x1, n, &B), form(x1, x1));
        EXPECT_SAME_BITS(M_ProductTrVBV(std::as_const(x2), n, std::as_const(B)), form(x2, x2));
    }
}
