#include "sections.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace report
{

namespace
{

constexpr short int visualBasicTrue = -1;
constexpr short int visualBasicFalse = 0;

constexpr short int weightsAreFrequencies = visualBasicTrue; // Each row counts as one observation.

constexpr int shapeDecimals = 3;

// A mean deserves more decimals than its numbers have.
int meanDecimals(const number_column& column)
{
    return std::max(column.decimals + 2, 3);
}

// A quartile stands at one of the numbers, or at a quarter, a half or three quarters of the way to the next.
int quartileDecimals(const number_column& column)
{
    return column.decimals + 2;
}

struct extreme {
    double value = missingNumber;
    int row = 0; // From 1; 0 when there is no value.
};

// A missing value is below all others, so the smallest is searched without them.
extreme smallest(const data_set& data, const number_column& column)
{
    std::vector<double> present;
    std::vector<int> rows;
    for (int i = 0; i < data.rows; ++i) {
        if (VB_IsMissingValueDbl(column.values[i]) == 0) {
            present.push_back(column.values[i]);
            rows.push_back(i + 1);
        }
    }
    if (present.empty()) {
        return {};
    }
    int position = 0;
    const double value =
        VB_V_MinAndMinPos(present.data(), static_cast<int>(present.size()), &position, visualBasicFalse);
    return {value, rows[static_cast<std::size_t>(position - 1)]};
}

extreme largest(const data_set& data, const number_column& column)
{
    if (column.present == 0) {
        return {};
    }
    extreme found;
    found.value = VB_V_MaxAndMaxPos(column.values, data.rows, &found.row);
    return found;
}

std::string shownRow(const extreme& found)
{
    return found.row == 0 ? "-" : shown(found.row);
}

// The standard error of an estimate. A constant column has no estimate, and its standard error is 0.
std::string errorOf(double estimate, double error)
{
    return rounded(VB_IsMissingValueDbl(estimate) != 0 ? missingNumber : error, shapeDecimals);
}

} // namespace

text_table location(data_set& data)
{
    text_table table({{"column", alignment::left},
                      {"n", alignment::point},
                      {"missing", alignment::point},
                      {"mean", alignment::point},
                      {"st.dev.", alignment::point},
                      {"sum", alignment::point}});
    for (const number_column& column : data.numberColumns) {
        double mean = missingNumber;
        double deviation = missingNumber;
        if (column.present > 0) {
            VB_V_MeanStdev(column.values, data.rows, &mean, &deviation, data.leftOut.data(),
                           data.weights.data(), visualBasicTrue, weightsAreFrequencies);
        }
        const double sum = VB_V_Sum(column.values, data.rows, data.leftOut.data(), data.weights.data());
        table.add({shownName(column.name), shown(column.present), shown(data.rows - column.present),
                   shown(mean, meanDecimals(column)), shown(deviation, meanDecimals(column)),
                   shown(sum, column.decimals)});
    }
    return table;
}

text_table quartiles(data_set& data)
{
    text_table table({{"column", alignment::left},
                      {"min", alignment::point},
                      {"row", alignment::point},
                      {"25 %", alignment::point},
                      {"median", alignment::point},
                      {"75 %", alignment::point},
                      {"max", alignment::point},
                      {"row", alignment::point}});
    for (const number_column& column : data.numberColumns) {
        const auto quantile = [&](double share) {
            const double value = VB_V_QuantileM(column.values, data.rows, data.leftOut.data(), share);
            return shown(value, quartileDecimals(column));
        };
        const extreme min = smallest(data, column);
        const extreme max = largest(data, column);
        table.add({shownName(column.name), shown(min.value, column.decimals), shownRow(min), quantile(0.25),
                   quantile(0.5), quantile(0.75), shown(max.value, column.decimals), shownRow(max)});
    }
    return table;
}

text_table shape(data_set& data)
{
    text_table table({{"column", alignment::left},
                      {"skewness", alignment::point},
                      {"s.e.", alignment::point},
                      {"kurtosis", alignment::point},
                      {"s.e.", alignment::point},
                      {"geom. mean", alignment::point},
                      {"geom. s.d.", alignment::point},
                      {"harm. mean", alignment::point}});
    for (const number_column& column : data.numberColumns) {
        double skewness = missingNumber;
        double skewnessError = missingNumber;
        double kurtosis = missingNumber;
        double kurtosisError = missingNumber;
        if (column.present > 0) {
            double mean = 0;
            double variance = 0;
            double populationSkewness = 0;
            double populationKurtosis = 0;
            // The sample's skewness and kurtosis are made from those of the population, which are the ones
            // asked for when the variance is not the unbiased one.
            VB_V_MeanVarSkewPKurtP(column.values, data.rows, &mean, &variance, &populationSkewness,
                                   &populationKurtosis, &skewness, &kurtosis, &skewnessError, &kurtosisError,
                                   data.leftOut.data(), data.weights.data(), visualBasicFalse,
                                   weightsAreFrequencies);
        }
        // These two means are for positive numbers. The harmonic mean would have a value for negative ones
        // too.
        double geometricMean = missingNumber;
        double geometricDeviation = missingNumber;
        double harmonicMean = missingNumber;
        if (VB_V_Min(column.values, data.rows, data.leftOut.data()) > 0) {
            Cpp_V_GMeanGSD(column.values, data.rows, data.leftOut.data(), data.weights.data(), &geometricMean,
                           &geometricDeviation);
            harmonicMean =
                Cpp_V_HarmonicMean(column.values, data.rows, data.leftOut.data(), data.weights.data());
        }
        table.add({shownName(column.name), rounded(skewness, shapeDecimals), errorOf(skewness, skewnessError),
                   rounded(kurtosis, shapeDecimals), errorOf(kurtosis, kurtosisError),
                   shown(geometricMean, meanDecimals(column)), rounded(geometricDeviation, shapeDecimals),
                   shown(harmonicMean, meanDecimals(column))});
    }
    return table;
}

} // namespace report
