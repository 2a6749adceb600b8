#include "missing/missing_counts.h"

#include "support/random_cells.h"

#include <vector>

using namespace korvel::test;

namespace
{

constexpr double missing = MISSING_DBL;
using ints = std::vector<int>;

template <class Count>
ints counted(Count count, std::size_t size)
{
    ints counts(size, 9);
    matrix<int> out(static_cast<int>(size), 1, counts.data(), true);
    count(&out);
    return counts;
}

} // namespace

TEST(MissingCounts, OfVectors)
{
    auto x = vectorOf<double>({1, missing, notANumber, belowSentinel, missing});
    EXPECT_EQ(V_NbMissing(&x, 5), 2) << "exactly the sentinel";
    EXPECT_EQ(V_NbNonMissing(&x, 5), 3);
    EXPECT_EQ(V_NbMissing(&x, 2), 1);
    EXPECT_EQ(V_NbMissing(&x, 0), 0);
    EXPECT_EQ(V_NbNonMissing(&x, 0), 0);
    EXPECT_EQ(V_NbNonMissing(&x, -4), 0);
    EXPECT_EQ(V_NbNonMissing(&x, 6), 4) << "the element outside is -1";
    std::vector<text> words{u"", u"a", u""};
    matrix<text> texts(3, 1, words.data());
    EXPECT_EQ(V_NbMissing(&texts, 3), 2);
}

TEST(MissingCounts, OfColumnsRowsAndTables)
{
    std::vector<double> cells{missing, 2, missing, 4, 5, missing};
    matrix<double> x(3, 2, cells.data(), false);
    EXPECT_EQ(counted([&](auto* out) { M_NbMissing(&x, 3, 2, out); }, 2), (ints{2, 1}));
    EXPECT_EQ(counted([&](auto* out) { M_NbNonMissing(&x, 3, 2, out); }, 2), (ints{1, 2}));
    EXPECT_EQ(counted([&](auto* out) { M_NbMissing(&x, 2, 1, out); }, 2), (ints{1, 9}));
    EXPECT_EQ(counted([&](auto* out) { M_NbMissingPerRow(&x, 3, 2, out); }, 3), (ints{1, 0, 2}));
    EXPECT_EQ(counted([&](auto* out) { M_NbMissingPerRow(&x, 2, 0, out); }, 3), (ints{0, 0, 9}));
    EXPECT_EQ(counted([&](auto* out) { M_NbNonMissing(&x, 0, 2, out); }, 2), (ints{0, 0}));
    EXPECT_EQ(counted([&](auto* out) { M_NbNonMissing(&x, -4, 2, out); }, 2), (ints{0, 0}));
    EXPECT_EQ(M_NbMissing2(&x, 3, 2), 3);
    EXPECT_EQ(M_NbMissing2(&x, 3, 0), 0);
    std::vector<text> words{u"", u"a", u"", u""};
    matrix<text> texts(2, 2, words.data());
    EXPECT_EQ(counted([&](auto* out) { M_NbMissing(&texts, 2, 2, out); }, 2), (ints{1, 2}));
    EXPECT_EQ(M_NbMissing2(&texts, 2, 2), 3);
}

TEST(MissingCounts, OfChunks)
{
    auto first = vectorOf<double>({missing, 2, missing});
    auto second = vectorOf<double>({missing, 5});
    auto third = vectorOf<double>({missing});
    matrix<double>* chunks[]{&first, &second, &third};
    EXPECT_EQ(M_NbMissing2(chunks, 1, 3), 3);
    EXPECT_EQ(M_NbMissing2(chunks, 3, 1), 2);
    EXPECT_EQ(M_NbMissingSPV_T(chunks, 3, 3), 4);
    EXPECT_EQ(M_NbMissingSPV_T(chunks, 2, 2), 2) << "2 cells, and 1";
    EXPECT_EQ(M_NbMissingSPV_T(chunks, 1, 3), 1);
    EXPECT_EQ(M_NbMissingSPV_T(chunks, 3, 2), 3) << "3 cells, and 2";
    matrix3D<matrix<double>> table(3, 3, 3, missing);
    EXPECT_EQ(M_NbMissing2(&table, 3, 3), 9);
    EXPECT_EQ(M_NbMissingSPV_T(&table, 3, 3), 6);
    table.chunks[0].data[2] = 1;
    EXPECT_EQ(M_NbMissing2(&table, 3, 2), 5);
    EXPECT_EQ(M_NbMissing2(&table, 2, 3), 6);
    EXPECT_EQ(M_NbMissingSPV_T(&table, 3, 2), 4) << "columns of 3 and of 2";
    EXPECT_EQ(M_NbMissingSPV_T(&table, 2, 3), 3) << "columns of 2, of 1, and none";
}

TEST(MissingCounts, EqualThePlainLoops)
{
    forRandomVectors([](random_cells& cells, int n, int held) {
        auto x = cells.values(held);
        int plain = 0;
        for (int i = 0; i < n; ++i) {
            plain += x[i] == missing ? 1 : 0;
        }
        EXPECT_EQ(V_NbMissing(&x, n), plain);
        EXPECT_EQ(M_NbMissing2(&x, n, 1), plain);
        matrix<int> rows(n, 1);
        M_NbMissingPerRow(&x, n, 1, &rows);
        for (int i = 0; i < n; ++i) {
            EXPECT_EQ(rows.data[i], x[i] == missing ? 1 : 0);
        }
    });
}
