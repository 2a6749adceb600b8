#include "regression.h"

#include "text_table.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <ostream>
#include <stdexcept>
#include <vector>

namespace report
{

namespace
{

constexpr short int visualBasicTrue = -1;
constexpr short int visualBasicFalse = 0;

/** A term of which the others leave no more than this unexplained is left out. */
constexpr double leastTolerance = 1e-9;

/** The columns in the rows without a missing number. */
struct complete_rows {
    int rows = 0;
    int predictors = 0;
    std::vector<std::string> names;
    std::vector<double> x;
    std::vector<double> y;
    std::vector<double> weights;
};

/** What the library finds; vectors of coefficients have the intercept last. */
struct fit {
    std::vector<double> coefficients;
    std::vector<double> errors;
    std::vector<double> tolerances;
    std::vector<double> inflations;
    std::vector<bool> entered;
    double unexplained = 0.0;
    double deviation = 0.0; ///< Of the response.
    int freedom = 0;
};

std::size_t placeOf(const data_set& data, const std::string& name)
{
    const auto& columns = data.numberColumns;
    const auto isNamed = [&](const auto& column) { return column.name == name; };
    const auto found = std::find_if(columns.begin(), columns.end(), isNamed);
    if (found == columns.end()) {
        const bool isText = std::any_of(data.textColumns.begin(), data.textColumns.end(), isNamed);
        throw std::runtime_error(isText ? "column " + name + " holds texts, not numbers"
                                        : "has no column " + name);
    }
    return static_cast<std::size_t>(found - columns.begin());
}

complete_rows completeRows(const data_set& data, std::size_t response)
{
    std::vector<short int> incomplete(data.leftOut.size());
    Cpp_M_GetMissingDbl(data.numbers.data(), data.rows, static_cast<int>(data.numberColumns.size()),
                        data.leftOut.data(), incomplete.data());
    complete_rows found;
    for (std::size_t j = 0; j < data.numberColumns.size(); ++j) {
        std::vector<double>& cells = j == response ? found.y : found.x;
        for (std::size_t i = 0; i < incomplete.size(); ++i) {
            if (incomplete[i] == 0) {
                cells.push_back(data.numberColumns[j].values[i]);
            }
        }
        if (j != response) {
            found.names.push_back(shownName(data.numberColumns[j].name));
        }
    }
    found.rows = static_cast<int>(found.y.size());
    found.predictors = static_cast<int>(found.names.size());
    found.weights.assign(found.y.size(), 1.0);
    return found;
}

/** The tolerance of each predictor beside all others, and its reciprocal. */
void screen(const complete_rows& data, fit& found)
{
    const int p = data.predictors;
    const auto size = static_cast<std::size_t>(p);
    std::vector<double> correlations(size * size);
    VB_M_CovCorr(data.x.data(), data.rows, p, correlations.data(), visualBasicTrue, nullptr,
                 data.weights.data(), visualBasicTrue, visualBasicTrue, visualBasicTrue);
    const double selected = 1.0;
    const std::vector<double> groups(size, 1.0);
    std::vector<double> status(size);
    found.tolerances.assign(size, missingNumber);
    found.inflations.assign(size, missingNumber);
    VB_CheckTolerance(correlations.data(), p, 1, &selected, groups.data(), leastTolerance, visualBasicFalse,
                      visualBasicFalse, visualBasicFalse, visualBasicFalse, status.data(),
                      found.tolerances.data(), found.inflations.data());
}

fit fitted(const complete_rows& data)
{
    const auto order = static_cast<std::size_t>(data.predictors) + 1;
    fit found;
    found.coefficients.resize(order);
    found.errors.resize(order);
    std::vector<double> values(data.y.size());
    std::vector<double> swept(order * order);
    std::vector<double> means(order);
    std::vector<double> deviations(order);
    RunOLSBasic3(data.rows, data.predictors, data.x.data(), data.y.data(), data.weights.data(), 1,
                 visualBasicFalse, visualBasicFalse, leastTolerance, found.coefficients.data(),
                 found.errors.data(), values.data(), swept.data(), means.data(), deviations.data());
    found.unexplained = swept.back();
    found.deviation = deviations.back();
    found.freedom = data.rows - 1;
    for (std::size_t k = 0; k + 1 < order; ++k) {
        found.entered.push_back(deviations[k] != 0.0);
        found.freedom -= found.entered.back() ? 1 : 0;
    }
    screen(data, found);
    return found;
}

/** With five digits or so that count. */
std::string figure(double number)
{
    constexpr int digits = 5;
    const int before = number == 0.0 ? 1 : static_cast<int>(std::floor(std::log10(std::abs(number)))) + 1;
    return shown(number, std::max(digits - before, 0));
}

text_table coefficientTable(const complete_rows& data, const fit& found)
{
    constexpr int decimals = 3;
    text_table table({{"term", alignment::left},
                      {"estimate", alignment::point},
                      {"st.error", alignment::point},
                      {"t", alignment::point},
                      {"tolerance", alignment::point},
                      {"VIF", alignment::point}});
    const auto add = [&](const std::string& name, std::size_t k, const std::string& tolerance,
                         const std::string& inflation) {
        const double error = found.errors[k];
        const bool hasError = found.freedom > 0 && error > 0.0;
        table.add({name, figure(found.coefficients[k]), hasError ? figure(error) : "-",
                   hasError ? shown(found.coefficients[k] / error, decimals) : "-", tolerance, inflation});
    };
    const std::size_t last = found.coefficients.size() - 1;
    add("(intercept)", last, "", "");
    for (std::size_t k = 0; k < last; ++k) {
        const std::string tolerance = figure(found.tolerances[k]);
        if (found.entered[k]) {
            add(data.names[k], k, tolerance, shown(found.inflations[k], decimals));
        } else {
            table.add({data.names[k], "left out", "-", "-", tolerance, "-"});
        }
    }
    return table;
}

text_table qualityTable(const complete_rows& data, const fit& found)
{
    constexpr int decimals = 4;
    text_table table({{"fit", alignment::left}, {"", alignment::point}});
    const bool varies = found.deviation > 0.0;
    const double explained = varies ? 1.0 - found.unexplained : missingNumber;
    const bool isDetermined = found.freedom > 0 && varies;
    const double share = (data.rows - 1.0) / found.freedom;
    table.add({"R-squared", shown(explained, decimals)});
    table.add({"R-squared, adjusted",
               shown(isDetermined ? 1.0 - found.unexplained * share : missingNumber, decimals)});
    table.add(
        {"residual deviation",
         isDetermined ? figure(found.deviation * std::sqrt(std::max(found.unexplained, 0.0) * share)) : "-"});
    table.add({"degrees of freedom", shown(found.freedom)});
    return table;
}

} // namespace

void printRegression(const data_set& data, const std::string& response, std::ostream& out)
{
    const std::size_t place = placeOf(data, response);
    const complete_rows used = completeRows(data, place);
    if (used.predictors == 0) {
        throw std::runtime_error("has no other column of numbers to fit " + response + " to");
    }
    if (used.rows < 2) {
        throw std::runtime_error("has fewer than two rows without a missing number");
    }
    const fit found = fitted(used);
    out << "\nRegression of " << shownName(response) << " on the other columns of numbers, over the "
        << used.rows << " rows without missing numbers\n";
    coefficientTable(used, found).print(out);
    out << '\n';
    qualityTable(used, found).print(out);
    if (std::find(found.entered.begin(), found.entered.end(), false) != found.entered.end()) {
        out << "\n  A column is left out when it is constant, or the columns above it explain all of it.\n";
    }
}

} // namespace report
