#include "missing/column_estimates.h"

#include "reference/imputation.h"
#include "statistics/column_means.h"
#include "statistics/vector_means.h"
#include "support/random_tables.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = MISSING_DBL;
using numbers = std::vector<double>;
using words = std::vector<text>;
using shorts = std::vector<short int>;

/** A table of `rows` rows, its missing cells filled by its own means. */
numbers filledByMeans(numbers cells, int rows, int p, shorts flags, matrix<double>* weights = nullptr)
{
    matrix<double> x(rows, std::max(p, 1), cells.data(), true);
    auto* table = &x;
    EstimateRowsWithMissingMean(&x, rows, table, rows, p, flags.data(), weights);
    return cells;
}

words filledByModes(words cells, int rows, int p, matrix<double>* weights = nullptr)
{
    matrix<text> x(rows, p, cells.data());
    auto* table = &x;
    EstimateRowsWithMissingMode(&x, rows, table, rows, p, weights);
    return cells;
}

} // namespace

TEST(ColumnEstimates, AreMeansInFlaggedRows)
{
    const numbers cells{1, missing, 5, missing, 4, 8};
    EXPECT_EQ(filledByMeans(cells, 3, 2, {-1, -1, -1}), (numbers{1, 3, 5, 6, 4, 8}));
    EXPECT_EQ(filledByMeans(cells, 3, 2, {0, -1, -1}), (numbers{1, 3, 5, missing, 4, 8}))
        << "a row without flag stays";
    EXPECT_EQ(filledByMeans(cells, 3, 2, {7, 1, 0}), (numbers{1, 3, 5, 6, 4, 8})) << "any flag but 0";
    EXPECT_EQ(filledByMeans({missing, missing}, 2, 1, {-1, -1}), (numbers{0, 0}))
        << "of nothing the mean is 0";
    EXPECT_EQ(filledByMeans({-largest, 3}, 2, 1, {-1, -1})[0], (-largest + 3) / 2)
        << "what is below the sentinel is filled, but taken into the mean";
    auto w = vectorOf<double>({3, 1, 1});
    EXPECT_EQ(filledByMeans(cells, 3, 2, {-1, -1, -1}, &w), (numbers{1, 2, 5, 6, 4, 8}));
}

TEST(ColumnEstimates, OfAVectorAreItsMean)
{
    const numbers cells{1, missing, 5, missing};
    EXPECT_EQ(filledByMeans(cells, 4, 0, {0, -1, 0, 0}), (numbers{1, 3, 5, missing}));
    EXPECT_EQ(filledByMeans(cells, 4, -3, {0, 0, 0, 2}), (numbers{1, missing, 5, 3}));
    EXPECT_EQ(filledByMeans({missing, missing}, 2, 0, {-1, -1}), (numbers{missing, missing}))
        << "which of nothing is missing";
    auto w = vectorOf<double>({3, 1, 1, 0});
    EXPECT_EQ(filledByMeans(cells, 4, 0, {0, -1, 0, 0}, &w), (numbers{1, 2, 5, missing}));
    EXPECT_EQ(filledByMeans({}, 0, 0, {}), numbers());
}

TEST(ColumnEstimates, NeedFlags)
{
    auto x = vectorOf<double>({1, missing});
    auto* table = &x;
    EstimateRowsWithMissingMean(&x, 2, table, 2, 1, nullptr, nullptr);
    EstimateRowsWithMissingMean(&x, 2, table, 2, 0, nullptr, nullptr);
    EstimateRowsWithMissingMeanSPV(&table, 2, 1, nullptr, nullptr);
    EXPECT_EQ(x.data[1], missing);
}

TEST(ColumnEstimates, AreThoseOfAnotherTable)
{
    auto learnt = vectorOf<double>({1, 2, 3});
    auto x = vectorOf<double>({missing, 50});
    auto* table = &x;
    shorts flags{-1, -1};
    EstimateRowsWithMissingMean(&learnt, 3, table, 2, 1, flags.data(), nullptr);
    EXPECT_EQ(x.data[0], 2);
    x.data[0] = missing;
    EstimateRowsWithMissingMean(&learnt, 2, table, 2, 0, flags.data(), nullptr);
    EXPECT_EQ(x.data[0], 1.5);
    EXPECT_EQ(x.oobValue, 1.5);
    words cells{u"", u"c"};
    words others{u"a", u"b", u"b"};
    matrix<text> filled(2, 1, cells.data());
    matrix<text> from(3, 1, others.data());
    auto* written = &filled;
    EstimateRowsWithMissingMode(&from, 3, written, 2, 1, nullptr);
    EXPECT_EQ(cells, (words{u"b", u"c"}));
    EXPECT_EQ(filled.oobValue, u"b");
}

TEST(ColumnEstimates, AreModes)
{
    EXPECT_EQ(filledByModes({u"a", u"", u"b", u"b", u"", u"x", u"x", u"y"}, 4, 2),
              (words{u"a", u"b", u"b", u"b", u"x", u"x", u"x", u"y"}));
    EXPECT_EQ(filledByModes({u"b", u"a", u"", u"a", u"b"}, 5, 1)[2], u"b") << "the first to appear of equals";
    EXPECT_EQ(filledByModes({u"", u""}, 2, 1), (words{u"", u""})) << "of nothing the mode is empty";
    EXPECT_EQ(filledByModes({u"a", u""}, 2, 0), (words{u"a", u""}));
    EXPECT_EQ(filledByModes({u"a", u"A", u"", u"A"}, 4, 1)[2], u"A") << "case counts";
    auto w = vectorOf<double>({5, 2, 2, 0});
    EXPECT_EQ(filledByModes({u"a", u"b", u"b", u""}, 4, 1, &w)[3], u"a") << "the largest sum of weights";
    auto negative = vectorOf<double>({-5, -2, 1});
    EXPECT_EQ(filledByModes({u"a", u"b", u""}, 3, 1, &negative)[2], u"b") << "also where all are below 0";
    auto none = vectorOf<double>({0, 0});
    EXPECT_EQ(filledByModes({u"a", u""}, 2, 1, &none)[1], u"a");
}

TEST(ColumnEstimates, ByMeansEqualThePlainLoop)
{
    forRandomTables([](random_cells& cells, const table_sizes& size) {
        auto x = randomTable(cells, size.n - size.rowsShort, size.p - size.colsShort);
        auto w = cells.weights(size.n);
        auto flags = cells.flags(size.n);
        matrix<double> plain(x);
        const int cols = std::max(size.p, 1);
        matrix<double> means(cols, 1, 0.0);
        auto* found = &means;
        M_Mean(&plain, size.n, cols, found, &w);
        if (size.p < 1) {
            const shorts none(static_cast<std::size_t>(size.n));
            means.data[0] = V_Mean(&plain, size.n, const_cast<short int*>(none.data()), &w);
        }
        for (int i = 0; i < size.n; ++i) {
            for (int j = 0; j < cols; ++j) {
                if (flags[static_cast<std::size_t>(i)] != 0 && plain.getElement(i, j) <= missing) {
                    plain.setElement(i, j, means.data[j]);
                }
            }
        }
        auto* table = &x;
        EstimateRowsWithMissingMean(&x, size.n, table, size.n, size.p, flags.data(), &w);
        EXPECT_TRUE(sameTable(x, plain));
    });
}

TEST(ColumnEstimates, OfChunksEqualThePlainLoop)
{
    forRandomTables([](random_cells& cells, const table_sizes& size) {
        const auto x = randomTable(cells, size.n - size.rowsShort, std::max(size.p, 1));
        auto w = cells.weights(size.n);
        auto flags = cells.flags(size.n);
        auto ours = chunksOf<matrix<double>>(x);
        auto plain = chunksOf<matrix<double>>(x);
        std::vector<matrix<double>*> chunks;
        std::vector<matrix<double>*> plainChunks;
        for (int j = 0; j < size.p; ++j) {
            chunks.push_back(&ours.chunks[static_cast<std::size_t>(j)]);
            plainChunks.push_back(&plain.chunks[static_cast<std::size_t>(j)]);
        }
        matrix<double> means;
        auto* found = &means;
        M_MeanSPV(plainChunks.data(), size.n, size.p, found, &w);
        const korvel::reference::plain_cells<double> table{nullptr, plainChunks.data()};
        for (int i = 0; i < size.n; ++i) {
            for (int j = 0; j < size.p; ++j) {
                if (flags[static_cast<std::size_t>(i)] != 0 && table.isMissing(i, j)) {
                    table.set(i, j, means.data[j]);
                }
            }
        }
        EstimateRowsWithMissingMeanSPV(chunks.data(), size.n, size.p, flags.data(), &w);
        EXPECT_TRUE(sameTable(ours, plain));
    });
}

TEST(ColumnEstimates, ByModesEqualThePlainLoop)
{
    for (std::uint64_t seed = 1; seed <= 60; ++seed) {
        random_cells cells(seed, seed % 2 == 0 ? odd_cells::none : odd_cells::missing_and_zeros);
        const int rows = cells.integer(0, 30);
        const int held = seed % 5 == 0 ? std::max(rows - 2, 0) : rows;
        const std::array<text, 5> names{u"", u"a", u"b", u"ab", u"B"};
        matrix<text> x(held, 3, text());
        std::generate_n(x.data, x.nbElem,
                        [&] { return names[static_cast<std::size_t>(cells.integer(0, 4))]; });
        auto w = cells.weights(rows);
        matrix<text> plain(x);
        const auto modes = korvel::reference::plainModes(plain, rows, 3, w);
        for (int j = 0; j < 3; ++j) {
            for (int i = 0; i < rows; ++i) {
                if (plain.getElement(i, j).empty()) {
                    plain.setElement(i, j, modes[static_cast<std::size_t>(j)]);
                }
            }
        }
        auto* table = &x;
        EstimateRowsWithMissingMode(&x, rows, table, rows, 3, &w);
        EXPECT_TRUE(std::equal(x.data, x.data + x.nbElem, plain.data)) << "seed " << seed;
        EXPECT_EQ(x.oobValue, plain.oobValue);
    }
}
