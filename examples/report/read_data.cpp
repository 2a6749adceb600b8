#include "read_data.h"

#include "column_kinds.h"
#include "csv.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <string_view>
#include <utility>

namespace report
{

namespace
{

constexpr std::size_t rowsBetweenSigns = 4096;

// The table of numbers while it is read: a place for each column of the file.
struct number_table {
    std::size_t stride;
    std::size_t rows = 0;
    std::unique_ptr<double[]> cells;
    std::vector<bool> isPlain; // All cells of the column so far are plain numbers or missing.
    std::vector<int> decimals;

    explicit number_table(const csv_file& file)
        : stride(file.mostRows()), cells(new double[stride * file.names().size()]),
          isPlain(file.names().size(), true), decimals(file.names().size())
    {
    }

    double* column(std::size_t j) { return &cells[j * stride]; }
};

bool isMissing(std::string_view cell, const reading_rules& rules)
{
    return std::ranges::any_of(rules.missing, [cell](const std::string& text) { return cell == text; });
}

void readPlainNumbers(const csv_file& file, const reading_rules& rules, number_table& table, progress& shown)
{
    file.eachRow([&](const record& row) {
        if (table.rows % rowsBetweenSigns == 0) {
            shown.show("reading", file.shareBefore(row));
        }
        for (std::size_t j = 0; j < row.cells.size(); ++j) {
            if (!table.isPlain[j]) {
                continue;
            }
            parsed_number number;
            if (!isMissing(row.cells[j], rules)) {
                const auto read = readNumber(row.cells[j]);
                table.isPlain[j] = read.has_value();
                number = read.value_or(number);
            }
            table.column(j)[table.rows] = number.value;
            table.decimals[j] = std::max(table.decimals[j], number.decimals);
        }
        ++table.rows;
    });
    if (table.rows == 0) {
        throw csv_error("has a header and no rows");
    }
    if (table.rows > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        throw csv_error("has too many rows");
    }
}

std::vector<interned_column> readOthers(const csv_file& file, const reading_rules& rules,
                                        const number_table& table, progress& shown)
{
    std::vector<std::size_t> places;
    for (std::size_t j = 0; j < table.isPlain.size(); ++j) {
        if (!table.isPlain[j]) {
            places.push_back(j);
        }
    }
    std::vector<interned_column> columns(places.size());
    if (places.empty()) {
        return columns;
    }
    for (interned_column& column : columns) {
        column.reserve(table.rows);
    }
    std::size_t count = 0;
    file.eachRow([&](const record& row) {
        if (count++ % rowsBetweenSigns == 0) {
            shown.show("reading texts", file.shareBefore(row));
        }
        for (std::size_t k = 0; k < places.size(); ++k) {
            const std::string_view cell = row.cells[places[k]];
            if (isMissing(cell, rules)) {
                columns[k].addMissing();
            } else {
                columns[k].add(cell);
            }
        }
    });
    return columns;
}

} // namespace

data_set readData(const std::filesystem::path& path, const reading_rules& rules, progress& shown)
{
    const csv_file file(path, rules.separator);
    number_table table(file);
    readPlainNumbers(file, rules, table, shown);
    const std::vector<interned_column> others = readOthers(file, rules, table, shown);

    data_set data;
    data.notes = file.notes();
    data.rows = static_cast<int>(table.rows);
    data.rowsUsed = data.rows;
    data.leftOut.resize(table.rows);
    data.weights.assign(table.rows, 1.0);
    auto other = others.begin();
    double* end = table.cells.get();
    for (std::size_t j = 0; j < file.names().size(); ++j) {
        const std::string& name = file.names()[j];
        bool isNumeric = table.isPlain[j];
        if (!isNumeric) {
            const interned_column& column = *other++;
            const column_kind kind = kindOf(name, column, file.separator());
            if (!kind.note.empty()) {
                data.notes.push_back(kind.note);
            }
            isNumeric = kind.numbers != nullptr;
            if (isNumeric) {
                table.decimals[j] = storeNumbers(column, *kind.numbers, table.column(j));
            } else if (kind.dates != nullptr) {
                data.dateColumns.push_back(datesOf(name, column, *kind.dates));
            } else {
                data.textColumns.push_back(textsOf(name, column));
            }
        }
        if (isNumeric) {
            // The columns move together, since the flat functions take them as one table.
            std::copy_n(table.column(j), table.rows, end);
            data.numberColumns.push_back({name, end, table.decimals[j]});
            end += table.rows;
        }
    }
    data.numbers = std::move(table.cells);
    return data;
}

} // namespace report
