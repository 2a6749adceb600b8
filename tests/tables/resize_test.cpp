#include "tables/resize.h"

#include "reference/block_moves.h"
#include "support/near_tables.h"

#include <gtest/gtest.h>

using namespace korvel::test;
namespace reference = korvel::reference;

namespace
{

template <class T, class Function>
void expectResized(Function resize)
{
    forRandomShapes([resize](random_cells& cells, int rows, int cols) {
        auto x = nearTable<T>(cells, rows, cols);
        const int newRows = cells.integer(0, rows + 2);
        const int newCols = cells.integer(0, cols + 2);
        auto y = nearTable<T>(cells, newRows, newCols);
        auto expected = twinOf(y);
        resize(&x, rows, cols, &y, newRows, newCols);
        for (int i = 1; i <= newRows; ++i) {
            for (int j = 1; j <= newCols; ++j) {
                const bool has = i <= rows && j <= cols;
                reference::store(expected, i, j, has ? reference::cell(x, i, j) : x.oobValue);
            }
        }
        expectSame(y, expected);
    });
}

} // namespace

TEST(TableResize, AsThePlainLoop)
{
    using numbers = matrix<double>;
    using flags = matrix<short int>;
    expectResized<double>(static_cast<void (*)(numbers*, int, int, numbers*, int, int)>(M_CopyResize));
    expectResized<short int>(static_cast<void (*)(flags*, int, int, flags*, int, int)>(M_CopyResize));
    expectResized<text>(M_CopyResizeStr);

    forRandomShapes([](random_cells& cells, int rows, int cols) {
        auto x = nearTable<double>(cells, rows, cols);
        auto y = nearTable<double>(cells, rows + 1, cols + 1);
        auto expected = twinOf(y);
        M_CopyToBigger(&x, rows, cols, &y);
        reference::copy(x, 1, 1, expected, 1, 1, rows, cols);
        expectSame(y, expected);
    });
}

TEST(TableResize, NewCellsReadTheSpareSlotOfTheSource)
{
    matrix<double> x(1, 1, 5.0);
    matrix<double> y(2, 1, 0.0);
    M_CopyResize(&x, 1, 1, &y, 2, 1);
    EXPECT_EQ(y.data[1], -1.0);
    x.setElement(0, 0, 7.0);
    M_CopyResize(&x, 1, 1, &y, 2, 1);
    EXPECT_EQ(y.data[0], 7.0);
    EXPECT_EQ(y.data[1], 7.0);
}
