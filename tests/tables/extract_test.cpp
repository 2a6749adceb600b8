#include "tables/extract.h"

#include "reference/block_moves.h"
#include "support/near_tables.h"

#include <gtest/gtest.h>

using namespace korvel::test;
namespace reference = korvel::reference;

namespace
{

struct range {
    int first, last;

    range(random_cells& cells, int n) : first(cells.integer(-1, n + 1)), last(cells.integer(first - 1, n + 2))
    {
    }

    int count() const { return last - first + 1; }
};

template <class T>
void expectRows()
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        const range taken(cells, rows);
        auto x = nearTable<T>(cells, rows, cols);
        auto out = nearTable<T>(cells, taken.count(), cols);
        auto expected = twinOf(out);
        M_ExtractMatToMat(&x, cols, taken.first, taken.last, &out);
        reference::copy(x, taken.first, 1, expected, 1, 1, taken.count(), cols);
        expectSame(out, expected);

        random_chunks<T> chunks(cells, cols, [&](int) { return rows; });
        M_ExtractMatToMatSPV(chunks.get(), cols, taken.first, taken.last, &out);
        auto** from = chunks.get();
        reference::copy(from, taken.first, 1, expected, 1, 1, taken.count(), cols);
        expectSame(out, expected);
    });
}

} // namespace

TEST(TableExtract, RowsAsThePlainLoop)
{
    expectRows<double>();
    expectRows<text>();
}

TEST(TableExtract, NumbersAsThePlainLoop)
{
    forRandomShapes([](random_cells& cells, int rows, int cols) {
        auto x = nearTable<double>(cells, rows, cols);
        auto out = nearTable<double>(cells, rows, cols);
        auto expected = twinOf(out);
        const range taken(cells, rows);
        Extractij(&x, cols, taken.first, taken.last, &out);
        reference::copy(x, taken.first, 1, expected, 1, 1, taken.count(), cols);
        expectSame(out, expected);

        const range columns(cells, cols);
        M_ExtractMatToMatByColDbl(&x, rows, columns.first, columns.last, &out);
        reference::copy(x, 1, columns.first, expected, 1, 1, rows, columns.count());
        expectSame(out, expected);
    });
}

TEST(TableExtract, AnEmptyRangeLeavesTheResultAsItWas)
{
    matrix<double> x(3, 2, 1.0);
    matrix<double> out(3, 2, 70.0);
    out.oobValue = 71.0;
    M_ExtractMatToMat(&x, 2, 3, 2, &out);
    EXPECT_EQ(std::vector<double>(out.data, out.data + 6), std::vector<double>(6, 70.0));
    EXPECT_EQ(out.oobValue, 71.0);
}
