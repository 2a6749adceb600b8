#include "statistics/covariance.h"

#include "reference/covariance.h"
#include "support/bits.h"
#include "support/near_tables.h"
#include "support/random_tables.h"
#include "support/special_values.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;
using korvel::reference::covariance_flags;
using korvel::reference::covariance_table;

namespace
{

covariance_flags randomFlags(random_cells& cells)
{
    const auto flag = [&] { return static_cast<short int>(cells.integer(-1, 1)); };
    return {flag(), {flag(), flag()}, flag(), flag(), flag()};
}

/** What stands in the stored half of a triangle. */
void expectTriangle(matrix3D<matrix<double>>& triangle, covariance_table& expected)
{
    for (int j = 0; j < expected.cols; ++j) {
        for (int i = j; i < expected.cols; ++i) {
            ASSERT_TRUE(sameBits(triangle.getElement(j, i - j), expected.at(i, j))) << i << ", " << j;
        }
    }
}

template <class At>
void expectTable(At at, covariance_table& expected)
{
    for (int j = 0; j < expected.cols; ++j) {
        for (int i = 0; i < expected.cols; ++i) {
            ASSERT_TRUE(sameBits(at(i, j), expected.at(i, j))) << i << ", " << j;
        }
    }
}

matrix3D<matrix<double>> triangleOf(int n)
{
    matrix3D<matrix<double>> made(n, n, n, 7.0);
    for (int j = 0; j < n; ++j) {
        made.chunks[static_cast<std::size_t>(j)].Redim(n - j, 1, 7.0);
    }
    return made;
}

/** A random table, constant or empty in some columns. */
matrix<double> randomColumns(random_cells& cells, int rows, int cols)
{
    matrix<double> x = randomTable(cells, rows, cols);
    for (int j = 0; j < cols; ++j) {
        const int kind = cells.integer(0, 7);
        if (kind < 2) {
            std::fill_n(x.data + std::ptrdiff_t{rows} * j, rows, kind == 0 ? 3.25 : MISSING_DBL);
        }
    }
    x.oobValue = cells.value();
    return x;
}

} // namespace

TEST(CovarianceTwins, EqualToThePlainLoops)
{
    forRandomTables([](random_cells& cells, table_sizes sizes) {
        const int rows = sizes.n;
        const int cols = std::min(sizes.p, 24);
        matrix<double> x = randomColumns(cells, rows - sizes.rowsShort, std::max(cols - sizes.colsShort, 0));
        auto flags = cells.flags(rows);
        matrix<double> weights = cells.weights(rows);
        matrix<double>* w = cells.integer(0, 3) == 0 ? nullptr : &weights;
        short int* kept = cells.integer(0, 3) == 0 ? nullptr : flags.data();
        const covariance_flags how = randomFlags(cells);
        const auto& [corr, divisor, center, reduce, zero] = how;
        const matrix<double>& constant = x;
        auto expected = korvel::reference::covCorr([&](int r, int j) { return constant.getElement(r, j); },
                                                   rows, cols, kept, w, how);

        auto* from = &x;
        matrix<double> out;
        auto* toOut = &out;
        M_CovCorr(from, rows, cols, toOut, corr, kept, w, divisor.unbiased, divisor.freq, zero);
        expectTable([&](int i, int j) { return out.getElement(i, j); }, expected);

        matrix3D<matrix<double>> columns(cols, cols, cols, 7.0);
        std::vector<matrix<double>*> pointers;
        for (auto& chunk : columns.chunks) {
            pointers.push_back(&chunk);
        }
        M_CovCorrSPV(from, rows, cols, pointers.data(), corr, kept, w, divisor.unbiased, divisor.freq, zero);
        expectTable([&](int i, int j) { return columns.getElement(j, i); }, expected);

        auto triangle = triangleOf(cols);
        M_CovCorrSPV_T(from, rows, cols, &triangle, corr, kept, w, divisor.unbiased, divisor.freq, zero);
        expectTriangle(triangle, expected);

        matrix<double> twin = twinOf(x);
        auto inPlace = korvel::reference::covCorrInPlace(twin, rows, cols, kept, w, how);
        matrix<double> means(cols, 1, 0.0);
        matrix<double> sds(cols, 1, 0.0);
        matrix<double> vars(cols, 1, 0.0);
        M_CovCorrAndMeanStDevVar(from, rows, cols, &out, &means, &sds, &vars, corr, kept, w, divisor.unbiased,
                                 divisor.freq, center, reduce, zero);
        expectTable([&](int i, int j) { return out.getElement(i, j); }, inPlace);
        expectSame(x, twin);
        for (int j = 0; j < cols; ++j) {
            const double var = inPlace.var(j);
            ASSERT_TRUE(sameBits(means.data[j], inPlace.mean(j)));
            ASSERT_TRUE(sameBits(vars.data[j], var));
            ASSERT_TRUE(sameBits(sds.data[j], var > 0.0 ? std::sqrt(var) : var));
        }
    });
}

TEST(CovarianceTwins, ChunksAndRecordsAsTheDenseTable)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        auto x = chunksOf<matrix<double>>(randomColumns(cells, rows, cols));
        const int read = std::max(rows + cells.integer(-1, 1), 0);
        auto flags = cells.flags(read);
        auto w = cells.weights(read);
        const covariance_flags how = randomFlags(cells);
        auto expected = korvel::reference::covCorr([&](int r, int j) { return x.getElement(j, r); }, read,
                                                   cols, flags.data(), &w, how);
        matrix<double> out(cols, cols, 7.0);
        EXPECT_EQ(M_CovCorr3(&x, read, cols, &out, how.corr, flags.data(), &w, how.how.unbiased, how.how.freq,
                             how.undefinedIsZero),
                  0);
        expectTable([&](int i, int j) { return out.getElement(i, j); }, expected);
        matrix3D<matrix<double>> columns(cols, cols, cols, 7.0);
        EXPECT_EQ(M_CovCorr3SPV(&x, read, cols, &columns, how.corr, flags.data(), &w, how.how.unbiased,
                                how.how.freq, how.undefinedIsZero),
                  0);
        expectTable([&](int i, int j) { return columns.getElement(j, i); }, expected);
    });
}
