/**
 * @file
 * Certified univariate and regression data sets of NIST's Statistical Reference Datasets
 * (https://www.itl.nist.gov/div898/strd/), kept in tests/data/nist as published.
 */
#ifndef KORVEL_TESTS_SUPPORT_NIST_H
#define KORVEL_TESTS_SUPPORT_NIST_H

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace korvel::test
{

/** The folder that the sets stand in. */
std::string testDataFolder();

struct univariate_set {
    std::vector<double> cells;
    double mean = 0.0;
    double deviation = 0.0; ///< Of the sample: divided by n - 1.
};

/** Reads the file of a univariate set; the number that a certified line ends with follows its last colon. */
univariate_set readUnivariateSet(const std::string& name);

struct regression_set {
    int rows = 0;
    std::vector<double> response;
    std::vector<double> predictors; ///< Column after column.
    std::vector<double> estimates;  ///< From the intercept on, when there is one.
    std::vector<double> errors;     ///< Their standard errors.
};

/** Reads the file of a regression set. */
regression_set readRegressionSet(const std::string& name);

/** How many decimal digits of `value` are right, at most the 15 that are certified. */
inline double correctDigits(double value, double certified)
{
    return value == certified
               ? 15.0
               : std::min(15.0, -std::log10(std::abs(value - certified) / std::abs(certified)));
}

/**
 * A set, and how many digits of its certified mean and deviation the library reaches: as measured, cut to a
 * tenth.
 */
struct measured_digits {
    const char* set;
    double meanByUpdates;
    double meanBySum;
    double deviation;
};

// NumAcc3 is not exact in binary: the deviation of what is stored agrees with the certified one to 9.46
// digits.
inline constexpr measured_digits univariateSets[] = {
    {"Lew", 15.0, 15.0, 15.0},     {"Michelso", 15.0, 15.0, 12.3}, {"NumAcc1", 15.0, 15.0, 15.0},
    {"NumAcc2", 15.0, 14.0, 15.0}, {"NumAcc3", 15.0, 15.0, 9.4},   {"PiDigits", 14.6, 15.0, 14.9},
};

} // namespace korvel::test

#endif
