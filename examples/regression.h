/**
 * @file
 * The regression of one column of a file on its other columns of numbers.
 */
#ifndef KORVEL_EXAMPLES_REGRESSION_H
#define KORVEL_EXAMPLES_REGRESSION_H

#include "data_set.h"

#include <iosfwd>
#include <string>

namespace report
{

/**
 * Fits the column to all other columns of numbers, over the rows in which none of them is missing, and prints
 * the coefficients and how good the fit is.
 *
 * @throws std::runtime_error when there is no such column, when it holds texts, or when there is nothing to
 * fit it to
 */
void printRegression(const data_set& data, const std::string& response, std::ostream& out);

} // namespace report

#endif
