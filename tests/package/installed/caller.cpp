// A sibling module: it links with the core routines and passes its own tables.
#include <korvelmathtools/containers/matrix.h>
#include <korvelmathtools/statistics/vector_sums.h>

#include <cstdio>

int main()
{
    double values[] = {1.0, 2.0, 4.0};
    matrix<double> borrowed(3, 1, values, true);
    const double sum = V_Sum(&borrowed, 3, nullptr, nullptr);

    matrix<double> resized;
    resized.Redim(2, 5, 0.5);
    const double halves = V_Sum(&resized, 10, nullptr, nullptr);

    std::printf("%g %g\n", sum, halves);
    return sum == 7.0 && halves == 5.0 ? 0 : 1;
}
