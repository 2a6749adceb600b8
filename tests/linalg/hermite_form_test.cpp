#include "linalg/hermite_form.h"

#include "linalg/square_tables.h"
#include "reference/eliminations.h"
#include "support/near_tables.h"

using namespace korvel::test;

namespace
{

using reduction = void (*)(matrix<double>*, int, matrix<double>*);

matrix<double> reduced(reduction form, matrix<double> A)
{
    matrix<double> H(A.nbrows, A.nbrows, 7.0);
    form(&A, A.nbrows, &H);
    return H;
}

void expectCells(const matrix<double>& actual, const matrix<double>& expected)
{
    for (std::uint64_t k = 0; k < expected.nbElem; ++k) {
        EXPECT_SAME_BITS(actual.data[k], expected.data[k]) << k;
    }
}

} // namespace

TEST(HermiteForm, IsThePlainOne)
{
    forSquareTables({0, 1, 2, 3, 5, 8, 9, 17, 33}, [](random_cells& cells, int n) {
        matrix<double> A = squareTable(cells, n);
        if (cells.integer(0, 2) == 0 && n > 2 && A.nbcols >= n && A.nbrows >= n) {
            // Without full rank rows are cleared on the way.
            for (int i = 0; i < n; ++i) {
                A.setElement(i, n - 1, 0.0);
                A.setElement(i, 1, A.getElement(0, i) * (i < 2 ? 1.0 : 2.0));
            }
        }
        matrix<double> actual = squareTable(cells, n);
        matrix<double> expected = twinOf(actual);
        matrix<double> second = twinOf(actual);
        matrix<double> expectedSecond = twinOf(actual);
        M_ForwardDoolittle(&A, n, &actual);
        plainForwardDoolittle(A, n, expected);
        expectSame(actual, expected);
        M_HermiteCanonical(&A, n, &second);
        plainHermiteCanonical(A, n, expectedSecond);
        expectSame(second, expectedSecond);
    });
}

TEST(HermiteForm, ReadsTheUpperTriangleAlone)
{
    const matrix<double> H = reduced(M_ForwardDoolittle, tableOf({{4, 2}, {99, 2}}));
    expectCells(H, tableOf({{1, 0.5}, {0, 1}}));
}

TEST(HermiteForm, DividesOnlyTheRowNextToThePivot)
{
    // After the first pivot the second row is divided by 4 - 2 * 1 and the third one is not.
    const matrix<double> H = reduced(M_ForwardDoolittle, tableOf({{2, 2, 4}, {2, 4, 8}, {4, 8, 20}}));
    // Row 2: (8 - 2 * 2) / 2 = 2. Row 3: 8 - 1 * 4 = 4 and 20 - 2 * 4 = 12; then 12 - 2 * 4 = 4, the divisor.
    expectCells(H, tableOf({{1, 1, 2}, {0, 1, 2}, {0, 0, 1}}));
    const matrix<double> four =
        reduced(M_ForwardDoolittle, tableOf({{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 5, 0}, {0, 0, 0, 3}}));
    expectCells(four, tableOf({{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}));
}

TEST(HermiteForm, ClearsARowWhoseDiagonalIsNegligible)
{
    expectCells(reduced(M_ForwardDoolittle, tableOf({{1e-12, 3}, {3, 5}})), tableOf({{0, 0}, {3, 1}}));
    expectCells(reduced(M_ForwardDoolittle, tableOf({{1, 2}, {2, 4 + 1e-13}})), tableOf({{1, 2}, {0, 0}}));
    expectCells(reduced(M_ForwardDoolittle, tableOf({{1, 0}, {0, 1e-12}})), tableOf({{1, 0}, {0, 0}}));
    const double over = std::nextafter(1e-12, 1.0);
    const matrix<double> kept = reduced(M_ForwardDoolittle, tableOf({{over, 0}, {0, 5}}));
    EXPECT_SAME_BITS(kept.getElement(0, 0), 1.0) << "the test includes equality, and no more";
}

TEST(HermiteForm, LeavesAPivotThatIsNearlyOne)
{
    const double nearlyOne = 1 + 0.9e-12;
    const matrix<double> H = reduced(M_ForwardDoolittle, tableOf({{nearlyOne, 3}, {3, 20}}));
    EXPECT_SAME_BITS(H.getElement(0, 0), nearlyOne);
    EXPECT_SAME_BITS(H.getElement(0, 1), 3.0) << "and its row is not divided";
    const matrix<double> further = reduced(M_ForwardDoolittle, tableOf({{1 + 3e-12, 3}, {3, 20}}));
    EXPECT_SAME_BITS(further.getElement(0, 0), 1.0);
}

TEST(HermiteForm, IsTheUnitTableForFullRank)
{
    expectCells(reduced(M_HermiteCanonical, tableOf({{4, 2, 2}, {2, 5, 3}, {2, 3, 6}})),
                tableOf({{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}));
}

TEST(HermiteForm, ShowsWhatAMissingRankLeaves)
{
    // The third column is the sum of the other two: H(1,3) = H(2,3) = 1, and H is idempotent.
    const matrix<double> H = reduced(M_HermiteCanonical, tableOf({{2, 0, 2}, {0, 1, 1}, {2, 1, 3}}));
    expectCells(H, tableOf({{1, 0, 1}, {0, 1, 1}, {0, 0, 0}}));
    expectCells(timesTable(H, H), H);
}

TEST(HermiteForm, LeavesWhatIsNegligibleAboveAPivot)
{
    matrix<double> H = reduced(M_HermiteCanonical, tableOf({{1, 0.5e-12, 3}, {0, 1, 2}, {0, 0, 20}}));
    EXPECT_SAME_BITS(H.getElement(0, 1), 0.5e-12);
    H = reduced(M_HermiteCanonical, tableOf({{1, 1e-12}, {0, 1}}));
    EXPECT_SAME_BITS(H.getElement(0, 1), 1e-12);
    H = reduced(M_HermiteCanonical, tableOf({{1, 2e-12, 3}, {0, 1, 2}, {0, 0, 20}}));
    EXPECT_SAME_BITS(H.getElement(0, 1), 0.0);
}

TEST(HermiteForm, TakesATableOfTinyNumbersForZeros)
{
    for (const reduction form : {M_ForwardDoolittle, M_HermiteCanonical}) {
        const matrix<double> H = reduced(form, tableOf({{3e-13, 1e-13}, {1e-13, 3e-13}}));
        EXPECT_SAME_BITS(H.getElement(0, 0), 0.0);
        EXPECT_SAME_BITS(H.getElement(0, 1), 0.0);
        EXPECT_SAME_BITS(H.getElement(1, 1), 0.0);
    }
}

TEST(HermiteForm, MayBeWrittenOverTheTable)
{
    matrix<double> A = tableOf({{4, 2, 2}, {9, 5, 3}, {9, 9, 6}});
    const matrix<double> H = reduced(M_HermiteCanonical, A);
    M_HermiteCanonical(&A, 3, &A);
    expectCells(A, H);
}
