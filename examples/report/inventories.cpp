#include "findings.h"

#include "utf8.h"

#include <algorithm>
#include <functional>

namespace report
{

inventory inventoryOf(const data_set& data, const text_column& column)
{
    std::vector<OLECHAR*> texts;
    std::vector<double> weights;
    for (std::size_t i = 0; i < column.cells.size(); ++i) {
        if (data.leftOut[i] == 0) {
            texts.push_back(column.cells[i]);
            weights.push_back(data.weights[i]);
        }
    }
    const auto rows = static_cast<int>(texts.size());
    inventory found;
    found.count = rows - VB_V_NbMissingStr(texts.data(), rows);
    int count = 0;
    Cpp_GetMaxCat(texts.data(), rows, 1, &count);
    if (count == 0) {
        return found;
    }
    text_block mode(1);
    double modeFrequency = 0.0;
    text_block names(static_cast<std::size_t>(count));
    std::vector<double> frequencies(static_cast<std::size_t>(count));
    int total = 0;
    VB_M_InfoQuali2(texts.data(), rows, 1, count, &count, mode.data(), &modeFrequency, names.data(),
                    frequencies.data(), weights.data(), &total, 0);
    found.mode = toUtf8(mode[0]);
    found.weight = VB_V_Sum2Dbl(frequencies.data(), count);
    for (std::size_t k = 0; k < frequencies.size(); ++k) {
        found.categories.push_back({toUtf8(names[k]), frequencies[k]});
    }
    std::ranges::stable_sort(found.categories, std::greater(), &category::weight);
    return found;
}

} // namespace report
