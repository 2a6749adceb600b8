#include "missing/column_modes.h"

#include "qualitative/category_info.h"

#include <algorithm>

namespace korvel
{

std::vector<text> modesOfColumns(const matrix<text>& table, int rows, int cols, matrix<double>* weights)
{
    matrix<double> ones(weights == nullptr ? std::max(rows, 0) : 0, 1, 1.0);
    std::vector<text> modes;
    for (int j = 1; j <= cols; ++j) {
        matrix<text> categories(std::max(rows, 1), 1, text());
        matrix<double> frequencies(std::max(rows, 1), 1, 0.0);
        int count = 0;
        double frequency = 0.0;
        M_InfoQuali2(table, rows, j, count, modes.emplace_back(), frequency, categories, frequencies,
                     weights != nullptr ? *weights : ones, &count, 0);
    }
    return modes;
}

} // namespace korvel
