#include "statistics/vector_frequencies.h"

#include "containers/cells.h"
#include "statistics/pairs.h"

namespace
{

template <class T>
double weightNear(const matrix<T>& x, int n, const matrix<double>& w, double value, double tol)
{
    const auto weightIfNear = [value, tol](korvel::pair cells, korvel::pair weights) {
        const korvel::pair distance = korvel::absolute(cells - value);
        return korvel::only(korvel::pairOf(distance < tol), weights);
    };
    return korvel::withCells([=](auto... cells) { return korvel::sumOf(0, n, weightIfNear, cells...); }, n, x,
                             w);
}

} // namespace

double V_Freq(matrix<double>* x, int n, matrix<double>* w, double value, double tol)
{
    return weightNear(*x, n, *w, value, tol);
}

double V_Freq(matrix<int>* x, int n, matrix<double>* w, double value, double tol)
{
    return weightNear(*x, n, *w, value, tol);
}

double V_FreqStr(matrix<text>* labels, int n, matrix<double>* w, text value)
{
    const auto weight = [&](auto texts, auto weights) {
        double sum = 0.0;
        for (int i = 0; i < n; ++i) {
            if (texts[i] == value) {
                sum += weights[i];
            }
        }
        return sum;
    };
    return korvel::withCells(weight, n, *labels, *w);
}
