#include "linalg/kernels/sweep.h"

#include "linalg/g2_sweep.h"
#include "linalg/kernels/instruction_sets.h"
#include "linalg/square_tables.h"
#include "reference/sweeps.h"
#include "support/near_tables.h"

using namespace korvel::test;
using korvel::kernels::sweepKernel;

namespace
{

/** Orders round every strip, group and block. */
std::vector<int> orders()
{
    const auto edges = sweepKernel().edges;
    const int strip = static_cast<int>(edges.stripRows);
    const int block = static_cast<int>(edges.blockPivots);
    return {1,
            2,
            7,
            8,
            9,
            strip - 1,
            strip,
            strip + 1,
            block - 1,
            block,
            block + 1,
            block + strip - 1,
            block + strip,
            block + strip + 1,
            2 * block,
            2 * block + 11,
            3 * block + strip + 5};
}

/** A table that the sweep does not reduce to NaN: few odd cells, and pivots of very different sizes. */
matrix<double> sweepable(random_cells& cells, int n)
{
    matrix<double> table(n, n, 0.0);
    std::generate_n(table.data, table.nbElem, [&] { return cells.integer(-1000, 1000) / 977.0; });
    for (int i = 0; i < n; ++i) {
        // Now and then a pivot of 0, or a column that is that of another row.
        const int kind = cells.integer(0, 9);
        if (kind == 0) {
            table.setElement(i, i, cells.integer(0, 1) == 0 ? 0.0 : -0.0);
        } else if (kind > 3) {
            table.setElement(i, i, cells.integer(1, 50));
        }
    }
    return table;
}

} // namespace

TEST(SweepKernel, HasTheBitsOfThePlainSweepOnEveryInstructionSet)
{
    for (const auto set : setsOfThisProcessor()) {
        const korvel::kernels::forced_set forced(set);
        std::uint64_t seed = 1;
        for (const int n : orders()) {
            for (const double tolerance : {0.0, 1e-12, 0.05, 3.0, notANumber}) {
                SCOPED_TRACE(::testing::Message() << "set " << static_cast<int>(set) << ", order " << n
                                                  << ", tolerance " << tolerance);
                random_cells cells(++seed, odd_cells::all);
                matrix<double> A = sweepable(cells, n);
                if (seed % 5 == 0) {
                    A.data[cells.integer(0, n * n - 1)] = cells.value();
                }
                matrix<double> expected(A);
                for (int k = 1; k <= n; ++k) {
                    plainSweepStep(expected, n, k, tolerance);
                }
                const std::size_t size = sweepKernel().scratchSize(n);
                std::vector<double> scratch(size + 16, 0.125);
                sweepKernel().sweep(A.data, n, n, tolerance, scratch.data() + seed % 8);
                for (std::uint64_t k = 0; k < expected.nbElem; ++k) {
                    ASSERT_SAME_BITS(A.data[k], expected.data[k]) << "cell " << k;
                }
                for (std::size_t k = size + seed % 8; k < scratch.size(); ++k) {
                    ASSERT_EQ(scratch[k], 0.125) << "no further than the scratch goes";
                }
            }
        }
    }
}

TEST(SweepKernel, LeavesTheRestOfALargerTable)
{
    for (const auto set : setsOfThisProcessor()) {
        const korvel::kernels::forced_set forced(set);
        random_cells cells(3, odd_cells::none);
        for (const int n : {1, 17, 50, 75}) {
            matrix<double> A = sweepable(cells, n + 3);
            matrix<double> expected(A);
            G2SweepStep(&A, n, 1, 1e-12);
            plainSweepStep(expected, n, 1, 1e-12);
            expectSame(A, expected);
            plainInverseG2(expected, n, 1e-12, expected);
            M_InverseG2(&A, n, 1e-12, &A);
            expectSame(A, expected);
        }
    }
}
