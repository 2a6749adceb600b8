// The sums of columns and of pairs of columns, for each instruction set, beside plain loops: counts around
// each block of rows, group, strip and register; missing cells nowhere, at the end or everywhere.

#include "linalg/kernels/product.h"
#include "reference/column_moments.h"
#include "reference/covariance.h"
#include "statistics/pair_walk.h"
#include "support/bits.h"
#include "support/random_tables.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

using namespace korvel::test;
using korvel::weighted_rows;
using korvel::kernels::instruction_set;
namespace reference = korvel::reference;

namespace
{

enum class missing_cells { none, in_last_row, throughout, among_odd_ones };

/** A table with its rows. */
struct sample {
    matrix<double> x;
    std::vector<short int> flags;
    matrix<double> w;

    [[nodiscard]] weighted_rows rows() const { return {x.nbrows, flags.data(), &w}; }
    [[nodiscard]] auto column(int j) const
    {
        return [this, j](int i) { return x.getElement(i, j); };
    }
};

sample randomSample(int rows, int cols, missing_cells missing, std::uint64_t seed)
{
    const bool odd = missing == missing_cells::among_odd_ones;
    random_cells cells(seed, odd ? odd_cells::all : odd_cells::none);
    random_cells weights(seed, seed % 2 == 0 ? odd_cells::missing_and_zeros : odd_cells::none);
    sample made{randomTable(cells, rows, cols), weights.flags(rows), weights.weights(rows)};
    if (missing == missing_cells::throughout) {
        for (std::uint64_t k = 0; k < made.x.nbElem; ++k) {
            made.x.data[k] = cells.integer(0, 19) == 0 ? MISSING_DBL : made.x.data[k];
        }
    }
    if (missing == missing_cells::in_last_row) {
        made.x.setElement(rows - 1, cells.integer(0, cols - 1), MISSING_DBL);
    }
    return made;
}

void expectMoments(const sample& s)
{
    const auto columns = korvel::columnsInMemory(korvel::reading(s.x), s.rows(), s.x.nbcols);
    ASSERT_EQ(columns.size(), static_cast<std::size_t>(s.x.nbcols));
    const auto found = korvel::momentsInMemory(columns, s.rows());
    for (int j = 0; j < s.x.nbcols; ++j) {
        reference::moments_of_column plain;
        plain.add(s.column(j), s.x.nbrows, s.flags.data(), &s.w);
        const auto& state = found[static_cast<std::size_t>(j)];
        ASSERT_TRUE(sameBits(state.mean, plain.mean())) << "column " << j;
        for (const short int freq : std::array<short int, 2>{0, -1}) {
            ASSERT_TRUE(sameBits(state.variance(-1, freq), plain.variance({-1, freq}))) << "column " << j;
        }
    }
}

void expectPairs(const sample& s)
{
    const auto columns = korvel::columnsInMemory(korvel::reading(s.x), s.rows(), s.x.nbcols);
    int pairs = 0;
    korvel::walkPairsInMemory(columns, s.rows(), [&](int i, int j, const korvel::running_covariance& found) {
        ++pairs;
        const auto plain = reference::sumsOfPair(s.column(i), s.column(j), s.x.nbrows, s.flags.data(), &s.w);
        ASSERT_EQ(found.kept, plain.c) << i << ", " << j;
        ASSERT_TRUE(sameBits(found.sumW, plain.s)) << i << ", " << j;
        ASSERT_TRUE(sameBits(found.products, plain.cij)) << i << ", " << j;
        ASSERT_TRUE(sameBits(found.meanX, plain.mi)) << i << ", " << j;
    });
    EXPECT_EQ(pairs, s.x.nbcols * (s.x.nbcols + 1) / 2);
}

class ColumnKernels : public ::testing::TestWithParam<instruction_set>
{
};

} // namespace

TEST_P(ColumnKernels, EqualToThePlainLoops)
{
    if (!korvel::kernels::hasSet(GetParam())) {
        GTEST_SKIP() << "the processor has no such instructions";
    }
    const korvel::kernels::forced_set forced(GetParam());
    std::uint64_t seed = 0;
    for (const missing_cells missing : {missing_cells::none, missing_cells::in_last_row,
                                        missing_cells::throughout, missing_cells::among_odd_ones}) {
        for (const auto& [rows, cols] : std::array<std::array<int, 2>, 16>{{{1, 1},
                                                                            {2, 7},
                                                                            {255, 8},
                                                                            {256, 9},
                                                                            {257, 16},
                                                                            {600, 17},
                                                                            {300, 31},
                                                                            {340, 32},
                                                                            {520, 33},
                                                                            {130, 63},
                                                                            {530, 64},
                                                                            {40, 65},
                                                                            {290, 72},
                                                                            {100, 129},
                                                                            {700, 3},
                                                                            {513, 12}}}) {
            for (int turn = 0; turn < 2; ++turn) {
                SCOPED_TRACE(::testing::Message() << rows << " by " << cols << ", seed " << ++seed);
                const sample s = randomSample(rows, cols, missing, seed);
                expectMoments(s);
                expectPairs(s);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Sets, ColumnKernels,
                         ::testing::Values(instruction_set::baseline, instruction_set::avx2,
                                           instruction_set::avx512));

TEST(ColumnPanels, GoOnAfterManyRowsWithoutWeight)
{
    for (const missing_cells missing : {missing_cells::none, missing_cells::throughout}) {
        sample s = randomSample(1500, 9, missing, 1);
        std::fill_n(s.flags.begin(), 1000, short{0});
        std::fill_n(s.w.data, 600, 0.0);
        std::fill_n(s.w.data + 600, 300, 2.0);
        expectMoments(s);
        expectPairs(s);
        std::fill_n(s.w.data, 1500, 0.0);
        expectMoments(s);
        expectPairs(s);
    }
}

TEST(ColumnsInMemory, OnlyWhatLiesInsideIs)
{
    matrix<double> x(4, 3, 1.0);
    matrix<double> w(4, 1, 1.0);
    const auto count = [&](int rows, int cols, const matrix<double>* weights) {
        return korvel::columnsInMemory(korvel::reading(x), weighted_rows{rows, nullptr, weights}, cols)
            .size();
    };
    EXPECT_EQ(count(4, 3, &w), 3U);
    EXPECT_EQ(count(3, 2, nullptr), 2U);
    EXPECT_EQ(count(5, 3, nullptr), 0U);
    EXPECT_EQ(count(4, 4, nullptr), 0U);
    EXPECT_EQ(count(0, 3, nullptr), 0U);
    matrix<double> few(3, 1, 1.0);
    EXPECT_EQ(count(4, 3, &few), 0U) << "too few weights";
}
