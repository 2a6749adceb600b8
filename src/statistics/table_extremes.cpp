#include "statistics/table_extremes.h"

#include <cstdint>

double V_Min_ST(matrix3DVect<matrix<double>>* table, int nChunks, int nPerChunk, short int* iMissing)
{
    bool any = false;
    double least = MISSING_DBL;
    for (int chunk = 0; chunk < nChunks; ++chunk) {
        for (int i = 0; i < nPerChunk; ++i) {
            const double value = table->getElement(i, chunk);
            if (iMissing[static_cast<std::int64_t>(chunk) * nPerChunk + i] != 0 || value == MISSING_DBL) {
                continue;
            }
            if (!any) {
                any = true;
                least = table->getElement(0, 0);
            }
            if (value < least) {
                least = value;
            }
        }
    }
    return least;
}

double korvel::smallestOf(const cST_MVect<double>& table, int rows, int cols)
{
    // What is not smaller than this counts as nothing found.
    constexpr double none = 1.79769313486231e308;
    double least = none;
    for (int j = 0; j < cols && static_cast<std::size_t>(j) < table.Vectors.size(); ++j) {
        const matrix<double>& column = table.Vectors[static_cast<std::size_t>(j)].Vect;
        for (int i = 0; i < rows; ++i) {
            const double value = column[i];
            if (value != MISSING_DBL && value < least) {
                least = value;
            }
        }
    }
    return least == none ? MISSING_DBL : least;
}
