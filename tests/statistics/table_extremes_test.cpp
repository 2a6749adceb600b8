#include "statistics/table_extremes.h"

#include "ordering/sort_table.h"
#include "support/bits.h"

#include <vector>

using korvel::test::sameBits;

namespace
{

/** Chunks (3, 5) and (2, 4). */
matrix3DVect<matrix<double>> twoChunks()
{
    matrix3DVect<matrix<double>> table;
    for (const double first : {3.0, 2.0}) {
        matrix<double> chunk(2, 1, first);
        chunk[1] = first + 2.0;
        table.chunks.push_back(std::move(chunk));
    }
    return table;
}

} // namespace

TEST(SmallestOfChunks, LooksAtKeptElements)
{
    auto table = twoChunks();
    short int none[] = {0, 0, 0, 0};
    EXPECT_TRUE(sameBits(V_Min_ST(&table, 2, 2, none), 2.0));
    short int third[] = {0, 0, 7, 0};
    EXPECT_TRUE(sameBits(V_Min_ST(&table, 2, 2, third), 3.0));
}

TEST(SmallestOfChunks, TheFirstElementTakesPartWhateverItIs)
{
    auto table = twoChunks();
    short int onlyLast[] = {-1, -1, -1, 0};
    EXPECT_TRUE(sameBits(V_Min_ST(&table, 2, 2, onlyLast), 3.0));
    table.setElement(0, 0, MISSING_DBL);
    short int none[] = {0, 0, 0, 0};
    EXPECT_TRUE(sameBits(V_Min_ST(&table, 2, 2, none), MISSING_DBL));
}

TEST(SmallestOfChunks, OfNothingIsMissing)
{
    auto table = twoChunks();
    short int all[] = {-1, 1, 2, -1};
    EXPECT_TRUE(sameBits(V_Min_ST(&table, 2, 2, all), MISSING_DBL));
    EXPECT_TRUE(sameBits(V_Min_ST(&table, 0, 2, all), MISSING_DBL));
}

TEST(SortSparse, MovesRowsAndAlwaysRewritesTheKey)
{
    matrix<double> dense(3, 2, 0.0);
    dense.setElement(0, 0, 1.0);
    dense.setElement(1, 1, 2.0);
    dense.setElement(2, 0, 3.0);
    matrixSparse table(&dense);
    matrixSparse companion(&dense);
    matrix<double> key(3, 1, 3.0);
    key[1] = 1.0;
    key[2] = 2.0;
    SortQ(&table, 3, 2, 1, 3, &key, &companion, 1, false, false);
    const double expected[3][2] = {{0.0, 2.0}, {3.0, 0.0}, {1.0, 0.0}};
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 2; ++j) {
            EXPECT_EQ(table.getElement(i, j), expected[i][j]) << i << " " << j;
        }
        EXPECT_EQ(companion.getElement(i, 0), expected[i][0]);
        EXPECT_EQ(key[i], i + 1.0);
    }
    EXPECT_EQ(table.nnz, 3);
    EXPECT_EQ(companion.getElement(1, 1), 2.0);
}
