#include "random/random_table.h"

#include "random/random_state.h"
#include "support/bits.h"

#include <vector>

namespace korvel::test
{

namespace
{

/** The draws that a seed gives, one by one. */
std::vector<double> draws(int seed, int count)
{
    short int given = -1;
    GetSeed(&seed, &given);
    std::vector<double> result;
    for (int k = 0; k < count; ++k) {
        result.push_back(Random01());
    }
    return result;
}

using RandomTable = RandomState;

} // namespace

TEST_F(RandomTable, FillsRowByRow)
{
    for (const int algorithm : {0, 1}) {
        processSource.algo = algorithm;
        const auto u = draws(12345, 6);
        matrix<double> table(2, 3, 9.0);
        int seed = 12345;
        int next = 0;
        M_GenerateRandom01(table, 2, 3, &seed, -1, &next);
        for (int i = 0; i < 2; ++i) {
            for (int j = 0; j < 3; ++j) {
                EXPECT_SAME_BITS(table.getElement(i, j), u[static_cast<std::size_t>(3 * i + j)]);
            }
        }
        EXPECT_SAME_BITS(table.oobValue, u[5]);
        EXPECT_EQ(seed, 12345);
    }
}

TEST_F(RandomTable, PutsTheSameDrawsInOtherCellsThanTheArray)
{
    matrix<double> table(2, 3, 0.0);
    std::vector<double> array(6);
    int seed = 12345;
    int next = 0;
    M_GenerateRandom01(table, 2, 3, &seed, -1, &next);
    generateRandom01(array.data(), 2, 3, &seed, -1, &next);
    const auto u = draws(12345, 3);
    EXPECT_SAME_BITS(table.data[0], u[0]);
    EXPECT_SAME_BITS(table.data[2], u[1]);
    EXPECT_SAME_BITS(table.data[4], u[2]);
    EXPECT_SAME_BITS(array[0], u[0]);
    EXPECT_SAME_BITS(array[1], u[1]);
    EXPECT_SAME_BITS(array[2], u[2]);
}

TEST_F(RandomTable, HoldsOneDrawAfterAnotherInEveryShape)
{
    struct shape {
        int rows;
        int cols;
    };
    // Tables of less than one panel, of one, and of more; and rows that are a panel each, or longer.
    for (const auto [rows, cols] :
         {shape{1, 1}, shape{1, 1500}, shape{1500, 1}, shape{257, 129}, shape{panelCells / 2 - 1, 2},
          shape{panelCells / 2, 2}, shape{panelCells / 2 + 1, 2}, shape{70'000, 2}, shape{7, panelCells / 3},
          shape{2, panelCells - 1}, shape{2, panelCells}, shape{2, panelCells + 1}}) {
        const auto u = draws(rows + cols, rows * cols);
        const int stateAfter = processSource.s1;
        matrix<double> table(rows + 2, cols + 1, 9.0);
        int seed = rows + cols;
        int next = 0;
        M_GenerateRandom01(table, rows, cols, &seed, -1, &next);
        for (int i = 0; i < rows; ++i) {
            for (int j = 0; j < cols; ++j) {
                ASSERT_SAME_BITS(table.getElement(i, j),
                                 u[static_cast<std::size_t>(i) * static_cast<std::size_t>(cols) +
                                   static_cast<std::size_t>(j)]);
            }
        }
        for (int j = 0; j < cols; ++j) {
            ASSERT_EQ(table.getElement(rows, j), 9.0);
            ASSERT_EQ(table.getElement(rows + 1, j), 9.0);
        }
        ASSERT_EQ(table.getElement(0, cols), 9.0);
        EXPECT_SAME_BITS(table.oobValue, u.back());
        EXPECT_EQ(next, stateAfter);
    }
}

TEST_F(RandomTable, CellsOutsideAreDrawnAndGoToTheSpareSlot)
{
    const auto u = draws(12345, 12);
    matrix<double> table(2, 3, 9.0);
    int seed = 12345;
    int next = 0;
    M_GenerateRandom01(table, 3, 4, &seed, -1, &next);
    for (int i = 0; i < 2; ++i) {
        for (int j = 0; j < 3; ++j) {
            EXPECT_SAME_BITS(table.getElement(i, j), u[static_cast<std::size_t>(4 * i + j)]);
        }
    }
    EXPECT_SAME_BITS(table.oobValue, u[11]);
}

TEST_F(RandomTable, OfNothingSeedsAllTheSame)
{
    for (const auto& [rows, cols] : {std::pair{0, 3}, std::pair{3, 0}, std::pair{-1, 3}, std::pair{-2, -2}}) {
        matrix<double> table(2, 2, 9.0);
        matrix<int> integers(2, 2, 9);
        std::vector<double> array(16, 9.0);
        const auto expectSeeded = [](int seed, int next) {
            EXPECT_EQ(processSource.s1, 12345);
            EXPECT_EQ(processSource.s2, 1234);
            EXPECT_EQ(seed, 12345);
            EXPECT_EQ(next, 12345);
            setStates(0, 1, 1);
        };
        int seed = 12345;
        int next = 0;
        M_GenerateRandom01(table, rows, cols, &seed, 1, &next);
        expectSeeded(seed, next);
        next = 0;
        M_GenerateRandom01(&integers, rows, cols, &seed, 1, &next);
        expectSeeded(seed, next);
        next = 0;
        generateRandom01(array.data(), rows, cols, &seed, 1, &next);
        expectSeeded(seed, next);
        EXPECT_EQ(table.oobValue, -1.0);
        EXPECT_EQ(table.data[0], 9.0);
        EXPECT_EQ(integers.data[0], 9);
        EXPECT_EQ(array[0], 9.0);
    }
}

TEST_F(RandomTable, ReportsTheSeedInUse)
{
    setStates(0, 493972830, 5);
    matrix<double> table(1, 1, 0.0);
    int seed = 3;
    int next = 0;
    M_GenerateRandom01(table, 1, 1, &seed, 0, &next);
    EXPECT_EQ(seed, 493972830);
    EXPECT_EQ(next, 40014LL * 493972830 % 2147483563);
}

TEST_F(RandomTable, TheNextSeedOfTheTwisterIsTheDrawAfterTheTable)
{
    processSource.algo = 1;
    short int given = -1;
    int seed = 31;
    GetSeed(&seed, &given);
    for (int k = 0; k < 6; ++k) {
        RandomInt();
    }
    const int after = RandomInt();
    matrix<double> table(2, 3, 0.0);
    int next = 0;
    M_GenerateRandom01(table, 2, 3, &seed, -1, &next);
    EXPECT_EQ(next, after);
    std::vector<double> array(6);
    generateRandom01(array.data(), 2, 3, &seed, -1, &next);
    EXPECT_EQ(next, after);
}

TEST_F(RandomTable, IntegersAreTruncated)
{
    for (const int algorithm : {0, 1}) {
        processSource.algo = algorithm;
        matrix<int> table(40, 40, 9);
        int seed = 8;
        int next = 0;
        M_GenerateRandom01(&table, 40, 40, &seed, -1, &next);
        for (std::uint64_t k = 0; k < table.nbElem; ++k) {
            ASSERT_EQ(table.data[k], 0);
        }
        EXPECT_EQ(table.oobValue, 0);
    }
}

TEST_F(RandomTable, IntegersAreOneAtTheEndsOfTheRange)
{
    processSource.algo = 1;
    processSource.engine.next();
    auto& engine = processSource.engine;
    engine.words[engine.index] = untemper(0x80000000U);
    engine.words[engine.index + 1] = untemper(0x7FFFFFFFU);
    matrix<int> table(1, 2, 9);
    int seed = 0;
    int next = 0;
    M_GenerateRandom01(&table, 1, 2, &seed, 0, &next);
    EXPECT_EQ(table.data[0], -1);
    EXPECT_EQ(table.data[1], 1);
}

} // namespace korvel::test
