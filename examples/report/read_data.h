/**
 * @file
 * Reads a file into a data set.
 */
#ifndef KORVEL_EXAMPLES_READ_DATA_H
#define KORVEL_EXAMPLES_READ_DATA_H

#include "data_set.h"
#include "options.h"
#include "progress.h"

#include <filesystem>

namespace report
{

/**
 * Reads the columns of a file, and guesses the kind of each. Numbers are read straight into the table of the
 * data set, and each different text of a column is kept once.
 * @throws csv_error when the file cannot be read as a table
 */
data_set readData(const std::filesystem::path& path, const reading_rules& rules, progress& shown);

/**
 * Gives a column of numbers the role of the weights: it leaves the table, and rows without a weight, or of
 * weight 0, are left out.
 * @throws csv_error when there is no such column, or it cannot have that role
 */
void takeWeights(data_set& data, const std::string& name);

/**
 * Groups the rows by a column of any kind.
 * @throws csv_error when there is no such column
 */
void takeGroups(data_set& data, const std::string& name);

} // namespace report

#endif
