#include "linalg/products_records.h"

#include "containers/record_columns.h"
#include "linalg/row_by_row.h"

namespace
{

using korvel::product_side;

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

    // The list as one side of a product.
    [[nodiscard]] auto along(int rows) { return korvel::along(first_, rows); }
    [[nodiscard]] auto down(int cols) { return korvel::down(first_, cols); }

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

using side = product_side<matrix<double>**>;

/** C from two lists. */
void multiplyColumns(const side& left, int rows, const side& right, int cols, int depth, cST_MVect<double>& C)
{
    column_list result(C, cols);
    korvel::formProduct(left, right, depth, result.table());
    reportSize(C, rows, cols);
}

} // namespace

int M_ProductAB_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& B, int q, cST_MVect<double>& C)
{
    column_list left(A, p);
    column_list right(B, q);
    multiplyColumns(left.along(n), n, right.down(q), q, p, C);
    return 0;
}

void M_ProductTrAB_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& B, int q, cST_MVect<double>& C)
{
    column_list left(A, p);
    column_list right(B, q);
    multiplyColumns(left.down(p), p, right.down(q), q, n, C);
}

void M_ProductATrB_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& B, int m, cST_MVect<double>& C)
{
    column_list left(A, p);
    column_list right(B, p);
    multiplyColumns(left.along(n), n, right.along(m), m, p, C);
}

void M_ProductABTrA_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& B, short int symmetric,
                       cST_MVect<double>& C)
{
    column_list outer(A, p);
    column_list inner(B, p);
    column_list result(C, n);
    const auto how = symmetric == -1 ? korvel::extent::mirrored : korvel::extent::whole;
    korvel::formRowByRow(outer.along(n), inner.down(p), outer.along(n), p, result.table(), how,
                         korvel::workers::caller);
    reportSize(C, n, n);
}
