#include "findings.h"

#include "scales.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace report
{

namespace
{

void findWhiskers(const kept_values& kept, distribution& found)
{
    constexpr double fence = 1.5;
    const double reach = fence * (found.upperQuartile - found.lowerQuartile);
    std::vector<short int> outside(kept.values.size());
    std::ranges::transform(kept.values, outside.begin(), [&](double value) {
        return value < found.lowerQuartile - reach || value > found.upperQuartile + reach ? flatTrue
                                                                                          : flatFalse;
    });
    for (std::size_t k = 0; k < outside.size(); ++k) {
        if (outside[k] != 0) {
            found.outside.push_back(kept.values[k]);
        }
    }
    VB_V_MinMax(kept.values.data(), kept.count(), &found.lowerWhisker, &found.upperWhisker, outside.data());
}

// About half the width by Freedman and Diaconis, 2 IQR / n^(1/3), since rounding up widens it; and kept to as
// many intervals as a picture shows well.
double widthFor(const distribution& spread)
{
    constexpr double fewest = 12;
    constexpr double most = 40;
    const double range = spread.max.value - spread.min.value;
    const double width = (spread.upperQuartile - spread.lowerQuartile) / std::cbrt(spread.count);
    return roundStep(std::clamp(width, range / most, range / fewest));
}

} // namespace

kept_values keptOf(const data_set& data, const double* values)
{
    std::vector<int> all(static_cast<std::size_t>(data.rows));
    std::iota(all.begin(), all.end(), 0);
    return keptOf(data, values, all);
}

kept_values keptOf(const data_set& data, const double* values, const std::vector<int>& rows)
{
    kept_values kept;
    for (const int row : rows) {
        const auto i = static_cast<std::size_t>(row);
        if (data.leftOut[i] == 0 && VB_IsMissingValueDbl(values[i]) == 0) {
            kept.values.push_back(values[i]);
            kept.weights.push_back(data.weights[i]);
            kept.rows.push_back(row + 1);
        }
    }
    kept.leftOut.resize(kept.values.size());
    return kept;
}

short int weightsAreCounts(const data_set& data)
{
    return std::ranges::all_of(data.weights, [](double weight) { return weight == std::floor(weight); })
               ? flatTrue
               : flatFalse;
}

distribution distributionOf(const kept_values& kept, short int areCounts)
{
    distribution found;
    const int n = kept.count();
    const double* const x = kept.values.data();
    const double* const w = kept.weights.data();
    found.count = n;
    if (n == 0) {
        return found;
    }
    found.weight = VB_V_Sum2Dbl(w, n);
    found.sum = VB_V_Sum(x, n, kept.leftOut.data(), w);
    VB_V_MeanStdev(x, n, &found.mean, &found.deviation, kept.leftOut.data(), w, flatTrue, areCounts);

    int place = 0;
    found.min.value = VB_V_MinAndMinPos(x, n, &place, flatFalse);
    found.min.row = kept.rows[static_cast<std::size_t>(place - 1)];
    found.max.value = VB_V_MaxAndMaxPos(x, n, &place);
    found.max.row = kept.rows[static_cast<std::size_t>(place - 1)];

    // Equal weights give the plain quantiles.
    found.lowerQuartile = VB_V_QuantileW(x, n, w, 0.25);
    found.median = VB_V_QuantileW(x, n, w, 0.5);
    found.upperQuartile = VB_V_QuantileW(x, n, w, 0.75);
    findWhiskers(kept, found);
    return found;
}

shape_figures shapeOf(const kept_values& kept, short int areCounts)
{
    shape_figures found;
    const int n = kept.count();
    const double* const x = kept.values.data();
    const double* const w = kept.weights.data();
    const short int* const none = kept.leftOut.data();
    if (n == 0) {
        return found;
    }
    double mean = 0.0;
    double variance = 0.0;
    double populationSkewness = 0.0;
    double populationKurtosis = 0.0;
    // The sample's skewness and kurtosis are made from those of the population, which are the ones asked for
    // when the variance is not the unbiased one.
    VB_V_MeanVarSkewPKurtP(x, n, &mean, &variance, &populationSkewness, &populationKurtosis, &found.skewness,
                           &found.kurtosis, &found.skewnessError, &found.kurtosisError, none, w, flatFalse,
                           areCounts);
    // A constant column has no skewness, and its standard error is 0.
    if (VB_IsMissingValueDbl(found.skewness) != 0) {
        found.skewnessError = missingNumber;
    }
    if (VB_IsMissingValueDbl(found.kurtosis) != 0) {
        found.kurtosisError = missingNumber;
    }
    // These means are for positive numbers. The harmonic mean would have a value for negative ones too.
    if (VB_V_Min(x, n, none) > 0) {
        double ofShares = missingNumber;
        Cpp_V_GMeanGSD(x, n, none, w, &found.geometricMean, &ofShares);
        found.harmonicMean = Cpp_V_HarmonicMean(x, n, none, w);
        // The deviation that comes with the mean takes weights for shares, not counts.
        std::vector<double> logarithms(kept.values.size());
        VB_M_LogMatrix(x, n, 1, logarithms.data());
        const double deviation = VB_V_Stdev(logarithms.data(), n, none, w, flatTrue, areCounts);
        found.geometricDeviation = VB_IsMissingValueDbl(deviation) != 0 ? missingNumber : std::exp(deviation);
    }
    return found;
}

histogram histogramOf(const kept_values& kept, const distribution& spread, int decimals)
{
    histogram found;
    const double range = spread.max.value - spread.min.value;
    if (kept.values.empty() || !std::isfinite(range)) {
        return found;
    }
    const bool areWhole = decimals == 0;
    // What differs by rounding errors only stands in one interval, wide enough for the digits of the numbers.
    constexpr double roundingErrors = 1e-12;
    constexpr double leastRange = 1e-290;
    const double size = std::max(std::abs(spread.min.value), std::abs(spread.max.value));
    const bool isConstant = !(range > leastRange && range > roundingErrors * size);
    found.width = isConstant ? std::max(1.0, roundingErrors * size) : widthFor(spread);
    if (areWhole) {
        found.width = std::max(found.width, 1.0);
    }
    // Whole numbers one by one stand in the middle of their intervals.
    const bool isCentred = isConstant || (areWhole && found.width == 1.0);
    found.first = isCentred ? spread.min.value - found.width / 2.0
                            : std::floor(spread.min.value / found.width) * found.width;
    // A value that is an edge but for a rounding error is one.
    constexpr double rounding = 1e-9;
    std::vector<double> places(kept.values.size());
    std::ranges::transform(kept.values, places.begin(), [&](double value) {
        return std::floor((value - found.first) / found.width + rounding);
    });
    double last = VB_V_Max2(places.data(), kept.count());
    const double overEdge = spread.max.value - found.edge(static_cast<std::size_t>(last));
    if (last > 0.0 && overEdge <= rounding * found.width) {
        std::ranges::replace(places, last, last - 1.0);
        last -= 1.0;
    }
    for (double place = 0.0; place <= last; place += 1.0) {
        found.weights.push_back(VB_V_NbIfW(places.data(), kept.count(), kept.weights.data(), place));
    }
    return found;
}

} // namespace report
