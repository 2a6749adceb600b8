#include "support/nist.h"

#include <fstream>
#include <stdexcept>

namespace korvel::test
{

univariate_set readUnivariateSet(const std::string& name)
{
    std::ifstream file(std::string(KORVEL_TEST_DATA) + "/nist/" + name + ".dat");
    univariate_set found;
    std::string line;
    std::size_t observations = 0;
    const auto certified = [&] { return std::stod(line.substr(line.rfind(':') + 1)); };
    while (std::getline(file, line) && line.rfind("---", 0) != 0) {
        if (line.rfind("Sample Mean", 0) == 0) {
            found.mean = certified();
        } else if (line.rfind("Sample Standard Deviation", 0) == 0) {
            found.deviation = certified();
        } else if (line.rfind("Number of Observations", 0) == 0) {
            observations = static_cast<std::size_t>(certified());
        }
    }
    for (double cell = 0.0; file >> cell;) {
        found.cells.push_back(cell);
    }
    if (found.cells.empty() || found.cells.size() != observations) {
        throw std::runtime_error(name + ": not the data set that its head describes");
    }
    return found;
}

} // namespace korvel::test
