/**
 * @file
 * Nearest correlation matrices in fifty digits, of which tests/data/correlation has the origin.
 */
#ifndef KORVEL_TESTS_SUPPORT_CORRELATION_TABLES_H
#define KORVEL_TESTS_SUPPORT_CORRELATION_TABLES_H

#include <string>
#include <vector>

namespace korvel::test
{

/** A cell of the nearest table, and what it is when the alternating projections stop. */
struct nearest_cell {
    int i;
    int j;
    double nearest;
    double iterated;
};

struct nearest_table {
    std::string name;
    int n;
    int steps; ///< of the alternating projections
    std::vector<nearest_cell> cells;
};

/** All tables of the file; of large ones it has some cells. */
std::vector<nearest_table> readNearestTables();

} // namespace korvel::test

#endif
