/**
 * @file
 * Reads files of separated values.
 */
#ifndef KORVEL_EXAMPLES_CSV_H
#define KORVEL_EXAMPLES_CSV_H

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace report
{

/** A file that cannot be read as a table; what() tells why in a few words that follow the file's name. */
class csv_error : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/** One column: its name from the header, and a cell for each row. */
struct csv_column {
    std::string name;
    std::vector<std::string> cells;
};

/** A table of texts; all columns have the same number of cells, at least one. */
struct csv_table {
    std::vector<csv_column> columns;
    char separator = ',';
};

/**
 * Reads a table with a header line. The separator is whichever of comma, semicolon and tab is most frequent
 * in the header. Cells may be quoted, with quotes inside doubled; blanks around other cells are dropped.
 * Lines may end in any usual way. A byte order mark is skipped. Empty lines are skipped too, except in a file
 * of one column, where each one is an empty cell.
 * @throws csv_error when there is no such file, no row in it, or a row with more or fewer cells than the
 * header
 */
csv_table readCsv(const std::filesystem::path& path);

} // namespace report

#endif
