#include "findings.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace report
{

namespace
{

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

std::size_t placeOf(const data_set& data, const std::string& name)
{
    const auto has = [&](const auto& columns) {
        return std::ranges::any_of(columns, [&](const auto& column) { return column.name == name; });
    };
    const auto found = std::ranges::find(data.numberColumns, name, &number_column::name);
    if (found == data.numberColumns.end()) {
        throw std::runtime_error(has(data.textColumns)       ? "column " + name + " holds texts, not numbers"
                                 : has(data.dateColumns)     ? "column " + name + " holds dates, not numbers"
                                 : name == data.weightColumn ? "column " + name + " has the weights already"
                                                             : "has no column " + name);
    }
    return static_cast<std::size_t>(found - data.numberColumns.begin());
}

complete_rows completeRows(const data_set& data, std::size_t response)
{
    std::vector<short int> incomplete(data.leftOut.size());
    Cpp_M_GetMissingDbl(data.numbers.get(), data.rows, static_cast<int>(data.numberColumns.size()),
                        data.leftOut.data(), incomplete.data());
    const auto complete = static_cast<std::size_t>(std::ranges::count(incomplete, flatFalse));
    complete_rows found;
    found.rows = static_cast<int>(complete);
    found.x.reserve(complete * (data.numberColumns.size() - 1));
    const auto copyTo = [&](std::vector<double>& cells, const double* values) {
        for (std::size_t i = 0; i < incomplete.size(); ++i) {
            if (incomplete[i] == 0) {
                cells.push_back(values[i]);
            }
        }
    };
    for (std::size_t j = 0; j < data.numberColumns.size(); ++j) {
        copyTo(j == response ? found.y : found.x, data.numberColumns[j].values);
        if (j != response) {
            found.names.push_back(data.numberColumns[j].name);
        }
    }
    copyTo(found.weights, data.weights.data());
    if (weightsAreCounts(data) == flatFalse && found.rows > 0) {
        // The library takes weights for numbers of observations. Shares become such numbers that their sum is
        // the number of rows.
        const double mean = VB_V_Mean2(found.weights.data(), found.rows);
        for (double& weight : found.weights) {
            weight /= mean;
        }
    }
    found.predictors = static_cast<int>(found.names.size());
    return found;
}

/** The tolerance of each predictor beside all others, and its reciprocal. */
void screen(const complete_rows& data, regression_figures& found)
{
    const int p = data.predictors;
    const auto size = static_cast<std::size_t>(p);
    std::vector<double> correlations(size * size);
    VB_M_CovCorr(data.x.data(), data.rows, p, correlations.data(), flatTrue, nullptr, data.weights.data(),
                 flatTrue, flatTrue, flatTrue);
    const double selected = 1.0;
    const std::vector<double> groups(size, 1.0);
    std::vector<double> status(size);
    std::vector<double> tolerances(size, missingNumber);
    std::vector<double> inflations(size, missingNumber);
    VB_CheckTolerance(correlations.data(), p, 1, &selected, groups.data(), leastTolerance, flatFalse,
                      flatFalse, flatFalse, flatFalse, status.data(), tolerances.data(), inflations.data());
    for (std::size_t k = 0; k < size; ++k) {
        found.terms[k].tolerance = tolerances[k];
        found.terms[k].inflation = inflations[k];
    }
}

void fit(const complete_rows& data, regression_figures& found)
{
    const auto order = static_cast<std::size_t>(data.predictors) + 1;
    std::vector<double> coefficients(order);
    std::vector<double> errors(order);
    std::vector<double> values(data.y.size());
    std::vector<double> swept(order * order);
    std::vector<double> means(order);
    std::vector<double> deviations(order);
    RunOLSBasic3(data.rows, data.predictors, data.x.data(), data.y.data(), data.weights.data(), 1, flatFalse,
                 flatFalse, leastTolerance, coefficients.data(), errors.data(), values.data(), swept.data(),
                 means.data(), deviations.data());
    const double observations = VB_V_Sum2Dbl(data.weights.data(), data.rows);
    found.freedom = observations - 1.0;
    for (std::size_t k = 0; k + 1 < order; ++k) {
        regression_term term;
        term.name = data.names[k];
        term.isLeftOut = deviations[k] == 0.0;
        term.estimate = coefficients[k];
        found.freedom -= term.isLeftOut ? 0.0 : 1.0;
        found.terms.push_back(term);
    }
    found.intercept.name = "(intercept)";
    found.intercept.estimate = coefficients.back();
    const bool hasFreedom = found.freedom > 1e-9;
    const auto errorOf = [&](double error) { return hasFreedom && error > 0.0 ? error : missingNumber; };
    found.intercept.error = errorOf(errors.back());
    for (std::size_t k = 0; k + 1 < order; ++k) {
        found.terms[k].error = errorOf(errors[k]);
    }
    const double unexplained = swept.back();
    const double deviation = deviations.back();
    if (deviation > 0.0) {
        found.explained = 1.0 - unexplained;
    }
    if (deviation > 0.0 && hasFreedom) {
        const double share = (observations - 1.0) / found.freedom;
        found.explainedAdjusted = 1.0 - unexplained * share;
        found.residualDeviation = deviation * std::sqrt(std::max(unexplained, 0.0) * share);
    }
}

} // namespace

regression_figures regressionOf(const data_set& data, const std::string& response)
{
    const complete_rows used = completeRows(data, placeOf(data, response));
    if (used.predictors == 0) {
        throw std::runtime_error("has no other column of numbers to fit " + response + " to");
    }
    if (used.rows < 2) {
        throw std::runtime_error("has fewer than two rows without a missing number");
    }
    regression_figures found;
    found.response = response;
    found.rows = used.rows;
    fit(used, found);
    screen(used, found);
    return found;
}

} // namespace report
