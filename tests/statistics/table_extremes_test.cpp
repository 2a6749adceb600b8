#include "statistics/table_extremes.h"

#include "reference/vector_extremes.h"
#include "support/bits.h"
#include "support/random_cells.h"

#include <vector>

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
    EXPECT_SAME_BITS(V_Min_ST(&table, 2, 2, none), 2.0);
    short int third[] = {0, 0, 7, 0};
    EXPECT_SAME_BITS(V_Min_ST(&table, 2, 2, third), 3.0);
}

TEST(SmallestOfChunks, TheFirstElementTakesPartWhateverItIs)
{
    auto table = twoChunks();
    short int onlyLast[] = {-1, -1, -1, 0};
    EXPECT_SAME_BITS(V_Min_ST(&table, 2, 2, onlyLast), 3.0);
    table.setElement(0, 0, MISSING_DBL);
    short int none[] = {0, 0, 0, 0};
    EXPECT_SAME_BITS(V_Min_ST(&table, 2, 2, none), MISSING_DBL);
}

TEST(SmallestOfChunks, OfNothingIsMissing)
{
    auto table = twoChunks();
    short int all[] = {-1, 1, 2, -1};
    EXPECT_SAME_BITS(V_Min_ST(&table, 2, 2, all), MISSING_DBL);
    EXPECT_SAME_BITS(V_Min_ST(&table, 0, 2, all), MISSING_DBL);
}

TEST(SmallestOfChunks, EqualToThePlainLoop)
{
    korvel::test::forRandomVectors([](korvel::test::random_cells& cells, int n, int held) {
        matrix3DVect<matrix<double>> table;
        const int chunks = cells.integer(1, 4);
        for (int j = 0; j < chunks; ++j) {
            // One shorter than the others reads the spare slot at its end.
            table.chunks.push_back(cells.values(j == 1 ? held : n));
        }
        auto flags = cells.flags(n * chunks);
        const double expected = korvel::reference::smallestOfChunks(table.chunks, chunks, n, flags.data());
        ASSERT_SAME_BITS(V_Min_ST(&table, chunks, n, flags.data()), expected);
    });
}
