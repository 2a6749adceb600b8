#include "special/log_binomial.h"

#include "special/elementary.h"

#include <cmath>

double cLogCnk(double n, double k)
{
    if (k == n || k == 0.0) {
        return 0.0;
    }
    const double chosen = std::trunc(k);
    const double left = std::trunc(n) - chosen;
    const bool fewAreChosen = left > k;
    const double terms = fewAreChosen ? chosen : left;
    const double base = fewAreChosen ? n - chosen : k;
    double result = korvel::logOrMissing(base + 1.0);
    for (double i = 2.0; i <= terms; ++i) {
        result += std::log(i + base) - std::log(i);
    }
    return result;
}

double LogCnk(double n, double k)
{
    return cLogCnk(n, k);
}
