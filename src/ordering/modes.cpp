#include "ordering/modes.h"

#include "containers/conversion.h"
#include "ordering/sorted_keys.h"

#include <cstddef>
#include <vector>

double V_ModeCat(matrix<double>* x, int n)
{
    std::vector<int> codes;
    for (int i = 0; i < n; ++i) {
        const double value = (*x)[i];
        const int code = value != MISSING_DBL ? korvel::truncateToInt(value + 1.0) : 0;
        if (code > 0) {
            codes.push_back(code - 1);
        }
    }
    const korvel::sorted_numbers<int> sorted(static_cast<int>(codes.size()), false, [&](std::int32_t k) {
        return codes[static_cast<std::size_t>(k)];
    });
    double mode = MISSING_DBL;
    std::size_t most = 0;
    for (std::size_t first = 0, last = 0; first < sorted.size(); first = last) {
        while (last < sorted.size() && sorted.key(last) == sorted.key(first)) {
            ++last;
        }
        if (last - first > most) {
            most = last - first;
            mode = sorted.key(first);
        }
    }
    return mode;
}

text korvel::modeOfTexts(const matrix<text>& labels, int n, const short int* iMissing,
                         const matrix<double>& w)
{
    std::vector<int> kept;
    for (int i = 0; i < n; ++i) {
        if ((iMissing == nullptr || iMissing[i] == 0) && !labels[i].empty()) {
            kept.push_back(i);
        }
    }
    const auto label = [&](std::int32_t k) -> const text& {
        return labels[kept[static_cast<std::size_t>(k)]];
    };
    const sorted_texts sorted(static_cast<int>(kept.size()), false, label);
    const text* mode = nullptr;
    double most = 0.0;
    for (std::size_t first = 0, last = 0; first < sorted.size(); first = last) {
        double sum = 0.0;
        for (; last < sorted.size() && sorted.key(last) == sorted.key(first); ++last) {
            sum += w[kept[static_cast<std::size_t>(sorted.position(last))]];
        }
        if (mode == nullptr || sum > most) {
            most = sum;
            mode = &sorted.key(first);
        }
    }
    return mode != nullptr ? *mode : text{};
}
