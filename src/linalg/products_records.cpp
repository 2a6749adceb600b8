#include "linalg/products_records.h"

#include "containers/record_columns.h"
#include "linalg/row_by_row.h"

namespace
{

using korvel::product_side;

/** The first columns of a record as one side of a product. */
class operand_list : public korvel::column_list
{
public:
    using column_list::column_list;

    [[nodiscard]] auto along(int rows) { return korvel::along(table(), rows); }
    [[nodiscard]] auto down(int cols) { return korvel::down(table(), cols); }
};

void reportSize(cST_MVect<double>& result, int rows, int cols)
{
    result.nbrowsmax = rows;
    result.nbcols = cols;
}

using side = product_side<matrix<double>**>;

/** C from two lists. */
void multiplyColumns(const side& left, int rows, const side& right, int cols, int depth, cST_MVect<double>& C)
{
    operand_list result(C, cols);
    korvel::formProduct(left, right, depth, result.table());
    reportSize(C, rows, cols);
}

} // namespace

int M_ProductAB_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& B, int q, cST_MVect<double>& C)
{
    operand_list left(A, p);
    operand_list right(B, q);
    multiplyColumns(left.along(n), n, right.down(q), q, p, C);
    return 0;
}

void M_ProductTrAB_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& B, int q, cST_MVect<double>& C)
{
    operand_list left(A, p);
    operand_list right(B, q);
    multiplyColumns(left.down(p), p, right.down(q), q, n, C);
}

void M_ProductATrB_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& B, int m, cST_MVect<double>& C)
{
    operand_list left(A, p);
    operand_list right(B, p);
    multiplyColumns(left.along(n), n, right.along(m), m, p, C);
}

void M_ProductABTrA_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& B, short int symmetric,
                       cST_MVect<double>& C)
{
    operand_list outer(A, p);
    operand_list inner(B, p);
    operand_list result(C, n);
    const auto how = symmetric == -1 ? korvel::extent::mirrored : korvel::extent::whole;
    korvel::formRowByRow(outer.along(n), inner.down(p), outer.along(n), p, result.table(), how,
                         korvel::workers::caller);
    reportSize(C, n, n);
}
