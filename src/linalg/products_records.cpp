#include "linalg/products_records.h"

#include "containers/record_columns.h"
#include "linalg/row_by_row.h"

namespace
{

using korvel::product_side;
using korvel::summed;

/** The first columns of a record as a list, an empty one for each that it does not have. */
class column_list
{
public:
    column_list(cST_MVect<double>& table, int cols)
    {
        for (int j = 0; j < cols; ++j) {
            places_.push_back(&korvel::columnAt(table, j, nowhere_));
        }
        first_ = places_.data();
    }
    column_list(const column_list&) = delete;
    column_list& operator=(const column_list&) = delete;

    [[nodiscard]] matrix<double>**& table() { return first_; }

    /** The list as one side of a product. */
    [[nodiscard]] auto side(summed way, int outer, int depth)
    {
        return product_side<matrix<double>**>(first_, way, outer, depth);
    }

private:
    matrix<double> nowhere_;
    std::vector<matrix<double>*> places_;
    matrix<double>** first_ = nullptr;
};

void reportSize(cST_MVect<double>& result, int rows, int cols)
{
    result.nbrowsmax = rows;
    result.nbcols = cols;
}

/** C, `rows` by `cols`, from two lists that are summed each its way. */
void multiplyColumns(int rows, int cols, int depth, column_list& left, summed leftWay, column_list& right,
                     summed rightWay, cST_MVect<double>& C)
{
    column_list result(C, cols);
    korvel::formProduct(rows, cols, depth, left.side(leftWay, rows, depth), right.side(rightWay, cols, depth),
                        korvel::term_factors::none(), result.table());
    reportSize(C, rows, cols);
}

} // namespace

int M_ProductAB_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& B, int q, cST_MVect<double>& C)
{
    column_list left(A, p);
    column_list right(B, q);
    multiplyColumns(n, q, p, left, summed::along, right, summed::down, C);
    return 0;
}

void M_ProductTrAB_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& B, int q, cST_MVect<double>& C)
{
    column_list left(A, p);
    column_list right(B, q);
    multiplyColumns(p, q, n, left, summed::down, right, summed::down, C);
}

void M_ProductATrB_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& B, int m, cST_MVect<double>& C)
{
    column_list left(A, p);
    column_list right(B, p);
    multiplyColumns(n, m, p, left, summed::along, right, summed::along, C);
}

void M_ProductABTrA_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& B, short int symmetric,
                       cST_MVect<double>& C)
{
    column_list outer(A, p);
    column_list inner(B, p);
    column_list result(C, n);
    const auto how = symmetric == -1 ? korvel::extent::mirrored : korvel::extent::whole;
    korvel::formRowByRow(n, p, p, n, outer.side(summed::along, n, p), inner.side(summed::down, p, p),
                         outer.side(summed::along, n, p), result.table(), how, korvel::workers::caller);
    reportSize(C, n, n);
}
