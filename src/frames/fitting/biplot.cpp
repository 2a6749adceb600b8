#include "frames/fitting/biplot.h"

#include "fitting/biplot.h"
#include "frames/frame.h"

using namespace korvel;

int VB_BiplotTransData(const double* rowCoordinates, const double* extraRowCoordinates,
                       const double* columnCoordinates, int rows, int extraRows, int columns, int axes,
                       const double* singularValues, double scale, double alpha, double* rowResult,
                       double* columnResult)
{
    auto points = frame::insteadOfCopy(rowCoordinates, rows, axes);
    auto extra = frame::insteadOfCopy(extraRowCoordinates, extraRows, axes);
    auto arrows = frame::insteadOfCopy(columnCoordinates, columns, axes);
    auto values = frame::insteadOfCopy(singularValues, axes);
    auto ofRows = frame::blank<double>(rows + extraRows, axes);
    auto ofColumns = frame::blank<double>(columns, axes);
    BiplotTransData(&points, &extra, &arrows, rows, extraRows, columns, axes, &values, scale, alpha, &ofRows,
                    &ofColumns);
    frame::copyOut(ofRows, rowResult);
    frame::copyOut(ofColumns, columnResult);
    return 0;
}

int VB_BiplotTransDataSPV(Hostarray** rowCoordinates, const double* extraRowCoordinates,
                          Hostarray** columnCoordinates, int rows, int extraRows, int columns, int axes,
                          const double* singularValues, double scale, double alpha, double* rowResult,
                          double* columnResult)
{
    const auto points = frame::chunks(rowCoordinates, axes, rows);
    auto extra = frame::insteadOfCopy(extraRowCoordinates, extraRows, axes);
    const auto arrows = frame::chunks(columnCoordinates, axes, columns);
    auto values = frame::insteadOfCopy(singularValues, axes);
    auto ofRows = frame::blank<double>(rows + extraRows, axes);
    auto ofColumns = frame::blank<double>(columns, axes);
    BiplotTransData(points.get(), &extra, arrows.get(), rows, extraRows, columns, axes, &values, scale, alpha,
                    &ofRows, &ofColumns);
    frame::copyOut(ofRows, rowResult);
    frame::copyOut(ofColumns, columnResult);
    return 0;
}

int ComputeCosines(const double* x, int n, int p, double* result)
{
    auto cosines = frame::changing(result, n, p);
    auto table = frame::besides(cosines, x, n, p);
    auto* place = &cosines;
    cComputeCosines(&table, n, p, place);
    return 0;
}

int Cpp_M_BoldCosines(const int* positions, int n, int* table)
{
    auto columns = frame::insteadOfCopy(positions, n);
    auto marks = frame::borrow(table, n, columnsReached(columns, n));
    M_BoldCosines(&columns, n, &marks);
    return 0;
}
