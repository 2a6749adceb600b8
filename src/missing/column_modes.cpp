#include "missing/column_modes.h"

#include <cstddef>
#include <string_view>
#include <unordered_map>

namespace korvel
{

namespace
{

/** A text with the sum of the weights of its rows. */
struct weighted_category {
    const text* name;
    double frequency;
};

text modeOfColumn(const matrix<text>& table, int rows, int j, const matrix<double>* weights)
{
    std::vector<weighted_category> categories;
    std::unordered_map<std::u16string_view, std::size_t> places;
    for (int i = 0; i < rows; ++i) {
        const text& cell = table.getElement(i, j);
        if (cell.empty()) {
            continue;
        }
        const double weight = weights != nullptr ? (*weights)[i] : 1.0;
        const auto [place, isNew] = places.try_emplace(cell, categories.size());
        if (isNew) {
            categories.push_back({&cell, weight});
        } else {
            categories[place->second].frequency += weight;
        }
    }
    const weighted_category* mode = nullptr;
    for (const weighted_category& category : categories) {
        if (mode == nullptr || category.frequency > mode->frequency) {
            mode = &category;
        }
    }
    return mode != nullptr ? *mode->name : text();
}

} // namespace

std::vector<text> modesOfColumns(const matrix<text>& table, int rows, int cols, const matrix<double>* weights)
{
    std::vector<text> modes;
    for (int j = 0; j < cols; ++j) {
        modes.push_back(modeOfColumn(table, rows, j, weights));
    }
    return modes;
}

} // namespace korvel
