#include "sections.h"

namespace report
{

text_table location(data_set& data)
{
    text_table table({{"column", alignment::left},
                      {"n", alignment::point},
                      {"missing", alignment::point},
                      {"sum", alignment::point}});
    for (const number_column& column : data.numberColumns) {
        const double sum = VB_V_Sum(column.values, data.rows, data.leftOut.data(), data.weights.data());
        table.add({shownName(column.name), shown(column.present), shown(data.rows - column.present),
                   shown(sum, column.decimals)});
    }
    return table;
}

} // namespace report
