#include "sections.h"

#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

namespace report
{

namespace
{

constexpr short int visualBasicTrue = -1;
constexpr short int visualBasicFalse = 0;

constexpr int decimals = 3;
constexpr int shareDecimals = 1;
constexpr double sharesToLoad =
    90; // Loadings are shown of as many components as make this share, in percent.

/** The principal components of the columns that vary over the rows without a missing number. */
struct components {
    std::vector<std::string> columns;
    std::vector<double> variances;
    std::vector<double> percents;
    std::vector<double> vectors; ///< Column-major, as many rows and columns as there are names.
    int shown = 0;
};

// Flags of the rows in which a number is missing.
std::vector<short int> incompleteRows(const data_set& data)
{
    std::vector<short int> flags(data.leftOut.size());
    Cpp_M_GetMissingDbl(data.numbers.data(), data.rows, static_cast<int>(data.numberColumns.size()),
                        data.leftOut.data(), flags.data());
    return flags;
}

components componentsOf(const data_set& data)
{
    components found;
    if (data.numberColumns.empty()) {
        return found;
    }
    const std::vector<short int> incomplete = incompleteRows(data);
    std::vector<double> numbers;
    for (const number_column& column : data.numberColumns) {
        std::vector<double> scores(static_cast<std::size_t>(data.rows));
        VB_V_Standardize(column.values, data.rows, incomplete.data(), data.weights.data(), visualBasicFalse,
                         scores.data());
        const double spread = VB_V_Var(scores.data(), data.rows, incomplete.data(), data.weights.data(),
                                       visualBasicFalse, visualBasicTrue);
        if (VB_IsMissingValueDbl(spread) == 0 && spread > 0) {
            found.columns.push_back(shownName(column.name));
            numbers.insert(numbers.end(), scores.begin(), scores.end());
        }
    }
    const std::size_t n = found.columns.size();
    const auto order = static_cast<int>(n);
    std::vector<double> correlation(n * n);
    VB_M_CovCorr(numbers.data(), data.rows, order, correlation.data(), visualBasicTrue, incomplete.data(),
                 data.weights.data(), visualBasicTrue, visualBasicTrue, visualBasicFalse);
    found.variances.resize(n);
    found.vectors.resize(n * n);
    if (n < 2 || VB_M_Eigen(correlation.data(), found.variances.data(), found.vectors.data(), order,
                            visualBasicTrue) != 0) {
        return {};
    }
    // A component without variance has no share. A copy of the values is filtered, because filtering drops
    // small ones.
    constexpr double none = 1e-12;
    std::vector<double> filtered = found.variances;
    found.percents.resize(n);
    int kept = 0;
    VB_FilterEigen(filtered.data(), order, visualBasicTrue, none, sharesToLoad, 0, 0.0, &kept, &found.shown,
                   found.percents.data());
    return found;
}

} // namespace

text_table componentShares(data_set& data)
{
    const components found = componentsOf(data);
    text_table table({{"component", alignment::point},
                      {"variance", alignment::point},
                      {"% of all", alignment::point},
                      {"up to here", alignment::point}});
    double sum = 0;
    for (std::size_t k = 0; k < found.variances.size(); ++k) {
        sum += found.percents[k];
        table.add({shown(static_cast<int>(k) + 1), rounded(found.variances[k], decimals),
                   rounded(found.percents[k], shareDecimals), rounded(sum, shareDecimals)});
    }
    return table;
}

text_table componentLoadings(data_set& data)
{
    const components found = componentsOf(data);
    std::vector<text_table::heading> headings{{"column", alignment::left}};
    for (int k = 1; k <= found.shown; ++k) {
        headings.push_back({"comp. " + shown(k), alignment::point});
    }
    text_table table(headings);
    const std::size_t n = found.columns.size();
    for (std::size_t i = 0; i < n; ++i) {
        std::vector<std::string> cells{found.columns[i]};
        for (std::size_t k = 0; k + 1 < headings.size(); ++k) {
            cells.push_back(rounded(found.vectors[i + k * n] * std::sqrt(found.variances[k]), decimals));
        }
        table.add(cells);
    }
    return table;
}

} // namespace report
