#include "findings.h"

#include <algorithm>
#include <cmath>

namespace report
{

namespace
{

constexpr double sharesToLoad = 90; // In percent.
constexpr std::size_t mostPoints = 800;

/** The columns that vary over the complete rows, standardised there. */
struct standard_scores {
    std::vector<std::size_t> places; // Of the columns.
    std::vector<double> table;       // All rows, column after column.
};

standard_scores scoresOf(const data_set& data, const short int* incomplete)
{
    standard_scores found;
    found.table.reserve(data.countOfNumbers());
    std::vector<double> scores(static_cast<std::size_t>(data.rows));
    for (std::size_t j = 0; j < data.numberColumns.size(); ++j) {
        VB_V_Standardize(data.numberColumns[j].values, data.rows, incomplete, data.weights.data(), flatFalse,
                         scores.data());
        const double spread =
            VB_V_Var(scores.data(), data.rows, incomplete, data.weights.data(), flatFalse, flatTrue);
        if (VB_IsMissingValueDbl(spread) == 0 && spread > 0) {
            found.places.push_back(j);
            found.table.insert(found.table.end(), scores.begin(), scores.end());
        }
    }
    return found;
}

// Places the first two components of the columns, and of rows evenly chosen among the complete ones.
void findBiplot(const standard_scores& scores, int rows, const std::vector<short int>& incomplete,
                const std::vector<double>& vectors, components& found)
{
    constexpr int axes = 2;
    const std::size_t columns = found.columns.size();
    std::vector<std::size_t> complete;
    for (std::size_t i = 0; i < incomplete.size(); ++i) {
        if (incomplete[i] == 0) {
            complete.push_back(i);
        }
    }
    const std::size_t step = (complete.size() + mostPoints - 1) / mostPoints;
    std::vector<double> chosen;
    for (std::size_t j = 0; j < columns; ++j) {
        for (std::size_t k = 0; k < complete.size(); k += step) {
            chosen.push_back(scores.table[j * static_cast<std::size_t>(rows) + complete[k]]);
        }
    }
    found.rowCount = static_cast<int>(complete.size());
    found.pointCount = static_cast<int>(chosen.size() / columns);
    std::vector<double> principal(static_cast<std::size_t>(found.pointCount) * axes);
    VB_M_ProductAB(chosen.data(), found.pointCount, static_cast<int>(columns), vectors.data(), axes,
                   principal.data());
    found.points.resize(principal.size());
    found.arrows.resize(columns * axes);
    // Columns by their correlations with the components, and so rows with variance 1 on each axis.
    VB_BiplotTransData(principal.data(), nullptr, found.loadings.data(), found.pointCount, 0,
                       static_cast<int>(columns), axes, found.variances.data(), 1.0, 0.0, found.points.data(),
                       found.arrows.data());
}

} // namespace

components componentsOf(const data_set& data)
{
    components found;
    if (data.numberColumns.empty()) {
        return found;
    }
    std::vector<short int> incomplete(data.leftOut.size());
    Cpp_M_GetMissingDbl(data.numbers.get(), data.rows, static_cast<int>(data.numberColumns.size()),
                        data.leftOut.data(), incomplete.data());
    const standard_scores scores = scoresOf(data, incomplete.data());
    const std::size_t n = scores.places.size();
    const auto order = static_cast<int>(n);
    std::vector<double> correlation(n * n);
    std::vector<double> vectors(n * n);
    found.variances.resize(n);
    VB_M_CovCorr(scores.table.data(), data.rows, order, correlation.data(), flatTrue, incomplete.data(),
                 data.weights.data(), flatTrue, flatTrue, flatFalse);
    if (n < 2 ||
        VB_M_Eigen(correlation.data(), found.variances.data(), vectors.data(), order, flatTrue) != 0) {
        return {};
    }
    for (const std::size_t place : scores.places) {
        found.columns.push_back(data.numberColumns[place].name);
    }
    for (std::size_t k = 0; k < vectors.size(); ++k) {
        found.loadings.push_back(vectors[k] * std::sqrt(std::max(found.variances[k / n], 0.0)));
    }
    // A component without variance has no share. A copy of the values is filtered, because filtering drops
    // small ones.
    constexpr double none = 1e-12;
    std::vector<double> filtered = found.variances;
    found.percents.resize(n);
    int kept = 0;
    VB_FilterEigen(filtered.data(), order, flatTrue, none, sharesToLoad, 0, 0.0, &kept, &found.shown,
                   found.percents.data());
    if (kept >= 2) {
        findBiplot(scores, data.rows, incomplete, vectors, found);
    }
    return found;
}

} // namespace report
