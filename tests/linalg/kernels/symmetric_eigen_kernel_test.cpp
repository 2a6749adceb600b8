#include "linalg/kernels/symmetric_eigen.h"

#include "linalg/kernels/instruction_sets.h"
#include "linalg/symmetric_eigen.h"
#include "reference/symmetric_eigen.h"
#include "support/matrix_kinds.h"
#include "support/random_tables.h"

#include <cstring>
#include <gtest/gtest.h>

using namespace korvel;
using namespace korvel::test;

namespace
{

/** Compares the decomposition of every instruction set with the plain loops. */
void expectPlain(const matrix<double>& A, short int sortFlag)
{
    const int n = A.nbrows;
    const plain_eigen expected = plainEigen(A, n, sortFlag);
    for (const auto set : setsOfThisProcessor()) {
        SCOPED_TRACE(::testing::Message() << "instruction set " << static_cast<int>(set));
        const kernels::forced_set forced(set);
        matrix<double> values;
        matrix<double> vectors;
        ASSERT_EQ(M_Eigen(A, values, vectors, n, sortFlag), expected.status);
        if (expected.status != 0) {
            continue;
        }
        for (int k = 0; k < n; ++k) {
            ASSERT_SAME_BITS(values.data[k], expected.values[static_cast<std::size_t>(k) + 1]);
        }
        for (std::size_t k = 0; k < expected.vectors.size(); ++k) {
            ASSERT_SAME_BITS(vectors.data[k], expected.vectors[k]);
        }
    }
}

} // namespace

TEST(SymmetricEigenKernel, HasTheBitsOfThePlainLoopsAroundEachOfItsSizes)
{
    // Tiles of 8, strips of 16, blocks of 64, tiles in the scratch below 40, other portions from 200, larger
    // batches from 256, and chunks of other widths as the caches fill.
    for (const int n : {1,  7,  8,  9,  15,  16,  17,  31,  33,  39,  40,  41,  48,  63,
                        64, 65, 71, 80, 127, 128, 129, 177, 199, 200, 201, 255, 256, 257}) {
        for (const matrix_kind kind : allMatrixKinds) {
            if (n > 130 && kind != matrix_kind::random && kind != matrix_kind::clustered) {
                continue;
            }
            SCOPED_TRACE(::testing::Message() << kind << " of order " << n);
            ASSERT_NO_FATAL_FAILURE(expectPlain(tableOfKind(kind, n, n, true), n % 2 == 0 ? -1 : 0));
        }
    }
}

TEST(SymmetricEigenKernel, OddCellsAndTablesInParts)
{
    constexpr double odd[] = {0.0, -0.0, 5e-324, 1e150, -1e200, 1e308, notANumber, infinite, MISSING_DBL / 2};
    for (unsigned seed = 1; seed <= 120; ++seed) {
        std::mt19937_64 generator(seed);
        const int n = 2 + static_cast<int>(generator() % 90);
        matrix<double> A = randomTable(generator, n, n, 1 + seed % 12);
        for (unsigned times = 0; times < seed % 7; ++times) {
            A.data[generator() % A.nbElem] = odd[generator() % (seed % 4 == 0 ? 9 : 3)];
        }
        // Zero blocks leave tables in parts, and rows without a reflector.
        const int cut = static_cast<int>(generator() % static_cast<unsigned>(n));
        for (int k = 0; seed % 3 == 0 && k < n * n; ++k) {
            A.data[k] = (k % n < cut) == (k / n < cut) ? A.data[k] : 0.0;
        }
        for (int j = 0; j < n; ++j) {
            for (int i = 0; i < j; ++i) {
                A.setElement(i, j, A.getElement(j, i));
            }
        }
        SCOPED_TRACE(seed);
        ASSERT_NO_FATAL_FAILURE(expectPlain(A, -1));
    }
}
