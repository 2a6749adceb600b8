#include "linalg/logical_inverse.h"

#include "containers/map_cells.h"

void M_Inverse(matrix<short int>& flags, int rows, int cols)
{
    const auto cells = korvel::writing(flags);
    korvel::mapCells(
        rows, cols, [](short int flag) { return static_cast<short int>(flag == 0 ? 1 : 0); }, cells, cells);
}
