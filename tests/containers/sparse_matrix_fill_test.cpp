#include "containers/sparse_matrix.h"

#include "support/allocations.h"
#include "support/sparse_tables.h"
#include "support/special_values.h"

#include <cmath>
#include <limits>
#include <new>
#include <stdexcept>
#include <vector>

using namespace korvel::test;

namespace
{

const double belowZeroTest = std::nextafter(1e-18, 0.0);
const double aboveZeroTest = std::nextafter(1e-18, 1.0);
using positions = std::vector<int>;
using numbers = std::vector<double>;

} // namespace

TEST(FilledSparseMatrix, AFilledTableHasTheTruncatedValueForItsColumns)
{
    const matrixSparse m(2, 2, 3.7, false);
    EXPECT_EQ(m.nnz, 4);
    EXPECT_EQ(m.rowStart, (positions{0, 2, 4}));
    EXPECT_EQ(m.colIndex, (positions{3, 3, 3, 3}));
    EXPECT_EQ(m.values, (numbers{3.7, 3.7, 3.7, 3.7}));
    EXPECT_EQ(m.getElement(0, 0), 0.0);
    EXPECT_EQ(m.getElement(0, 2), 0.0);
    EXPECT_EQ(m.getElement(0, 3), -1.0) << "column 3 is past the count, whatever is stored";

    const matrixSparse ones(2, 3, -0.5, true);
    EXPECT_EQ(ones.nnz, 6);
    EXPECT_EQ(ones.rowStart, (positions{0, 3, 6}));
    EXPECT_EQ(ones.getElement(1, 0), -0.5);
    EXPECT_EQ(ones.getElement(1, 1), 0.0);
}

TEST(FilledSparseMatrix, AFillValueWithoutAnIntegerGivesTheSmallestColumn)
{
    constexpr int smallest = std::numeric_limits<int>::min();
    for (const double value : {notANumber, infinite, -infinite, 1e300, 2147483648.0, -2147483649.0}) {
        const matrixSparse m(1, 1, value, false);
        EXPECT_EQ(m.colIndex, (positions{smallest})) << value;
        EXPECT_SAME_BITS(m.values.at(0), value);
    }
    EXPECT_EQ(matrixSparse(1, 1, 2147483647.5, false).colIndex, (positions{2147483647}));
    EXPECT_EQ(matrixSparse(1, 1, -2000000000.5, false).colIndex, (positions{-2000000000}));
    EXPECT_EQ(matrixSparse(1, 1, -2147483648.9, false).colIndex, (positions{smallest}));
}

TEST(FilledSparseMatrix, AFillValueUpToTheThresholdGivesNoEntries)
{
    for (const double value : {0.0, 1e-18, -1e-18, belowZeroTest}) {
        const matrixSparse m(2, 2, value, false);
        EXPECT_EQ(m.nnz, 0) << value;
        EXPECT_TRUE(m.values.empty());
        EXPECT_EQ(m.rowStart, (positions{0, 0, 0}));
    }
    EXPECT_EQ(matrixSparse(2, 2, aboveZeroTest, false).nnz, 4);
    EXPECT_EQ(matrixSparse(2, 2, -aboveZeroTest, false).nnz, 4);
}

TEST(FilledSparseMatrix, AReservedTableCountsTheRoomAsEntries)
{
    matrixSparse m(2, 2, 0.0, true);
    EXPECT_EQ(m.nnz, 4);
    EXPECT_TRUE(m.values.empty());
    EXPECT_TRUE(m.colIndex.empty());
    EXPECT_GE(m.values.capacity(), 4u);
    EXPECT_GE(m.colIndex.capacity(), 4u);
    const std::int64_t before = allocationCount();
    m.setElement(0, 0, 1.0);
    m.setElement(1, 1, 1.0);
    EXPECT_EQ(allocationCount(), before);
    EXPECT_EQ(m.nnz, 6);
    m.setElement(0, 0, 0.0);
    EXPECT_EQ(m.nnz, 5);
}

TEST(FilledSparseMatrix, ATableThatCannotBeHadIsNotMade)
{
    EXPECT_THROW(matrixSparse(-2, 1, 0.0, false), std::length_error);
    EXPECT_THROW(matrixSparse(2, -1, 1.0, false), std::length_error);
    EXPECT_THROW(matrixSparse(2, -1, 0.0, true), std::length_error);
    EXPECT_THROW(matrixSparse(46341, 46341, 1.0, false), std::length_error);
    matrixSparse m(2, 2, 1.0, false);
    EXPECT_THROW(m.Redim(2, -1, 1.0), std::length_error);
    EXPECT_TRUE(sameStorage(m, {}));
}

TEST(FilledSparseMatrix, ACountThatWrapsReadsNothingOutside)
{
    // 65537 rows of 65536 columns are 65536 elements in 32 bits; the starts of the rows run past them.
    matrixSparse m(65537, 65536, 2.0, false);
    EXPECT_EQ(m.nnz, 65536);
    EXPECT_EQ(m.getElement(0, 2), 2.0);
    for (const int i : {1, 32768, 65535}) {
        EXPECT_EQ(m.getElement(i, 2), 0.0) << i;
    }
    EXPECT_EQ(m.getElement(65536, 2), 2.0) << "the start of the last row has come round to 0";
    m.setElement(1, 5, 1.0);
    EXPECT_EQ(m.values.size(), 65537u);
}
