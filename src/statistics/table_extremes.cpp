#include "statistics/table_extremes.h"

#include "containers/views.h"

#include <cstdint>

double V_Min_ST(matrix3DVect<matrix<double>>* table, int nChunks, int nPerChunk, short int* iMissing)
{
    if (nChunks < 1 || nPerChunk < 1) {
        return MISSING_DBL;
    }
    bool any = false;
    double least = table->getElement(0, 0);
    const auto columns = korvel::reading(*table);
    for (int chunk = 0; chunk < nChunks; ++chunk) {
        const short int* const flags = iMissing + static_cast<std::int64_t>(chunk) * nPerChunk;
        const auto lookAt = [&](auto cells) {
            for (int i = 0; i < nPerChunk; ++i) {
                const double value = cells[i];
                if (flags[i] == 0 && value != MISSING_DBL) {
                    any = true;
                    least = value < least ? value : least;
                }
            }
        };
        korvel::withCells(lookAt, columns.column(chunk, nPerChunk));
    }
    return any ? least : MISSING_DBL;
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
