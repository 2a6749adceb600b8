#include "linalg/product_members.h"

#include "linalg/kernels/instruction_sets.h"

using namespace korvel::test;

namespace
{

/** Tables smaller than the counts say, each in its own way. */
operands cutDown(const operands& tables, random_cells& cells)
{
    operands made;
    for (const table& whole : tables) {
        made.push_back(
            tableOfRandom(cells, {cells.integer(0, whole.nbrows), cells.integer(1, whole.nbcols)}));
    }
    return made;
}

} // namespace

TEST_P(ProductMember, HasTheBitsOfThePlainLoop)
{
    forProductSizes(GetParam(), [](counts sizes) {
        random_cells cells(static_cast<std::uint64_t>(sizes.n * 1000 + sizes.p * 100 + sizes.q),
                           oddCellsOf(sizes));
        operands tables = randomOperands(GetParam(), sizes, cells);
        expectTwins(GetParam(), sizes, tables, GetParam().written(sizes));
    });
}

TEST_P(ProductMember, HasThemAcrossPanels)
{
    for (const counts sizes : {counts{7, 600, 11, 5}, counts{300, 5, 260, 270}, counts{130, 257, 3, 258},
                               counts{2, 3, 1100, 4}, counts{513, 33, 40, 1003}}) {
        random_cells cells(3, odd_cells::missing_and_zeros);
        const counts used{sizes.n, sizes.p, GetParam().usesQ ? sizes.q : 0, sizes.r};
        operands tables = randomOperands(GetParam(), used, cells);
        expectTwins(GetParam(), used, tables, GetParam().written(used));
    }
}

TEST_P(ProductMember, HasThemInEveryInstructionSetAndTeam)
{
    for (const auto set : setsOfThisProcessor()) {
        const korvel::kernels::forced_set forced(set);
        for (const int threads : {1, 2, 3, 7}) {
            const team_of team(threads);
            for (const counts sizes :
                 {counts{1, 1, 1, 1}, counts{2, 5, 3, 9}, counts{21, 34, 26, 19}, counts{67, 130, 70, 33},
                  counts{64, 64, 64, 64}, counts{9, 300, 17, 8}, counts{40, 40, 40, 40}}) {
                random_cells cells(static_cast<std::uint64_t>(sizes.p), odd_cells::all);
                const counts used{sizes.n, sizes.p, GetParam().usesQ ? sizes.q : 0, sizes.r};
                operands tables = randomOperands(GetParam(), used, cells);
                expectTwins(GetParam(), used, tables, GetParam().written(used));
            }
        }
    }
}

TEST_P(DenseProductMember, ReachesTheSpareSlotOutsideOfTables)
{
    for (std::uint64_t seed = 1; seed <= 60; ++seed) {
        random_cells cells(seed, odd_cells::missing);
        const counts sizes{cells.integer(1, 9), cells.integer(1, 9), cells.integer(1, 9),
                           cells.integer(1, 9)};
        operands tables = cutDown(randomOperands(GetParam(), sizes, cells), cells);
        expectTwins(GetParam(), sizes, tables, GetParam().written(sizes));
    }
}

TEST_P(DenseProductMember, TakesTablesThatAreLarger)
{
    for (std::uint64_t seed = 1; seed <= 40; ++seed) {
        random_cells cells(seed, odd_cells::missing_and_zeros);
        const counts sizes{cells.integer(0, 12), cells.integer(0, 12), cells.integer(0, 12),
                           cells.integer(0, 12)};
        const counts larger{sizes.n + 2, sizes.p + 1, sizes.q + 3, sizes.r + 2};
        operands tables = randomOperands(GetParam(), larger, cells);
        shape result = GetParam().written(sizes);
        result.rows += cells.integer(0, 2);
        result.cols += GetParam().byIndex ? 0 : cells.integer(0, 2);
        expectTwins(GetParam(), sizes, tables, result);
    }
}

TEST_P(DenseProductMember, TreatsASmallerResultByItsRule)
{
    for (std::uint64_t seed = 1; seed <= 40; ++seed) {
        random_cells cells(seed, odd_cells::none);
        const counts sizes{cells.integer(2, 9), cells.integer(2, 9), cells.integer(2, 9),
                           cells.integer(2, 9)};
        operands tables = randomOperands(GetParam(), sizes, cells);
        const shape whole = GetParam().written(sizes);
        expectTwins(GetParam(), sizes, tables, {whole.rows - 1, whole.cols});
        if (whole.cols > 1) {
            expectTwins(GetParam(), sizes, tables, {whole.rows, whole.cols - 1});
            expectTwins(GetParam(), sizes, tables, {whole.rows + 2, whole.cols - 1});
        }
    }
}

TEST_P(DenseProductMember, TakesCountsBelowNone)
{
    for (const counts sizes : {counts{-1, 2, 2, 2}, counts{2, -1, 2, 2}, counts{2, 2, -1, 2},
                               counts{2, 2, 2, -1}, counts{-3, -2, 2, 2}, counts{-1, -1, -1, -1}}) {
        random_cells cells(1, odd_cells::none);
        operands tables = randomOperands(GetParam(), {2, 2, 2, 2}, cells);
        expectTwins(GetParam(), sizes, tables, {3, GetParam().byIndex ? 1 : 3});
    }
}
