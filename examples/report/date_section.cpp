#include "sections.h"

#include <cmath>
#include <string>

namespace report
{

section dates(const data_set& data, const findings&)
{
    text_table table({{"column", alignment::left},
                      {"n", alignment::point},
                      {"missing", alignment::point},
                      {"first", alignment::left},
                      {"last", alignment::left},
                      {"days between", alignment::point},
                      {"read as", alignment::left}});
    for (const date_column& column : data.dateColumns) {
        const kept_values kept = keptOf(data, column.days.data());
        double first = missingNumber;
        double last = missingNumber;
        VB_V_MinMax(kept.values.data(), kept.count(), &first, &last, kept.leftOut.data());
        const bool isEmpty = kept.count() == 0;
        const auto date = [&](double days) {
            return isEmpty ? std::string(noFigure) : shownDate(days, column.hasTimes);
        };
        const double span = last - first;
        constexpr int decimals = 2;
        table.add({shownName(column.name), shown(kept.count()), shown(data.rowsUsed - kept.count()),
                   date(first), date(last),
                   isEmpty ? std::string(noFigure) : rounded(span, span == std::floor(span) ? 0 : decimals),
                   column.style});
    }
    section result{"Dates", {table}, {}, {}};
    result.explain(noFigure, "all dates of the column are in rows that are left out.");
    return result;
}

} // namespace report
