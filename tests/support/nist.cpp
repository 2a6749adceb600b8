#include "support/nist.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace korvel::test
{

namespace
{

std::ifstream openSet(const std::string& name)
{
    return std::ifstream(testDataFolder() + "/nist/" + name + ".dat");
}

} // namespace

std::string testDataFolder()
{
    return KORVEL_TEST_DATA;
}

univariate_set readUnivariateSet(const std::string& name)
{
    std::ifstream file = openSet(name);
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

regression_set readRegressionSet(const std::string& name)
{
    std::ifstream file = openSet(name);
    regression_set found;
    std::string line;
    int columns = 0;
    while (columns == 0 && std::getline(file, line)) {
        std::istringstream words(line);
        std::string first;
        std::string second;
        words >> first;
        if (first.size() == 2 && first[0] == 'B') {
            double estimate = 0.0;
            double error = 0.0;
            words >> estimate >> error;
            found.estimates.push_back(estimate);
            found.errors.push_back(error);
        } else if (first == "Data:" && words >> second && second == "y") {
            for (columns = 1; words >> second;) {
                ++columns;
            }
        }
    }
    std::vector<double> cells;
    for (double cell = 0.0; file >> cell;) {
        cells.push_back(cell);
    }
    const auto width = static_cast<std::size_t>(columns);
    if (found.estimates.empty() || width == 0 || cells.empty() || cells.size() % width != 0) {
        throw std::runtime_error(name + ": not the data set that its head describes");
    }
    found.rows = static_cast<int>(cells.size() / width);
    for (std::size_t j = 0; j < width; ++j) {
        for (std::size_t k = j; k < cells.size(); k += width) {
            (j == 0 ? found.response : found.predictors).push_back(cells[k]);
        }
    }
    return found;
}

} // namespace korvel::test
