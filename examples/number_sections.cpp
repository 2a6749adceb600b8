#include "sections.h"
#include "utf8.h"

namespace report
{

namespace
{

constexpr int nameWidth = 24;

} // namespace

text_table location(data_set& data)
{
    text_table table({{"column", alignment::left},
                      {"n", alignment::point},
                      {"missing", alignment::point},
                      {"sum", alignment::point}});
    for (const number_column& column : data.numberColumns) {
        const double sum = VB_V_Sum(column.values, data.rows, data.leftOut.data(), data.weights.data());
        table.add({displayText(column.name, nameWidth), shown(column.present),
                   shown(data.rows - column.present), shown(sum, column.decimals)});
    }
    return table;
}

} // namespace report
