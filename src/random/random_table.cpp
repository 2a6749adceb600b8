#include "random/random_table.h"

#include "random/random_source.h"

#include <algorithm>
#include <vector>

namespace
{

using korvel::processSource;

/**
 * Cells drawn at a time. The draws run along rows and the table lies in columns, so a panel of some rows is
 * drawn first and then dealt out column by column, whole cache lines at once.
 */
constexpr std::int64_t panelCells = 65536;

template <class T>
void fillInside(matrix<T>& out, int rows, int cols)
{
    const std::int64_t rowsAtOnce = std::clamp<std::int64_t>(panelCells / cols, 1, rows);
    std::vector<double> panel(static_cast<std::size_t>(rowsAtOnce * cols));
    for (std::int64_t first = 0; first < rows; first += rowsAtOnce) {
        const std::int64_t count = std::min<std::int64_t>(rowsAtOnce, rows - first);
        korvel::draw01Block(processSource, panel.data(), static_cast<std::size_t>(count * cols));
        for (std::int64_t j = 0; j < cols; ++j) {
            const double* const draws = panel.data() + j;
            T* const column = out.data + first + j * out.nbrows;
            for (std::int64_t i = 0; i < count; ++i) {
                column[i] = static_cast<T>(draws[i * cols]);
            }
        }
    }
    out.oobValue = out.getElement(rows - 1, cols - 1);
}

template <class T>
void fillChecked(matrix<T>& out, int rows, int cols)
{
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < cols; ++j) {
            out.setElement(i, j, static_cast<T>(korvel::draw01(processSource)));
        }
    }
}

template <class T>
void fillTable(matrix<T>& out, int rows, int cols, int* seed, short int flag, int* nextSeed)
{
    GetSeed(seed, &flag);
    if (rows > 0 && cols > 0) {
        if (rows <= out.nbrows && cols <= out.nbcols) {
            fillInside(out, rows, cols);
        } else {
            fillChecked(out, rows, cols);
        }
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
