#include "missing/missing_flags.h"

#include "reference/missing.h"
#include "support/near_tables.h"

#include <vector>

using namespace korvel::test;

namespace
{

using flags = std::vector<short int>;
constexpr double missing = MISSING_DBL;

/** A table of about `rows` by `cols` in which whole rows are missing now and then. */
template <class T>
matrix<T> tableWithGaps(random_cells& cells, int rows, int cols, const T& missingCell)
{
    matrix<T> x = nearTable<T>(cells, rows, cols);
    for (int i = 0; i < x.nbrows; ++i) {
        const int share = cells.integer(0, 3);
        for (int j = 0; j < x.nbcols; ++j) {
            if (cells.integer(1, 3) <= share) {
                x.data[i + std::ptrdiff_t{x.nbrows} * j] = missingCell;
            }
        }
    }
    return x;
}

template <class T>
void expectPlainFlags(random_cells& cells, int rows, int cols, const T& missingCell)
{
    const matrix<T> x = tableWithGaps(cells, rows, cols, missingCell);
    const flags given = cells.flags(rows);
    flags found(static_cast<std::size_t>(rows), 9);
    korvel::getMissing(x, rows, cols, given.data(), found.data());
    EXPECT_EQ(found, korvel::reference::rowFlags(x, rows, cols, &given));
    korvel::getMissing(x, rows, cols, nullptr, found.data());
    EXPECT_EQ(found, korvel::reference::rowFlags(x, rows, cols, nullptr));
    flags out = cells.flags(rows);
    const flags expected = korvel::reference::allMissingRows(x, rows, cols, given, out);
    korvel::flagAllMissingRows(x, rows, cols, given.data(), out.data());
    EXPECT_EQ(out, expected);
}

} // namespace

TEST(MissingFlags, OfTexts)
{
    std::vector<text> words{u"a", u"", u"b", u""};
    matrix<text> x(4, 1, words.data());
    flags in{0, 0, -1, 1};
    flags out(4, 9);
    EXPECT_EQ(V_GetMissingStr(&x, 4, in.data(), out.data()), 0);
    EXPECT_EQ(out, (flags{0, -1, -1, -1}));
    EXPECT_EQ(V_GetMissingStr(&x, 3, nullptr, out.data()), 0);
    EXPECT_EQ(out, (flags{0, -1, 0, -1}));
    flags one{1};
    EXPECT_EQ(V_GetMissingStr(&x, 1, one.data(), one.data()), 0);
    EXPECT_EQ(one, (flags{0})) << "only -1 is a flag";
}

TEST(MissingFlags, OfTheRowsOfATable)
{
    std::vector<double> cells{1, 2, 3, 4, missing, 6, belowSentinel, 8, notANumber, -infinite, 11, 12};
    matrix<double> x(4, 3, cells.data(), false);
    flags in{0, 0, 0, -1};
    flags out(4, 9);
    korvel::getMissing(x, 4, 3, in.data(), out.data());
    EXPECT_EQ(out, (flags{-1, -1, -1, -1})) << "missing, -inf, below the sentinel, flagged";
    korvel::getMissing(x, 4, 1, nullptr, out.data());
    EXPECT_EQ(out, (flags{0, 0, 0, 0}));
    korvel::getMissing(x, 4, 2, in.data(), in.data());
    EXPECT_EQ(in, (flags{-1, 0, -1, -1}));
    auto first = vectorOf<double>({1, missing});
    auto second = vectorOf<double>({2, 2});
    matrix<double>* chunks[]{&first, &second};
    flags two{7, 7};
    korvel::getMissing(chunks, 2, 2, nullptr, two.data());
    EXPECT_EQ(two, (flags{0, -1}));
}

TEST(MissingFlags, AreSummarized)
{
    const flags a{-1, 0, 0, 1, 0};
    const flags b{0, -1, 0, 0, 0};
    const flags c{0, 0, -1, 0, 0};
    flags result{5, 5, 5, 5, 5};
    EXPECT_EQ(korvel::summarizeMissing(5, a.data(), b.data(), nullptr, result.data()), 2);
    EXPECT_EQ(result, (flags{-1, -1, 5, 5, 5})) << "only a and b count, and only -1";
    EXPECT_EQ(korvel::summarizeMissing(5, a.data(), b.data(), c.data(), result.data()), 3);
    EXPECT_EQ(result, (flags{-1, -1, -1, 5, 5}));
    EXPECT_EQ(korvel::summarizeMissing(5, b.data(), b.data(), a.data(), result.data()), 2) << "only -1 of c";
    EXPECT_EQ(korvel::summarizeAllMissing(5, a.data(), b.data(), result.data()), 0);
    EXPECT_EQ(korvel::summarizeAllMissing(5, a.data(), a.data(), result.data()), 1);
    EXPECT_EQ(korvel::summarizeMissing(0, nullptr, nullptr, nullptr, nullptr), 0);
}

TEST(MissingFlags, OfRowsThatHaveNothing)
{
    std::vector<double> cells{missing, missing, missing, 1, missing, 2, missing, 3};
    matrix<double> x(4, 2, cells.data(), false);
    const flags in{-1, -1, 0, -1};
    flags out{9, 9, 9, 9};
    korvel::flagAllMissingRows(x, 4, 2, in.data(), out.data());
    EXPECT_EQ(out, (flags{-1, 9, 9, 9}));
    korvel::flagAllMissingRows(x, 4, 1, in.data(), out.data());
    EXPECT_EQ(out, (flags{-1, -1, 9, 9}));
    std::vector<text> words{u"", u"a", u"", u""};
    matrix<text> texts(2, 2, words.data());
    flags rows{-1, -1};
    flags found{0, 0};
    korvel::flagAllMissingRows(texts, 2, 2, rows.data(), found.data());
    EXPECT_EQ(found, (flags{-1, 0}));
}

TEST(MissingFlags, ACellBesideADiagonalThatIsThere)
{
    std::vector<double> cells{1, 2, 3, 4, 5, 6, 7, 8, 9};
    matrix<double> x(3, 3, cells.data(), false);
    const auto found = [&] { return M_IsMissingOutOfDiagonalAndNotOnDiags(&x, 3); };
    EXPECT_EQ(found(), 0);
    x.setElement(2, 0, missing);
    EXPECT_EQ(found(), 0) << "below the diagonal nothing is read";
    x.setElement(0, 2, missing);
    EXPECT_EQ(found(), -1);
    EXPECT_EQ(M_IsMissingOutOfDiagonalAndNotOnDiags(&x, 2), 0);
    x.setElement(0, 0, missing);
    EXPECT_EQ(found(), 0) << "its row is passed over";
    x.setElement(0, 0, notANumber);
    EXPECT_EQ(found(), 0) << "a NaN is not above the sentinel";
    x.setElement(0, 0, 1);
    x.setElement(2, 2, belowSentinel);
    EXPECT_EQ(found(), 0) << "its column is passed over";
    x.setElement(2, 2, 1);
    x.setElement(0, 2, belowSentinel);
    EXPECT_EQ(found(), 0) << "not the sentinel";
    EXPECT_EQ(M_IsMissingOutOfDiagonalAndNotOnDiags(&x, 1), 0);
}

TEST(MissingFlags, ACellBesideTheDiagonalOfATriangle)
{
    auto first = vectorOf<double>({1, 2, missing});
    auto second = vectorOf<double>({4, 5});
    auto third = vectorOf<double>({6});
    matrix<double>* chunks[]{&first, &second, &third};
    EXPECT_EQ(M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(chunks, 3), -1);
    EXPECT_EQ(M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(chunks, 2), 0);
    third.data[0] = missing;
    EXPECT_EQ(M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(chunks, 3), 0);
    matrix3D<matrix<double>> table(3, 3, 3, 1.0);
    EXPECT_EQ(M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(&table, 3), 0);
    table.setElement(1, 1, missing);
    EXPECT_EQ(M_IsMissingOutOfDiagonalAndNotOnDiagsSPV_T(&table, 3), -1);
}

TEST(MissingFlags, EqualThePlainLoops)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        for (const int longer : {0, 64, 130}) {
            expectPlainFlags<double>(cells, rows + longer, cols, missing);
            expectPlainFlags<text>(cells, rows + longer, cols, text());
            random_chunks<double> chunks(cells, cols, [&](int) { return rows + longer; });
            flags found(static_cast<std::size_t>(rows + longer), 9);
            korvel::getMissing(chunks.get(), rows + longer, cols, nullptr, found.data());
            EXPECT_EQ(found, korvel::reference::rowFlags(chunks.get(), rows + longer, cols, nullptr));
        }
    });
}
