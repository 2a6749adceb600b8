/**
 * @file
 * A data set as a caller of the flat functions holds it: plain arrays, with the library's missing values.
 */
#ifndef KORVEL_EXAMPLES_DATA_SET_H
#define KORVEL_EXAMPLES_DATA_SET_H

#include "csv.h"
#include "korvelmathtools/KORVELMathTools.h"

#include <cstddef>
#include <string>
#include <vector>

namespace report
{

/** What the library takes for a missing number. */
inline constexpr double missingNumber = -1.79769313486231e308;

/** A column of numbers: its place in the table of numbers, and how the file writes them. */
struct number_column {
    std::string name;
    double* values;   ///< One for each row.
    int present = 0;  ///< Values that are not missing.
    int decimals = 0; ///< Most digits after the point in any cell.
};

/** A column of texts, as a block of BSTR that this object owns; a missing text is empty. */
class text_column
{
public:
    text_column(std::string name, const std::vector<std::string>& cells);
    text_column(text_column&& other) noexcept = default;
    text_column(const text_column&) = delete;
    text_column& operator=(text_column&&) = delete;
    text_column& operator=(const text_column&) = delete;
    ~text_column();

    std::string name;
    std::vector<OLECHAR*> block; ///< One BSTR for each row.
    std::vector<std::string>
        categories;  ///< The different texts, but for the empty one, in order of appearance.
    int present = 0; ///< Texts that are not missing.

private:
    text_column(std::string name, std::size_t rows);
};

/**
 * The columns of a file by kind. A column is numeric when all its cells are numbers or missing (empty, or
 * NA). If semicolons separate the cells, a number may have a decimal comma.
 */
class data_set
{
public:
    explicit data_set(const csv_table& table);

    int rows;
    std::vector<double> numbers;    ///< Column-major: one column after the other.
    std::vector<short int> leftOut; ///< A flag for each row; none is set.
    std::vector<double> weights;    ///< One for each row, all 1.
    std::vector<number_column> numberColumns;
    std::vector<text_column> textColumns;
};

} // namespace report

#endif
