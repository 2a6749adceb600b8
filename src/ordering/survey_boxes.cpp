#include "ordering/survey_boxes.h"

#include "ordering/sorted_keys.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace
{

constexpr double levelWidth = 1e-12;

using boxes = std::array<double, 3>;

/**
 * Walks `n` sorted elements from rank `first` in steps of `step` and sums the weights of the first three
 * levels; `weightAt(k)` is the weight that rank k adds.
 */
template <class WeightAt>
boxes walkLevels(const korvel::sorted_numbers<double>& sorted, int first, int step, WeightAt weightAt)
{
    boxes sums{};
    const auto n = static_cast<int>(sorted.size());
    if (n == 0) {
        return sums;
    }
    std::size_t level = 0;
    double score = sorted.key(static_cast<std::size_t>(first));
    for (int k = first; k >= 0 && k < n; k += step) {
        const double next = sorted.key(static_cast<std::size_t>(k));
        if (!(std::fabs(next - score) < levelWidth) && k != first) {
            if (++level == sums.size()) {
                break;
            }
            score = next;
        }
        sums[level] += weightAt(static_cast<std::size_t>(k));
    }
    return {sums[0], sums[0] + sums[1], sums[0] + sums[1] + sums[2]};
}

template <class WeightAt>
void sumBoxes(const korvel::sorted_numbers<double>& sorted, WeightAt weightAt, std::array<double*, 3> top,
              std::array<double*, 3> bottom)
{
    const boxes highest = walkLevels(sorted, static_cast<int>(sorted.size()) - 1, -1, weightAt);
    const boxes lowest = walkLevels(sorted, 0, 1, weightAt);
    for (std::size_t level = 0; level < top.size(); ++level) {
        *top[level] = highest[level];
        *bottom[level] = lowest[level];
    }
}

korvel::sorted_numbers<double> ascending(const matrix<double>& x, int n)
{
    return {n, false, [&](std::int32_t k) { return x[k]; }};
}

} // namespace

void V_TopBottom3BoxConditional(matrix<double>* x, int n, matrix<double>* w, matrix<double>* group,
                                double groupValue, double* top1, double* bottom1, double* top2,
                                double* bottom2, double* top3, double* bottom3)
{
    const auto sorted = ascending(*x, n);
    std::vector<double> unsorted(sorted.size());
    std::vector<char> counts(sorted.size()); // filled before the weights move, which may be the groups
    for (std::size_t k = 0; k < sorted.size(); ++k) {
        unsorted[k] = (*w)[static_cast<std::int64_t>(k)];
        counts[k] = std::fabs((*group)[sorted.position(k)] - groupValue) < levelWidth ? 1 : 0;
    }
    for (std::size_t k = 0; k < sorted.size(); ++k) {
        (*w)[static_cast<std::int64_t>(k)] = unsorted[static_cast<std::size_t>(sorted.position(k))];
    }
    const auto weightAt = [&](std::size_t k) { return counts[k] != 0 ? unsorted[k] : 0.0; };
    sumBoxes(sorted, weightAt, {top1, top2, top3}, {bottom1, bottom2, bottom3});
}

void V_TopBottom3Box(matrix<double>* x, int n, matrix<double>* w, double* top1, double* bottom1, double* top2,
                     double* bottom2, double* top3, double* bottom3)
{
    const auto sorted = ascending(*x, n);
    const auto weightAt = [&](std::size_t k) { return (*w)[sorted.position(k)]; };
    sumBoxes(sorted, weightAt, {top1, top2, top3}, {bottom1, bottom2, bottom3});
}
