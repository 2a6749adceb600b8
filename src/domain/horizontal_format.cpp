#include "domain/horizontal_format.h"

#include "containers/cells.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

int CheckAndTransformToHorizontalFormat(cST_MVect<double>& longTable, int n, int v, matrix<int>& subjects,
                                        matrix<int>& times, cST_MVect<double>& wideTable, int subjectCount,
                                        int timeCount, matrix<text>& labels, matrix<text>& outLabels)
{
    constexpr int incomplete = 2;
    const std::int64_t width = std::int64_t{std::max(timeCount, 0)} * std::max(v, 0);
    if (width > static_cast<std::int64_t>(wideTable.Vectors.size()) ||
        v > static_cast<int>(longTable.Vectors.size())) {
        return incomplete;
    }
    const auto column = [&](std::int64_t j) -> matrix<double>& {
        return wideTable.Vectors[static_cast<std::size_t>(j)].Vect;
    };
    for (std::int64_t j = 0; j < width; ++j) {
        for (int i = 0; i < subjectCount; ++i) {
            korvel::storeChecked(column(j), i, MISSING_DBL);
        }
    }
    for (int r = 0; r < n; ++r) {
        for (int j = 0; j < v; ++j) {
            const std::int64_t target = (std::int64_t{times[r]} - 1) * v + j;
            const int subject = subjects[r] - 1;
            if (target < 0 || target >= width || subject < 0 || subject >= subjectCount ||
                column(target)[subject] != MISSING_DBL) {
                return incomplete;
            }
            korvel::storeChecked(column(target), subject,
                                 longTable.Vectors[static_cast<std::size_t>(j)].Vect[r]);
        }
    }
    for (std::int64_t j = 0; j < width; ++j) {
        for (int i = 0; i < subjectCount; ++i) {
            if (column(j)[i] == MISSING_DBL) {
                return incomplete;
            }
        }
    }
    for (int i = 0; i < static_cast<int>(labels.nbElem); ++i) {
        korvel::storeChecked(outLabels, i, labels[i]);
    }
    return 0;
}
