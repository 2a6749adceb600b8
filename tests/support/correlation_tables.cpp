#include "support/correlation_tables.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace korvel::test
{

std::vector<nearest_table> readNearestTables()
{
    std::ifstream file(std::string(KORVEL_TEST_DATA) + "/correlation/nearest_correlation.txt");
    std::vector<nearest_table> found;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        nearest_cell cell{};
        if (words >> cell.i >> cell.j >> cell.nearest >> cell.iterated) {
            found.back().cells.push_back(cell);
            continue;
        }
        std::istringstream head(line);
        nearest_table& next = found.emplace_back();
        if (!(head >> next.name >> next.n >> next.steps)) {
            throw std::runtime_error("neither a table nor a cell: " + line);
        }
    }
    return found;
}

} // namespace korvel::test
