#ifndef KORVEL_TESTS_REFERENCE_PLAIN_TABLE_H
#define KORVEL_TESTS_REFERENCE_PLAIN_TABLE_H

#include <algorithm>
#include <cstddef>
#include <vector>

namespace korvel::test
{

/** A table whose rows and columns are counted from 1. */
class plain_table
{
public:
    plain_table(int rows, int cols)
        : rows_(rows), cells_(static_cast<std::size_t>(std::max(rows, 0)) * static_cast<std::size_t>(cols))
    {
    }
    double& operator()(int i, int j)
    {
        return cells_[static_cast<std::size_t>(i - 1) +
                      static_cast<std::size_t>(rows_) * static_cast<std::size_t>(j - 1)];
    }
    [[nodiscard]] const std::vector<double>& cells() const { return cells_; }

private:
    int rows_;
    std::vector<double> cells_;
};

} // namespace korvel::test

#endif
