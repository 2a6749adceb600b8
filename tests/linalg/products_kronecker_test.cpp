#include "linalg/products_kronecker.h"

#include "reference/pair_products.h"
#include "support/column_tables.h"
#include "support/near_tables.h"

using namespace korvel::test;

namespace
{

/** A table of these counts, or one time in six of somewhat other ones. */
matrix<double> aTable(random_cells& cells, int rows, int cols)
{
    if (cells.integer(0, 5) == 0) {
        return nearTable<double>(cells, rows, cols);
    }
    matrix<double> made(rows, cols, 0.0);
    fillRandomly(cells, made);
    return made;
}

} // namespace

TEST(Kronecker, IsThePlainOne)
{
    for (std::uint64_t seed = 1; seed <= 500; ++seed) {
        SCOPED_TRACE(seed);
        random_cells cells(seed, seed % 2 == 0 ? odd_cells::all : odd_cells::none);
        const int r1 = cells.integer(0, 5);
        const int c1 = cells.integer(0, 4);
        const int r2 = cells.integer(0, 7);
        const int c2 = cells.integer(0, 4);
        matrix<double> A = aTable(cells, r1, c1);
        matrix<double> B = aTable(cells, r2, c2);
        matrix<double> actual = aTable(cells, r1 * r2, c1 * c2);
        matrix<double> expected = twinOf(actual);
        KroneckerTensorProduct(&A, r1, c1, &B, r2, c2, &actual);
        plainKronecker(A, r1, c1, B, r2, c2, expected);
        expectSame(actual, expected);
    }
}

TEST(Kronecker, HasABlockForEachCellOfTheFirstTable)
{
    matrix<double> A = columnTable(2, {1, 2, 3, 4});
    matrix<double> B = columnTable(1, {5, 7});
    matrix<double> C(2, 4, 0.0);
    KroneckerTensorProduct(&A, 2, 2, &B, 1, 2, &C);
    EXPECT_EQ(cellsOf(C), (std::vector<double>{5, 10, 7, 14, 15, 20, 21, 28}));
}

TEST(Kronecker, WritesNothingIntoAResultOfAnotherShape)
{
    matrix<double> A = columnTable(2, {1, 2});
    matrix<double> B = columnTable(2, {5, 7});
    for (const auto& [rows, cols] : {std::pair{4, 2}, std::pair{2, 2}, std::pair{5, 1}, std::pair{1, 4}}) {
        matrix<double> C(rows, cols, 9.0);
        KroneckerTensorProduct(&A, 2, 1, &B, 2, 1, &C);
        EXPECT_EQ(cellsOf(C), std::vector<double>(C.nbElem, 9.0));
        EXPECT_EQ(C.oobValue, -1.0);
    }
    // As many cells as the product, and counts whose product overflows 32 bits.
    matrix<double> none(0, 1, 0.0);
    KroneckerTensorProduct(&A, 65536, 1, &B, 65536, 1, &none);
    EXPECT_EQ(none.oobValue, -1.0);
    // Of counts below 0 the product may be one that fits.
    matrix<double> one(1, 1, 9.0);
    KroneckerTensorProduct(&A, -1, -1, &B, -1, -1, &one);
    EXPECT_EQ(one.data[0], 9.0);
}
