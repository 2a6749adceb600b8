#include "special/beta_terms.h"
#include "special/gamma_pieces.h"
#include "special/scales.h"

#include <array>
#include <cmath>

namespace korvel
{

namespace
{

constexpr double twoOverRootOfPi = 1.1283791670955126;
constexpr double inverseOfRootOf8 = 0.35355339059327373;

/** The greatest order of a term; even. */
constexpr int greatestOrder = 20;

using coefficients = std::array<double, greatestOrder + 2>;

/**
 * The coefficients of the expansion for two large parameters, from those of the series of a change of
 * variable (section 10 of the paper). Each call computes two more.
 */
class large_coefficients
{
public:
    /** `h` is the quotient of the lesser parameter and the greater, `difference` (b - a) / max(a, b). */
    large_coefficients(double h, double difference)
        : h_(h), twoShares_(2.0 / (h + 1.0)), twoDifferences_(2.0 * difference)
    {
        series_[0] = twoDifferences_ / 3.0;
        c_[0] = -0.5 * series_[0];
        d_[0] = -c_[0];
    }

    double operator[](int order) const { return d_[at(order)]; }

    /** Computes those of an even order and of the next. */
    void compute(int order)
    {
        evenPowerOfH_ *= h_ * h_;
        series_[at(order - 1)] = twoShares_ * (1.0 + h_ * evenPowerOfH_) / (order + 2.0);
        sum_ += evenPowerOfH_;
        series_[at(order)] = twoDifferences_ * sum_ / (order + 3.0);
        computeOne(order);
        computeOne(order + 1);
    }

private:
    static std::size_t at(int k) { return static_cast<std::size_t>(k); }

    void computeOne(int i)
    {
        // The series to the power r.
        const double r = -0.5 * (i + 1.0); // a half or a whole number, so that the weights below are exact
        power_[0] = r * series_[0];
        for (int m = 2; m <= i; ++m) {
            double sum = 0.0;
            double weight = r + 1.0 - m;
            for (int j = 1; j < m; ++j) {
                sum += weight * series_[at(j - 1)] * power_[at(m - j - 1)];
                weight += r + 1.0;
            }
            power_[at(m - 1)] = r * series_[at(m - 1)] + sum / m;
        }
        c_[at(i - 1)] = power_[at(i - 1)] / (i + 1.0);
        double sum = 0.0;
        for (int j = 1; j < i; ++j) {
            sum += d_[at(i - j - 1)] * c_[at(j - 1)];
        }
        d_[at(i - 1)] = -(sum + c_[at(i - 1)]);
    }

    double h_;
    double twoShares_;
    double twoDifferences_;
    double evenPowerOfH_ = 1.0;
    double sum_ = 1.0;
    coefficients series_;
    coefficients power_; ///< the series to a power
    coefficients c_;
    coefficients d_;
};

} // namespace

template <class Scale>
double expansionForLargeBoth(double a, double b, double lambda, double epsilon)
{
    const double f = a * excessOverLog1p(-lambda / a) + b * excessOverLog1p(lambda / b);
    const double decay = Scale::ofExp(-f);
    if (decay == Scale::zero) {
        return decay;
    }
    const double greater = a < b ? b : a;
    const double lesser = a < b ? a : b;
    const double h = lesser / greater;
    const double w0 = 1.0 / std::sqrt(lesser * (h + 1.0));
    const double root = std::sqrt(f);
    const double z2 = f + f;
    large_coefficients d(h, (b - a) / greater);

    double even = 0.5 / twoOverRootOfPi * scaledErrorComplement(root);
    double odd = inverseOfRootOf8;
    double evenPower = root / inverseOfRootOf8 * 0.5;
    double oddPower = z2;
    double w = w0;
    double sum = even + d[0] * w0 * odd;
    for (int n = 2; n <= greatestOrder; n += 2) {
        d.compute(n);
        even = inverseOfRootOf8 * evenPower + (n - 1) * even;
        odd = inverseOfRootOf8 * oddPower + n * odd;
        evenPower *= z2;
        oddPower *= z2;
        w *= w0;
        const double evenTerm = d[n - 1] * w * even;
        w *= w0;
        const double oddTerm = d[n] * w * odd;
        if (!std::isfinite(evenTerm + oddTerm)) {
            // Only powers of parameters beyond 1e25 overflow, of which these terms are no share.
            break;
        }
        sum += evenTerm + oddTerm;
        if (std::fabs(evenTerm) + std::fabs(oddTerm) <= epsilon * sum) {
            break;
        }
    }
    return Scale::times(Scale::times(decay, twoOverRootOfPi * expOfNegatedCorrection(a, b)), sum);
}

template double expansionForLargeBoth<plain_scale>(double, double, double, double);
template double expansionForLargeBoth<log_scale>(double, double, double, double);

} // namespace korvel
