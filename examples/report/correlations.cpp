#include "findings.h"

#include <algorithm>

namespace report
{

namespace
{

// For each pair of columns the number of rows in which neither is missing. It is the product with itself of a
// table of 1 for present and 0 for missing, made from some rows at a time.
std::vector<double> commonRows(const data_set& data)
{
    constexpr int most = 8192;
    const std::size_t columns = data.numberColumns.size();
    std::vector<double> counts(columns * columns);
    std::vector<double> part(columns * columns);
    std::vector<double> present;
    for (int begin = 0; begin < data.rows; begin += most) {
        const int rows = std::min(most, data.rows - begin);
        present.clear();
        for (const number_column& column : data.numberColumns) {
            for (int i = begin; i < begin + rows; ++i) {
                const bool isKept = data.leftOut[static_cast<std::size_t>(i)] == 0 &&
                                    VB_IsMissingValueDbl(column.values[i]) == 0;
                present.push_back(isKept ? 1.0 : 0.0);
            }
        }
        VB_M_ProductTrAA(present.data(), rows, static_cast<int>(columns), part.data());
        std::ranges::transform(counts, part, counts.begin(), [](double a, double b) { return a + b; });
    }
    return counts;
}

// Each column with mean 0 and deviation 1, so that no small variance counts as none.
std::vector<double> standardized(const data_set& data)
{
    std::vector<double> scores(data.countOfNumbers());
    std::size_t start = 0;
    for (const number_column& column : data.numberColumns) {
        VB_V_Standardize(column.values, data.rows, data.leftOut.data(), data.weights.data(), flatFalse,
                         &scores[start]);
        start += static_cast<std::size_t>(data.rows);
    }
    return scores;
}

// Ranks of the rows without missing numbers; tied ones share the mean of theirs, and a weight counts as so
// many rows.
std::vector<double> correlationsOfRanks(const data_set& data, int& completeRows)
{
    const auto columns = static_cast<int>(data.numberColumns.size());
    std::vector<short int> incomplete(data.leftOut.size());
    Cpp_M_GetMissingDbl(data.numbers.get(), data.rows, columns, data.leftOut.data(), incomplete.data());
    completeRows = static_cast<int>(std::ranges::count(incomplete, flatFalse));
    if (completeRows < 2) {
        return {};
    }
    std::vector<double> weights;
    for (std::size_t i = 0; i < incomplete.size(); ++i) {
        if (incomplete[i] == 0) {
            weights.push_back(data.weights[i]);
        }
    }
    std::vector<double> ranks(weights.size() * data.numberColumns.size());
    std::vector<double> values(weights.size());
    std::vector<double> tieSizes(weights.size());
    double* end = ranks.data();
    for (const number_column& column : data.numberColumns) {
        double* value = values.data();
        for (std::size_t i = 0; i < incomplete.size(); ++i) {
            if (incomplete[i] == 0) {
                *value++ = column.values[i];
            }
        }
        int ties = 0;
        VB_V_GetRanksTiesDbl(values.data(), completeRows, flatTrue, weights.data(), end, &ties,
                             tieSizes.data());
        end += completeRows;
    }
    std::vector<double> found(data.numberColumns.size() * data.numberColumns.size());
    VB_M_CovCorr(ranks.data(), completeRows, columns, found.data(), flatTrue, nullptr, weights.data(),
                 flatFalse, flatFalse, flatFalse);
    return found;
}

} // namespace

correlation_figures correlationsOf(const data_set& data)
{
    correlation_figures found;
    const auto columns = static_cast<int>(data.numberColumns.size());
    if (columns < 2) {
        return found;
    }
    found.rows = commonRows(data);
    const std::vector<double> scores = standardized(data);
    found.pairwise.resize(found.rows.size());
    VB_M_CorrMatMat(scores.data(), data.rows, columns, scores.data(), columns, found.pairwise.data(),
                    data.leftOut.data(), data.weights.data(), flatTrue, flatFalse, flatTrue, flatTrue,
                    flatFalse);
    found.ofRanks = correlationsOfRanks(data, found.completeRows);
    return found;
}

} // namespace report
