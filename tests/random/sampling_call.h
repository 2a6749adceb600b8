/**
 * @file
 * A call of a sampling routine on a table of texts, and what it is expected to leave.
 */
#ifndef KORVEL_TESTS_RANDOM_SAMPLING_CALL_H
#define KORVEL_TESTS_RANDOM_SAMPLING_CALL_H

#include "random/random_state.h"
#include "random/sampling.h"

#include <string>
#include <vector>

namespace korvel::test
{

using doubles = std::vector<double>;
using texts = std::vector<text>;

inline text cell(int row, int col)
{
    std::string name = std::to_string(row);
    name.append(" ").append(std::to_string(col));
    return text(name.begin(), name.end());
}

/** Row i, column j holds "<i> <j>", both from 1. */
inline matrix<text> numbered(int rows, int cols)
{
    matrix<text> table(rows, cols, text{});
    for (int j = 0; j < cols; ++j) {
        for (int i = 0; i < rows; ++i) {
            table.setElement(i, j, cell(i + 1, j + 1));
        }
    }
    return table;
}

constexpr int columns = 2;

/**
 * The table, the sample and the vector of row numbers of one call. The results are filled with values that
 * must be overwritten.
 */
struct sampling_call {
    matrix<text> table;
    matrix<text> sample;
    matrix<double> selected;
    int seed = 12345;
    int next = 0;

    sampling_call(int rows, int sampleRows, int selectedRows)
        : table(numbered(rows, columns)), sample(sampleRows, columns, text(u"old")),
          selected(selectedRows, 1, -7.0)
    {
    }

    [[nodiscard]] doubles numbers() const { return doubles(selected.data, selected.data + selected.nbElem); }
};

/** Whether the sample holds these rows of the table, 0 standing for a row of empty texts. */
inline void expectRows(const sampling_call& call, const std::vector<int>& rows)
{
    for (int j = 0; j < columns; ++j) {
        for (std::size_t t = 0; t < rows.size(); ++t) {
            const text expected = rows[t] > 0 ? cell(rows[t], j + 1) : text{};
            EXPECT_EQ(call.sample.getElement(static_cast<int>(t), j), expected) << "row " << t;
        }
        for (int t = static_cast<int>(rows.size()); t < call.sample.nbrows; ++t) {
            EXPECT_EQ(call.sample.getElement(t, j), u"old") << "row " << t;
        }
    }
}

inline doubles asNumbers(const std::vector<int>& rows)
{
    return doubles(rows.begin(), rows.end());
}

/** `rows + 1` for the rows that are not taken, and the old values for the others. */
inline doubles marks(int rows, const std::vector<int>& taken)
{
    doubles expected(static_cast<std::size_t>(rows), rows + 1.0);
    for (const int row : taken) {
        expected[static_cast<std::size_t>(row - 1)] = -7.0;
    }
    return expected;
}

inline std::vector<int> everyNth(int start, int step, int count)
{
    std::vector<int> rows;
    for (int t = 0; t < count; ++t) {
        rows.push_back(start + t * step);
    }
    return rows;
}

} // namespace korvel::test

#endif
