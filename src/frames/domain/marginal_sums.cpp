#include "frames/domain/marginal_sums.h"

#include "domain/marginal_sums.h"
#include "frames/frame.h"

using namespace korvel;

int Cpp_CheckForMarginalSums(const double* table, int rows, int cols, double* result, int* keptRows,
                             int* keptCols, int* droppedRows, int* droppedCols)
{
    auto smaller = frame::filling(result, rows, cols);
    auto whole = frame::source(smaller, table, rows, cols);
    auto rowMarks = frame::filling(droppedRows, rows);
    auto columnMarks = frame::filling(droppedCols, cols);
    CheckForMarginalSums(whole, rows, cols, smaller, *keptRows, *keptCols, rowMarks, columnMarks);
    return 0;
}
