#include "support/incomplete_beta_table.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace korvel::test
{

std::vector<incomplete_beta_point> readIncompleteBetaPoints()
{
    std::ifstream file(std::string(KORVEL_TEST_DATA) + "/special/incomplete_beta.txt");
    std::vector<incomplete_beta_point> found;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        incomplete_beta_point& point = found.emplace_back();
        words >> point.way;
        double* const numbers[] = {&point.a,     &point.b,          &point.x,        &point.y,
                                   &point.ratio, &point.complement, &point.logRatio, &point.logComplement};
        for (double* const number : numbers) {
            std::string word;
            if (!(words >> word)) {
                throw std::runtime_error("not a point: " + line);
            }
            // A dash stands for 1 less the other; a number too small for a double is read as 0.
            *number = word == "-" ? -1.0 : std::strtod(word.c_str(), nullptr);
        }
        if (point.x < 0.0) {
            point.x = 1.0 - point.y;
        } else {
            point.y = 1.0 - point.x;
        }
    }
    return found;
}

} // namespace korvel::test
