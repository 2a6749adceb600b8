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
 * Reads a table with a header line. The separator is the one of comma, semicolon and tab that the header has
 * most of. Cells may be quoted, with quotes inside doubled; blanks round other cells are dropped. Lines may
 * end in any of the usual ways; a byte order mark is passed over, and so are empty lines, except that inside
 * a file of one column each is an empty cell.
 * @throws csv_error when there is no such file, no row in it, or a row with more or fewer cells than the
 * header
 */
csv_table readCsv(const std::filesystem::path& path);

} // namespace report

#endif
