#include "linalg/reductions.h"

#include "reference/cell_products.h"
#include "support/random_tables.h"
#include "support/sparse_tables.h"

#include <gtest/gtest.h>

using namespace korvel;
using namespace korvel::test;

TEST(Reductions, TracesOfSquareTables)
{
    forRandomTables([](random_cells& cells, const table_sizes& s) {
        const int n = s.n;
        auto a = randomTable(cells, n - s.rowsShort, n);
        auto b = randomTable(cells, n, n);
        double trace = 0.0;
        double traceSq = 0.0;
        for (int i = 0; i < n; ++i) {
            trace += a.getElement(i, i);
            traceSq += a.getElement(i, i) * a.getElement(i, i);
        }
        EXPECT_SAME_BITS(M_Trace(&a, n), trace);
        EXPECT_SAME_BITS(M_TraceSq(&a, n), traceSq);
        EXPECT_SAME_BITS(M_TraceProductAA(&a, n), reference::sumRows(n, n, [&](int i, int j) {
                             return a.getElement(i, j) * a.getElement(i, j);
                         }));
        EXPECT_SAME_BITS(M_TraceProductAB(&a, n, &b), reference::sumRows(n, n, [&](int i, int j) {
                             return a.getElement(i, j) * b.getElement(i, j);
                         }));
    });
}

TEST(Reductions, SparseTrace)
{
    auto dense = tableOf({{1.0, 5.0}, {7.0, 2.5}});
    matrixSparse a(&dense);
    EXPECT_SAME_BITS(M_Trace(&a, 2), 3.5);
    EXPECT_SAME_BITS(M_Trace(&a, 0), 0.0);
    EXPECT_SAME_BITS(M_Trace(&a, 4), 2.5) << "row 2 is past the end and reads 0, row 3 reads -1";
}

TEST(Reductions, FrobeniusNormIsATraceWithoutARoot)
{
    forRandomTables([](random_cells& cells, const table_sizes& s) {
        auto a = randomTable(cells, s.n - s.rowsShort, s.p);
        auto b = randomTable(cells, s.n, s.p);
        double trace = 0.0;
        for (int j = 0; j < s.p; ++j) {
            double product = 0.0;
            for (int r = 0; r < s.n; ++r) {
                product += a.getElement(r, j) * b.getElement(r, j);
            }
            trace += product;
        }
        EXPECT_SAME_BITS(M_FrobeniusNorm(&a, s.n, s.p, &b), trace);
    });
    matrix<double> three(1, 1, 3.0);
    EXPECT_SAME_BITS(M_FrobeniusNorm(&three, 1, 1, &three), 9.0);
}

TEST(Reductions, RowSumNorms)
{
    forRandomTables([](random_cells& cells, const table_sizes& s) {
        auto a = randomTable(cells, s.n - s.rowsShort, s.p);
        const double expected =
            reference::rowSumNorm(s.n, s.p, [&](int i, int j) { return a.getElement(i, j); });
        EXPECT_SAME_BITS(M_RowSumNorm(&a, s.n, s.p), expected);

        auto chunks = chunksOf<matrix<double>>(a);
        std::vector<matrix<double>*> list;
        for (auto& chunk : chunks.chunks) {
            list.push_back(&chunk);
        }
        EXPECT_SAME_BITS(M_RowSumNormSPV(list.data(), s.n, s.p),
                         reference::rowSumNorm(s.n, s.p, [&](int i, int j) {
                             return std::as_const(*list[static_cast<std::size_t>(j)])[i];
                         }));
    });
}

TEST(Reductions, RowSumNormOfATriangle)
{
    forRandomTables([](random_cells& cells, const table_sizes& s) {
        matrix3D<matrix<double>> triangle;
        for (int j = 0; j < s.n; ++j) {
            triangle.chunks.push_back(cells.values(s.n - j));
        }
        const auto cell = [&](int i, int j) {
            return i >= j ? triangle.getElement(j, i - j) : triangle.getElement(i, j - i);
        };
        EXPECT_SAME_BITS(M_RowSumNormSPV_T(&triangle, s.n, s.n), reference::rowSumNorm(s.n, s.n, cell));
    });
}

TEST(Reductions, RowSumNormOfABlockOfATriangle)
{
    // The symmetric table {{1, 2, 4}, {2, 8, 16}, {4, 16, 32}}, of which two columns are there.
    matrix3D<matrix<double>> triangle;
    triangle.chunks.push_back(vectorOf<double>({1, 2, 4}));
    triangle.chunks.push_back(vectorOf<double>({8, 16}));
    EXPECT_SAME_BITS(M_RowSumNormSPV_T(&triangle, 3, 2), 20.0);
    EXPECT_SAME_BITS(M_RowSumNormSPV_T(&triangle, 2, 3), 26.0);
    EXPECT_SAME_BITS(M_RowSumNormSPV_T(&triangle, 2, 2), 10.0);
    std::vector<double> block{1, 2, 100};
    matrix3D<matrix<double>> shortColumn;
    shortColumn.chunks.emplace_back(2, 1, block.data(), true);
    shortColumn.chunks.push_back(vectorOf<double>({8, 16}));
    EXPECT_SAME_BITS(M_RowSumNormSPV_T(&shortColumn, 2, 3), 26.0) << "column 0 has no third element";
    EXPECT_SAME_BITS(M_RowSumNormSPV_T(&shortColumn, 1, 3), 4.0) << "its spare slot reads -1";
    triangle.chunks[1].data[1] = MISSING_DBL;
    EXPECT_SAME_BITS(M_RowSumNormSPV_T(&triangle, 2, 3), 10.0);
    triangle.chunks[0].oobValue = -50.0;
    EXPECT_SAME_BITS(M_RowSumNormSPV_T(&triangle, 4, 2), 51.0) << "row 3 lies past the end of both";
    EXPECT_SAME_BITS(M_RowSumNormSPV_T(&triangle, 0, 2), 0.0);
}

TEST(Reductions, RowSumNormLeavesOutWhatIsNotAboveTheMissingValue)
{
    auto a = tableOf({{1.0, MISSING_DBL, -2.0}, {notANumber, -infinite, 2.5}, {belowSentinel, 0.0, 1.0}});
    EXPECT_SAME_BITS(M_RowSumNorm(&a, 3, 3), 3.0);
    EXPECT_SAME_BITS(M_RowSumNorm(&a, 0, 3), 0.0);
    EXPECT_SAME_BITS(M_RowSumNorm(&a, 3, 0), 0.0);
}
