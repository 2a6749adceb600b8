#include "frames/statistics/table_extremes.h"

#include "frames/frame.h"
#include "statistics/table_extremes.h"

using namespace korvel;

double Cpp_V_Min3(ST_MVect* record, int nRows, int nCols)
{
    const auto table = frame::record<double>(record);
    return smallestOf(table, nRows, nCols);
}
