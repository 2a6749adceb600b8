// A sibling module: it links with the core routines and passes its own tables, in each of their forms.
#include <korvelmathtools/containers/matrix.h>
#include <korvelmathtools/containers/matrix3d.h>
#include <korvelmathtools/containers/record_copies.h>
#include <korvelmathtools/containers/sparse_matrix.h>
#include <korvelmathtools/linalg/products.h>
#include <korvelmathtools/linalg/products_sparse.h>
#include <korvelmathtools/statistics/table_extremes.h>
#include <korvelmathtools/statistics/vector_sums.h>

#include <cstdio>

namespace
{

int failures = 0;

void check(bool holds, const char* what)
{
    std::printf("%s: %s\n", holds ? "ok" : "FAILED", what);
    failures += holds ? 0 : 1;
}

} // namespace

int main()
{
    // Columns (1, 2) and (3, 4); its square has the columns (7, 10) and (15, 22).
    double cells[] = {1.0, 2.0, 3.0, 4.0};
    matrix<double> table(2, 2, cells, true);
    check(V_Sum(&table, 4, nullptr, nullptr) == 10.0, "the sum of a borrowed table");

    matrix<double> square;
    square.Redim(2, 2, 0.0);
    M_ProductAB(table, 2, 2, table, 2, square);
    check(square[0] == 7.0 && square[1] == 10.0 && square[2] == 15.0 && square[3] == 22.0, "a product");

    matrixSparse sparse(&table);
    matrixSparse sparseSquare;
    M_ProductAB(&sparse, 2, 2, &sparse, 2, &sparseSquare, false);
    check(sparseSquare.getElement(1, 1) == 22.0, "a product of sparse tables");

    matrix<double> first(2, 1, cells, true);
    matrix<double> second(2, 1, cells + 2, true);
    matrix<double>* columns[] = {&first, &second};
    matrix<double>* result = &square;
    M_ProductABSPV(columns, 2, 2, &table, 2, result);
    check(square[2] == 15.0, "a product with a list of columns");

    matrix3DVect<matrix<double>> chunks;
    chunks.chunks.emplace_back(2, 1, 5.0);
    chunks.chunks.emplace_back(2, 1, 3.0);
    short int flags[] = {0, 0, 0, 0};
    check(V_Min_ST(&chunks, 2, 2, flags) == 3.0, "the smallest number of a chunked table");

    cST_MVect<double> record(2, 2);
    CopyDblToMV(table, 2, 2, record);
    check(record.Vectors[1].Vect[0] == 3.0, "a table copied into a record");
    return failures;
}
