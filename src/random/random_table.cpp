#include "random/random_table.h"

#include "containers/views.h"
#include "random/random_source.h"

#include <algorithm>
#include <vector>

namespace
{

using korvel::panelCells;
using korvel::processSource;

/**
 * Draws run along rows, but the table is stored by columns. So a panel of rows is drawn first and then copied
 * out column by column, in whole cache lines. The panel holds raw numbers, half the size of doubles, and fits
 * in the cache.
 */
template <class T>
void fillCells(matrix<T>& out, int rows, int cols)
{
    const int rowsAtOnce = std::clamp(panelCells / cols, 1, rows);
    std::vector<std::int32_t> panel(static_cast<std::size_t>(rowsAtOnce) * static_cast<std::size_t>(cols));
    for (int first = 0; first < rows; first += std::min(rowsAtOnce, rows - first)) {
        const int count = std::min(rowsAtOnce, rows - first);
        korvel::drawRawBlock(processSource, panel.data(),
                             static_cast<std::size_t>(count) * static_cast<std::size_t>(cols));
        for (int j = 0; j < cols; ++j) {
            const std::int32_t* const draws = panel.data() + j;
            korvel::withCells(
                [&](auto& column) {
                    for (int i = 0; i < count; ++i) {
                        column.set(first + i, static_cast<T>(draws[static_cast<std::ptrdiff_t>(i) * cols] *
                                                             korvel::RAND_SCALE));
                    }
                },
                korvel::writing(out).column(j, rows));
        }
    }
}

template <class T>
void fillTable(matrix<T>& out, int rows, int cols, int* seed, short int flag, int* nextSeed)
{
    GetSeed(seed, &flag);
    if (rows > 0 && cols > 0) {
        fillCells(out, rows, cols);
    }
    GetSeedUpdate(nextSeed);
}

} // namespace

void M_GenerateRandom01(matrix<double>& out, int rows, int cols, int* seed, short int flag, int* nextSeed)
{
    fillTable(out, rows, cols, seed, flag, nextSeed);
}

void M_GenerateRandom01(matrix<int>* out, int rows, int cols, int* seed, short int flag, int* nextSeed)
{
    fillTable(*out, rows, cols, seed, flag, nextSeed);
}

namespace korvel
{

void generateRandom01(double* out, int rows, int cols, int* seed, short int flag, int* nextSeed)
{
    GetSeed(seed, &flag);
    if (rows > 0 && cols > 0) {
        draw01Block(processSource, out, static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols));
    }
    GetSeedUpdate(nextSeed);
}

} // namespace korvel
