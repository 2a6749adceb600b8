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

/** An array of BSTR, which this object owns: at first all are empty. */
class text_block
{
public:
    explicit text_block(std::size_t size) : texts_(size) {}
    text_block(text_block&& other) noexcept = default;
    text_block(const text_block&) = delete;
    text_block& operator=(text_block&&) = delete;
    text_block& operator=(const text_block&) = delete;
    ~text_block();

    [[nodiscard]] OLECHAR** data() { return texts_.data(); }
    [[nodiscard]] OLECHAR* const* data() const { return texts_.data(); }
    OLECHAR*& operator[](std::size_t k) { return texts_[k]; }
    OLECHAR* operator[](std::size_t k) const { return texts_[k]; }

private:
    std::vector<OLECHAR*> texts_;
};

/** A column of texts; a missing text is empty. */
struct text_column {
    text_column(std::string name, const std::vector<std::string>& cells);

    std::string name;
    text_block block; ///< One text for each row.
    int present = 0;  ///< Texts that are not missing; one at least.
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
