#include "special/elementary.h"

namespace korvel
{

namespace
{

/** erf(x) / x, for |x| <= 0.5. */
double errorQuotient(double x)
{
    const double t = x * x;
    const double top = polynomial(t, 7.7105849500132e-5, -0.00133733772997339, 0.0323076579225834,
                                  0.0479137145607681, 0.128379167095513);
    return (top + 1.0) / polynomial(t, 0.00301048631703895, 0.0538971687740286, 0.375795757275549, 1.0);
}

} // namespace

double excessOverLog1p(double x)
{
    if (x < -0.39 || x > 0.57) {
        return x - std::log(1.0 + x);
    }
    // Outside of the middle, 1 + x is split into 7/10 or 4/3, of which the value is known, and a factor
    // near 1.
    double h = x;
    double known = 0.0;
    if (x < -0.18) {
        h = (x + 0.3) / 0.7;
        known = 0.0566749439387324 - h * 0.3;
    } else if (x > 0.18) {
        h = x * 0.75 - 0.25;
        known = 0.0456512608815524 + h / 3.0;
    }
    const double r = h / (h + 2.0);
    const double t = r * r;
    const double w = polynomial(t, 0.00620886815375787, -0.224696413112536, 1.0 / 3.0) /
                     polynomial(t, 0.354508718369557, -1.27408923933623, 1.0);
    return t * 2.0 * (1.0 / (1.0 - r) - r * w) + known;
}

double errorFunction(double x)
{
    return x * errorQuotient(x);
}

double scaledErrorComplement(double x)
{
    constexpr double oneOverRootOfPi = 0.5641895835477563;
    if (x <= 0.5) {
        return std::exp(x * x) * (1.0 - errorFunction(x));
    }
    if (x <= 4.0) {
        return polynomial(x, -1.36864857382717e-7, 0.564195517478974, 7.21175825088309, 43.1622272220567,
                          152.98928504694, 339.320816734344, 451.918953711873, 300.459261020162) /
               polynomial(x, 1.0, 12.7827273196294, 77.0001529352295, 277.585444743988, 638.980264465631,
                          931.35409485061, 790.950925327898, 300.459260956983);
    }
    const double t = 1.0 / (x * x);
    const double top = polynomial(t, 2.10144126479064, 26.2370141675169, 21.3688200555087, 4.6580782871847,
                                  0.282094791773523);
    const double bottom =
        polynomial(t, 94.153775055546, 187.11481179959, 99.0191814623914, 18.0124575948747, 1.0);
    return (oneOverRootOfPi - t * top / bottom) / x;
}

} // namespace korvel
