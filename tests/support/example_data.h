/**
 * @file
 * Columns of numbers of the data sets that come with the report.
 */
#ifndef KORVEL_TESTS_SUPPORT_EXAMPLE_DATA_H
#define KORVEL_TESTS_SUPPORT_EXAMPLE_DATA_H

#include "support/nist.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace korvel::test
{

/** The named columns of a file of examples/data, one behind the other. */
inline std::vector<double> exampleColumns(const std::string& file, const std::vector<std::string>& names)
{
    std::ifstream lines(testDataFolder() + "/../../examples/data/" + file);
    std::string line;
    const auto cellsOf = [&line] {
        std::vector<std::string> cells;
        std::istringstream words(line.substr(0, line.find('\r')));
        for (std::string cell; std::getline(words, cell, ',');) {
            cells.push_back(cell);
        }
        return cells;
    };
    std::getline(lines, line);
    const std::vector<std::string> heads = cellsOf();
    std::vector<std::vector<std::string>> rows;
    while (std::getline(lines, line)) {
        rows.push_back(cellsOf());
    }
    std::vector<double> found;
    for (const std::string& name : names) {
        const auto place =
            static_cast<std::size_t>(std::find(heads.begin(), heads.end(), name) - heads.begin());
        if (place == heads.size() || rows.empty()) {
            throw std::runtime_error(file + ": no column " + name);
        }
        for (const auto& row : rows) {
            found.push_back(std::stod(row.at(place)));
        }
    }
    return found;
}

} // namespace korvel::test

#endif
