#include "containers/records.h"
#include "containers/sparse_matrix.h"

#include <gtest/gtest.h>

TEST(SparseMatrixOfTheLibrary, HasEveryMember)
{
    matrixSparse empty;
    EXPECT_EQ(empty.nnz, 0);
    matrix<double> dense(2, 2, 0.0);
    dense.setElement(0, 0, 2.0);
    dense.setElement(1, 1, 4.0);
    matrixSparse loaded(&dense);
    matrixSparse copy(loaded);
    copy.setElement(0, 1, 1.0);
    copy.vbset(2, 1, 3.0);
    EXPECT_EQ(copy.getElement(1, 0), 3.0);
    EXPECT_EQ(copy.vbget(1, 2), 1.0);
    EXPECT_EQ(copy.getElement(1), 0.0);
    EXPECT_EQ(copy.setElement(1, 2.0), 0.0);
    EXPECT_EQ(copy.vbget(1), 0.0);
    EXPECT_EQ(copy.vbset(1, 2.0), 0.0);
    empty = copy;
    EXPECT_EQ(empty.nnz, 4);
    empty.outputSparse(&dense);
    EXPECT_EQ(empty.nnz, 2);
    cST_MVect<double> columns(3, 1);
    empty.outputSparse(&columns);
    EXPECT_EQ(empty.nbrows, 3);

    bool colEmpty[2];
    bool rowEmpty[2];
    bool rowDiagOnly[2];
    loaded.calcStrucInfo(2, 2, colEmpty, rowEmpty, rowDiagOnly, 0, 0);
    EXPECT_TRUE(rowDiagOnly[1]);
    std::vector<bool> emptyColumns;
    std::vector<bool> emptyRows;
    std::vector<bool> diagonals;
    loaded.calcStrucInfo(2, 2, emptyColumns, emptyRows, diagonals, 0, 0);
    EXPECT_EQ(diagonals, (std::vector<bool>{true, true}));

    matrixSparse inverse(2, 2, 0.0, false);
    short int singular = 0;
    EXPECT_EQ(loaded.inverse1(&inverse, singular, 1.0), 0);
    EXPECT_EQ(inverse.to_matrix().getElement(1, 1), 0.25);
    EXPECT_EQ(inverse.to_matrix(1, 1).getElement(0, 0), 0.5);
    inverse.copyMatTo(&copy);
    EXPECT_EQ(copy.nnz, 2);
    copy.Redim(1, 1, 0.0);
    EXPECT_EQ(copy.nbrows, 1);
    copy.ReInit();
    EXPECT_EQ(copy.nbrows, 0);
}
