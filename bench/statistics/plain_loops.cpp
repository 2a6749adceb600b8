#include "statistics/plain_loops.h"

#include "reference/vector_extremes.h"
#include "reference/vector_sums.h"
#include "reference/vector_variance.h"

#include <cmath>
#include <cstddef>
#include <functional>

namespace korvel::bench::plain
{

namespace
{

constexpr reference::denominator_flags unbiased{-1, -1};

double itself(double x)
{
    return x;
}

double absolute(double x)
{
    return std::abs(x);
}

} // namespace

double additions(double step, int n)
{
    double total = 0.0;
    for (int i = 0; i < n; ++i) {
        total += step;
    }
    return total;
}

double sum(const double* x, int n, const short int* flags, const double* w)
{
    return reference::sum(x, n, flags, &w);
}

double sum2(const double* x, int n)
{
    return reference::sum(x, n, nullptr, nullptr);
}

double sumOfIntegers(const int* x, int n)
{
    return reference::wrappedSum(x, n);
}

double sumW(const double* x, int n, const double* w)
{
    return reference::sumW(x, n, w);
}

double sumFromTo(const double* x, int from, int to)
{
    return reference::sumFromTo(x, from, to);
}

double sumSq(const double* x, int n)
{
    return reference::sumSq(x, n, true);
}

double sq(const double* x, int n)
{
    return reference::sumSq(x, n, false);
}

double sumSqW(const double* x, int n, const double* w)
{
    return reference::sumSqW(x, n, w);
}

double diffSq(const double* x, int n, const double* y)
{
    return reference::diffSq(x, n, y, nullptr, 1);
}

double diffSqW(const double* x, int n, const double* y, const double* w)
{
    return reference::diffSq(x, n, y, &w, 1);
}

double cuSum(const double* x, int n, double* out)
{
    reference::runningSums(x, n, out);
    return out[n - 1];
}

double mean(const double* x, int n, const short int* flags, const double* w)
{
    return reference::meanOf(x, n, flags, &w, itself);
}

double meanAbs(const double* x, int n, const short int* flags, const double* w)
{
    return reference::meanOf(x, n, flags, &w, absolute);
}

double mean2(const double* x, int n)
{
    return reference::meanOf(x, n, nullptr, nullptr, itself);
}

double meanW2(const double* x, int n, const double* w)
{
    return reference::meanOf(x, n, nullptr, &w, itself, reference::no_mean_when::weight_is_not_positive);
}

double harmonicMean(const double* x, int n, const short int* flags, const double* w)
{
    return reference::harmonicMean(x, n, flags, w);
}

double geometricMean(const double* x, int n, const short int* flags, const double* w)
{
    return reference::geometricMeanAndDeviation(x, n, flags, w).mean;
}

double var(const double* x, int n, const short int* flags, const double* w)
{
    return reference::variance(x, n, flags, &w, unbiased);
}

double unitVar(const double* x, int n)
{
    return reference::variance(x, n, nullptr, nullptr, unbiased);
}

double var2(const double* x, int n)
{
    return reference::unweightedVariance(x, n, unbiased);
}

double meanVar(const double* x, int n, const short int* flags, const double* w)
{
    return reference::meanAndVariance(x, n, flags, w, unbiased).size;
}

double meanVarW2(const double* x, int n, const double* w)
{
    return reference::meanAndVarianceByShares(x, n, w, unbiased).size;
}

double meanStdev2(const double* x, int n)
{
    return reference::unweightedMeanAndDeviation(x, n, -1).size;
}

double moments(const double* x, int n, const short int* flags, const double* w)
{
    return reference::moments(x, n, flags, w, unbiased)[3];
}

double freq(const double* x, int n, const double* w, double value, double tol)
{
    return reference::frequency(x, n, w, value, tol);
}

double freqOfIntegers(const int* x, int n, const double* w, double value, double tol)
{
    return reference::frequency(x, n, w, value, tol);
}

double min(const double* x, int n, const short int* flags)
{
    return reference::keptExtremes(x, n, flags).smallest;
}

double minOfIntegers(const int* x, int n, const short int* flags)
{
    return reference::keptExtremes(x, n, flags).smallest;
}

double max(const double* x, int n, const short int* flags)
{
    return reference::keptExtremes(x, n, flags).largest;
}

double min2(const double* x, int n)
{
    return reference::keptExtremes(x, n, nullptr).smallest;
}

double minMax(const double* x, int n, const short int* flags)
{
    const reference::extremes found = reference::keptExtremes(x, n, flags);
    return found.smallest + found.largest;
}

double minMax2(const double* x, int n)
{
    const reference::extremes found = reference::allExtremes(x, n, true);
    return found.smallest + found.largest;
}

double firstMinPos(const double* x, int n)
{
    return reference::withPosition(x, n, std::less<>{}).pos;
}

double lastMinPos(const double* x, int n)
{
    return reference::withPosition(x, n, std::less_equal<>{}).pos;
}

double maxPos(const double* x, int n)
{
    return reference::withPosition(x, n, std::greater<>{}).pos;
}

double maxPosOfIntegers(const int* x, int n)
{
    return reference::withPosition(x, n, std::greater<>{}).pos;
}

double minOfChunks(const std::vector<const double*>& chunks, int nPerChunk, const short int* flags)
{
    return reference::smallestOfChunks(chunks, static_cast<int>(chunks.size()), nPerChunk, flags);
}

double freqOfTexts(const text* labels, int n, const double* w, const text& value)
{
    double total = 0.0;
    for (int i = 0; i < n; ++i) {
        if (labels[i] == value) {
            total += w[i];
        }
    }
    return total;
}

} // namespace korvel::bench::plain
