// Cells filled by nearest rows, bit for bit as the plain loops fill them, in every form of the tables.

#include "missing/nearest_neighbours.h"
#include "reference/imputation.h"
#include "statistics/column_deviations.h"
#include "support/random_tables.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <string>
#include <vector>

using namespace korvel::test;
using korvel::reference::plain_cells;
using korvel::reference::plain_group;

namespace
{

/** What a draw of tables looks like. */
struct draw_kind {
    odd_cells odd;
    bool hasTies; // numbers are small and whole
};

constexpr std::array kinds{draw_kind{odd_cells::none, false}, draw_kind{odd_cells::missing, false},
                           draw_kind{odd_cells::missing, true}, draw_kind{odd_cells::all, false}};

/** Counts of a case; the tables that are filled may fall short of `rows`. */
struct shape {
    int rows;
    int p;
    int q;
    int s;
    int rowsShort;
};

matrix<double> drawNumbers(random_cells& cells, const draw_kind& kind, int rows, int cols)
{
    matrix<double> made(rows, std::max(cols, 1), 0.0);
    std::generate_n(made.data, made.nbElem, [&] {
        const double x = cells.value();
        return kind.hasTies && x != MISSING_DBL ? static_cast<double>(cells.integer(0, 2)) : x;
    });
    return made;
}

matrix<text> drawTexts(random_cells& cells, int rows, int cols)
{
    const std::array<text, 5> names{u"", u"a", u"b", u"bb", u"abc"};
    matrix<text> made(rows, std::max(cols, 1), text());
    std::generate_n(made.data, made.nbElem, [&] {
        const int k = cells.integer(0, 11);
        return names[static_cast<std::size_t>(k % 5)];
    });
    return made;
}

plain_group<double> numbersOf(plain_cells<double> x, matrix<double>& learnt, int n, int cols,
                              matrix<double>& weights)
{
    plain_group<double> made{x, cols, {}, {}};
    if (cols > 0) {
        matrix<double> means(cols, 1, 0.0);
        matrix<double> deviations(cols, 1, 0.0);
        matrix<double> variances(cols, 1, 0.0);
        M_MeanStDevVar(&learnt, n, cols, &means, &deviations, &variances, nullptr, &weights, -1, -1);
        made.fallback.assign(means.data, means.data + cols);
        made.variances.assign(variances.data, variances.data + cols);
    }
    return made;
}

plain_group<text> textsOf(matrix<text>& x, matrix<text>& learnt, int n, int cols,
                          const matrix<double>& weights)
{
    return {{&x, nullptr}, cols, korvel::reference::plainModes(learnt, n, cols, weights), {}};
}

bool sameTexts(const matrix<text>& actual, const matrix<text>& expected)
{
    return std::equal(actual.data, actual.data + actual.nbElem, expected.data) &&
           actual.oobValue == expected.oobValue;
}

/** The tables of a case, and copies for the twin. */
struct tables {
    matrix<double> a;
    matrix<double> b;
    matrix<text> c;
    matrix<double> weights;
    std::vector<short int> flags;

    tables(random_cells& cells, const draw_kind& kind, const shape& size)
        : a(drawNumbers(cells, kind, size.rows - size.rowsShort, size.p)),
          b(drawNumbers(cells, kind, size.rows - size.rowsShort, size.q)),
          c(drawTexts(cells, size.rows - size.rowsShort, size.s)), weights(cells.weights(size.rows))
    {
        for (int i = 0; i < size.rows; ++i) {
            flags.push_back(cells.integer(0, 2) == 0 ? short{-1} : short{0});
        }
    }
};

/** Fills dense tables, and copies of them by the twin. */
void expectSameDense(tables& ours, const shape& size)
{
    matrix<double> plainA(ours.a);
    matrix<double> plainB(ours.b);
    matrix<text> plainC(ours.c);
    const int n = size.rows;
    const auto primary = numbersOf({&plainA, nullptr}, plainA, n, size.p, ours.weights);
    const auto second = numbersOf({&plainB, nullptr}, plainB, n, size.q, ours.weights);
    const auto third = textsOf(plainC, plainC, n, size.s, ours.weights);
    korvel::reference::fillByNearest(primary, second, third, n, ours.flags.data());
    auto* a = &ours.a;
    auto* b = &ours.b;
    auto* c = &ours.c;
    EstimateRowsWithMissingNN(a, n, a, n, size.p, ours.flags.data(), b, b, size.q, c, c, size.s,
                              &ours.weights);
    EXPECT_TRUE(sameTable(ours.a, plainA));
    EXPECT_TRUE(sameTable(ours.b, plainB));
    EXPECT_TRUE(sameTexts(ours.c, plainC));
}

template <class Compare>
void forRandomTablesOfEachShape(Compare compare)
{
    constexpr std::array rowCounts{0, 1, 2, 5, 11, 12, 13, 25, 40};
    std::uint64_t seed = 100;
    for (const draw_kind& kind : kinds) {
        for (const int rows : rowCounts) {
            for (const auto& [p, q, s] : {std::array{1, 0, 0},
                                          {3, 0, 0},
                                          {9, 2, 1},
                                          {0, 3, 2},
                                          {2, 1, 3},
                                          {0, 0, 3},
                                          {5, 4, 0},
                                          {2, 0, 2}}) {
                random_cells cells(++seed, kind.odd);
                const shape size{rows, p, q, s, seed % 5 == 0 ? std::min(rows, 2) : 0};
                SCOPED_TRACE(::testing::Message()
                             << "seed " << seed << ", " << rows << " rows short by " << size.rowsShort
                             << ", columns " << p << ", " << q << ", " << s);
                compare(cells, kind, size);
            }
        }
    }
}

} // namespace

TEST(NearestNeighboursTwins, OfDenseTables)
{
    forRandomTablesOfEachShape([](random_cells& cells, const draw_kind& kind, const shape& size) {
        tables ours(cells, kind, size);
        expectSameDense(ours, size);
    });
}

TEST(NearestNeighboursTwins, OfTablesLearntElsewhere)
{
    forRandomTablesOfEachShape([](random_cells& cells, const draw_kind& kind, const shape& size) {
        tables ours(cells, kind, size);
        tables learnt(cells, kind, {size.rows + 3, size.p, size.q, size.s, 0});
        matrix<double> plainA(ours.a);
        matrix<double> plainB(ours.b);
        matrix<text> plainC(ours.c);
        const int n = size.rows + 3;
        const auto primary = numbersOf({&plainA, nullptr}, learnt.a, n, size.p, learnt.weights);
        const auto second = numbersOf({&plainB, nullptr}, learnt.b, n, size.q, learnt.weights);
        const auto third = textsOf(plainC, learnt.c, n, size.s, learnt.weights);
        korvel::reference::fillByNearest(primary, second, third, size.rows, ours.flags.data());
        auto* a = &ours.a;
        auto* b = &ours.b;
        auto* c = &ours.c;
        EstimateRowsWithMissingNN(&learnt.a, n, a, size.rows, size.p, ours.flags.data(), &learnt.b, b, size.q,
                                  &learnt.c, c, size.s, &learnt.weights);
        EXPECT_TRUE(sameTable(ours.a, plainA));
        EXPECT_TRUE(sameTable(ours.b, plainB));
        EXPECT_TRUE(sameTexts(ours.c, plainC));
    });
}

TEST(NearestNeighboursTwins, OfPrimaryTexts)
{
    forRandomTablesOfEachShape([](random_cells& cells, const draw_kind& kind, const shape& size) {
        tables ours(cells, kind, size);
        matrix<text> words = drawTexts(cells, size.rows, size.p);
        matrix<text> plainA(words);
        matrix<double> plainB(ours.b);
        matrix<text> plainC(ours.c);
        const int n = size.rows;
        const auto primary = textsOf(plainA, plainA, n, size.p, ours.weights);
        const auto second = numbersOf({&plainB, nullptr}, plainB, n, size.q, ours.weights);
        const auto third = textsOf(plainC, plainC, n, size.s, ours.weights);
        korvel::reference::fillByNearest(primary, second, third, n, ours.flags.data());
        auto* a = &words;
        auto* b = &ours.b;
        auto* c = &ours.c;
        EstimateRowsWithMissingNNStr(a, n, a, n, size.p, ours.flags.data(), b, b, size.q, c, c, size.s,
                                     &ours.weights);
        EXPECT_TRUE(sameTexts(words, plainA));
        EXPECT_TRUE(sameTable(ours.b, plainB));
        EXPECT_TRUE(sameTexts(ours.c, plainC));
    });
}

TEST(NearestNeighboursTwins, OfChunks)
{
    forRandomTablesOfEachShape([](random_cells& cells, const draw_kind& kind, const shape& size) {
        tables ours(cells, kind, size);
        const int n = size.rows;
        const auto pointers = [](auto& chunks) {
            std::vector<matrix<double>*> made;
            for (auto& chunk : chunks.chunks) {
                made.push_back(&chunk);
            }
            return made;
        };
        auto chunksA = chunksOf<matrix<double>>(ours.a);
        auto chunksB = chunksOf<matrix<double>>(ours.b);
        auto plainChunksA = chunksOf<matrix<double>>(ours.a);
        auto plainChunksB = chunksOf<matrix<double>>(ours.b);
        auto a = pointers(chunksA);
        auto b = pointers(chunksB);
        auto plainA = pointers(plainChunksA);
        auto plainB = pointers(plainChunksB);
        matrix<text> plainC(ours.c);
        // What a cell outside reads as differs between the forms, so the statistics are those of chunks.
        matrix<double> learntA(n, std::max(size.p, 1), 0.0);
        matrix<double> learntB(n, std::max(size.q, 1), 0.0);
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < size.p; ++j) {
                learntA.setElement(i, j, (*a[static_cast<std::size_t>(j)])[i]);
            }
            for (int j = 0; j < size.q; ++j) {
                learntB.setElement(i, j, (*b[static_cast<std::size_t>(j)])[i]);
            }
        }
        const auto primary = numbersOf({nullptr, plainA.data()}, learntA, n, size.p, ours.weights);
        const auto second = numbersOf({nullptr, plainB.data()}, learntB, n, size.q, ours.weights);
        const auto third = textsOf(plainC, plainC, n, size.s, ours.weights);
        korvel::reference::fillByNearest(primary, second, third, n, ours.flags.data());
        auto* c = &ours.c;
        matrix<text> once(ours.c);
        auto* onceC = &once;
        auto denseA = chunksOf<matrix<double>>(ours.a);
        auto again = pointers(denseA);
        EstimateRowsWithMissingNNSPV2(a.data(), n, size.p, ours.flags.data(), b.data(), b.data(), size.q, c,
                                      c, size.s, &ours.weights);
        EXPECT_TRUE(sameTable(chunksA, plainChunksA));
        EXPECT_TRUE(sameTable(chunksB, plainChunksB));
        EXPECT_TRUE(sameTexts(ours.c, plainC));
        if (size.rowsShort > 0) {
            return;
        }
        auto* dense = &ours.b;
        EstimateRowsWithMissingNNSPV(again.data(), n, size.p, ours.flags.data(), dense, dense, size.q, onceC,
                                     onceC, size.s, &ours.weights);
        EXPECT_TRUE(sameTable(denseA, plainChunksA));
        EXPECT_TRUE(sameTexts(once, plainC));
        for (int j = 0; j < size.q; ++j) {
            for (int i = 0; i < n; ++i) {
                EXPECT_TRUE(sameBits(ours.b.getElement(i, j), plainChunksB.getElement(j, i)));
            }
        }
    });
}

TEST(NearestNeighboursTwins, OfTablesOfManyCandidates)
{
    for (std::uint64_t seed = 1; seed <= 6; ++seed) {
        SCOPED_TRACE(seed);
        const draw_kind kind{seed % 2 == 0 ? odd_cells::none : odd_cells::missing, false};
        random_cells cells(seed, kind.odd);
        const shape size{301, 12, seed % 3 == 0 ? 5 : 0, seed % 3 == 1 ? 2 : 0, 0};
        tables ours(cells, kind, size);
        for (int i = 0; i < size.rows; ++i) {
            ours.flags[static_cast<std::size_t>(i)] = i % 9 == 4 ? short{-1} : short{0};
            for (int j = 0; j < size.p; ++j) {
                // Candidates are mostly complete; values of all sizes stand in the last columns.
                const double scale = j == 10 ? 1e-160 : j == 11 ? 1e160 : 1.0;
                const double x = static_cast<double>(cells.integer(-999, 999)) * scale;
                ours.a.setElement(i, j, i % 9 == 4 && j % 4 == 1 ? MISSING_DBL : x);
            }
        }
        ours.a.oobValue = -1.0;
        expectSameDense(ours, size);
    }
}

TEST(NearestNeighboursTwins, OfCandidatesThatDifferInTheLastPlace)
{
    for (std::uint64_t seed = 1; seed <= 60; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, odd_cells::none);
        constexpr int n = 60;
        constexpr int cols = 4;
        matrix<double> x(n, cols, 0.0);
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j + 1 < cols; ++j) {
                x.setElement(i, j, 1.0 + cells.integer(0, 3) * std::numeric_limits<double>::epsilon());
            }
            x.setElement(i, cols - 1, i);
        }
        std::vector<short int> flags(n);
        for (int i = 0; i < n; i += 20) {
            flags[static_cast<std::size_t>(i)] = -1;
            for (int j = 0; j + 1 < cols; ++j) {
                x.setElement(i, j, cells.integer(1, 3) / 8.0);
            }
            x.setElement(i, cols - 1, MISSING_DBL);
        }
        matrix<double> w(n, 1, 1.0);
        matrix<double> plain(x);
        const plain_group<double> none;
        const plain_group<text> noTexts;
        korvel::reference::fillByNearest(numbersOf({&plain, nullptr}, plain, n, cols, w), none, noTexts, n,
                                         flags.data());
        auto* table = &x;
        matrix<double>* second = nullptr;
        matrix<text>* third = nullptr;
        EstimateRowsWithMissingNN(table, n, table, n, cols, flags.data(), second, second, 0, third, third, 0,
                                  &w);
        EXPECT_TRUE(sameTable(x, plain));
    }
}
