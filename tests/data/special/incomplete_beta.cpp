// Incomplete beta ratios in arithmetic of 100 digits: the origin of incomplete_beta.txt. It is not part of
// any build:
//
//     g++ -std=c++20 -O2 incomplete_beta.cpp -o /tmp/incomplete_beta && /tmp/incomplete_beta >
//     incomplete_beta.txt
//
// Each line is a point: the way that Algorithm 708 takes there (DiDonato and Morris, Significant digit
// computation of the incomplete beta function ratios, ACM Transactions on Mathematical Software 18, 1992,
// section 2), a and b, x and y, of which one is a dash and stands for 1 less the other, rounded, and then the
// ratio, its complement, and the logarithms of both, all for the number that is not a dash as it is stored.
//
// The ratio below the mean, or its complement above it, is x^a y^b / (a B(a, b)) by the continued
// fraction 8.17.22 of the NIST Digital Library of Mathematical Functions. The gamma function is Stirling's
// series behind a recurrence to 100. Nothing here is shared with the library.

#include <boost/multiprecision/cpp_bin_float.hpp>
#include <boost/multiprecision/cpp_int.hpp>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace
{

using number = boost::multiprecision::cpp_bin_float_100;

/** B_2, B_4, ... by Akiyama and Tanigawa's triangle, in fractions. */
std::vector<number> bernoulliNumbers(int count)
{
    using fraction = boost::multiprecision::cpp_rational;
    std::vector<number> found;
    std::vector<fraction> row;
    for (int m = 0; m <= 2 * count; ++m) {
        row.emplace_back(1, m + 1);
        for (int j = m; j > 0; --j) {
            const auto at = static_cast<std::size_t>(j);
            row[at - 1] = j * (row[at - 1] - row[at]);
        }
        if (m > 0 && m % 2 == 0) {
            found.emplace_back(number(numerator(row[0])) / number(denominator(row[0])));
        }
    }
    return found;
}

number logGamma(number z)
{
    static const std::vector<number> bernoulli = bernoulliNumbers(60);
    static const number halfLogOf2Pi = log(8 * atan(number(1))) / 2;
    number product = 1;
    while (z < 100) {
        product *= z;
        z += 1;
    }
    number sum = (z - number(0.5)) * log(z) - z + halfLogOf2Pi;
    number power = z;
    for (std::size_t k = 0; k < bernoulli.size(); ++k) {
        const int order = 2 * static_cast<int>(k) + 2;
        sum += bernoulli[k] / (order * (order - 1) * power);
        power *= z * z;
    }
    return sum - log(product);
}

struct place {
    number x;
    number y;
    number logX;
    number logY;
};

/** How often the fraction may be carried on. Only a few points near the mean of large parameters need more.
 */
int patience = 20'000;

/** The logarithm of the ratio at a place that is not above the mean; 1 when that takes too long. */
number logOfRatioBelowMean(const number& a, const number& b, const place& at)
{
    number numeratorBefore = 1;
    number numerator = 0;
    number denominatorBefore = 0;
    number denominator = 1;
    number part = 1;
    number seen = 0;
    for (int m = 0; m < patience; ++m) {
        for (const bool even : {false, true}) {
            const number before = numerator;
            numerator += part * numeratorBefore;
            numeratorBefore = before;
            const number below = denominator;
            denominator += part * denominatorBefore;
            denominatorBefore = below;
            const number k = even ? m + 1 : m;
            part = even ? number(k * (b - k) * at.x / ((a + 2 * k - 1) * (a + 2 * k)))
                        : number(-(a + k) * (a + b + k) * at.x / ((a + 2 * k) * (a + 2 * k + 1)));
        }
        if (m % 8 == 7) {
            const number now = numerator / denominator;
            if (abs(now - seen) < abs(now) * number("1e-55")) {
                return a * at.logX + b * at.logY - log(a) - (logGamma(a) + logGamma(b) - logGamma(a + b)) +
                       log(now);
            }
            seen = now;
        }
    }
    return 1;
}

/** log(1 - exp(x)) for a negative x. */
number logOfComplement(const number& x)
{
    if (x >= 0) {
        return x;
    }
    if (x < -1) {
        return log1p(-exp(x));
    }
    return log(-expm1(x));
}

struct tails {
    number logRatio;
    number logComplement;
};

tails tailsOf(double a, double b, const place& at)
{
    const number p = a;
    const number q = b;
    if (at.x * (p + q) <= p) {
        const number ratio = logOfRatioBelowMean(p, q, at);
        return {ratio, logOfComplement(ratio)};
    }
    const number complement = logOfRatioBelowMean(q, p, {at.y, at.x, at.logY, at.logX});
    return {logOfComplement(complement), complement};
}

struct point {
    double a;
    double b;
    double place;
    bool isY; ///< the place is y

    [[nodiscard]] double x() const { return isY ? 1.0 - place : place; }
    [[nodiscard]] double y() const { return isY ? place : 1.0 - place; }
};

constexpr double epsilon = 1e-15;

/** The way of the paper, at most 1/2 being x, for a parameter that is not above 1. */
std::string wayOfSmall(double a, double b, double x)
{
    if (b < std::min(epsilon, epsilon * a)) {
        return "tinyB";
    }
    if (a < std::min(epsilon, epsilon * b) && b * x <= 1.0) {
        return "tinyA";
    }
    if (a <= 1.0 && b <= 1.0) {
        if (a >= std::min(0.2, b) || std::pow(x, a) <= 0.9) {
            return "series";
        }
        return x >= 0.3 ? "complementSeries" : "stepsAndExpansion";
    }
    if (b <= 1.0) {
        return "series";
    }
    if (x >= 0.29) {
        return "complementSeries";
    }
    if (x < 0.1 && std::pow(b * x, a) <= 0.7) {
        return "series";
    }
    return b > 15.0 ? "expansion" : "stepsAndExpansion";
}

std::string wayOfLarge(double a, double b, double x, double lambda)
{
    if (b >= 40.0) {
        const bool both = a > 100.0 && b > 100.0 && lambda <= 0.03 * std::min(a, b);
        return both ? "largeBoth" : "fraction";
    }
    if (b * x <= 0.7) {
        return "series";
    }
    if (x <= 0.7) {
        return "wholeAndSeries";
    }
    return a <= 15.0 ? "wholeStepsExpansion" : "wholeAndExpansion";
}

std::string wayOf(const point& p)
{
    if (std::max(p.a, p.b) < 0.001 * epsilon) {
        return "tinyBoth";
    }
    if (std::min(p.a, p.b) <= 1.0) {
        return p.x() <= 0.5 ? wayOfSmall(p.a, p.b, p.x()) : wayOfSmall(p.b, p.a, p.y());
    }
    const double lambda = p.a > p.b ? (p.a + p.b) * p.y() - p.b : p.a - (p.a + p.b) * p.x();
    return lambda >= 0.0 ? wayOfLarge(p.a, p.b, p.x(), lambda) : wayOfLarge(p.b, p.a, p.y(), -lambda);
}

/** Points at random. All numbers have few decimals, so that the file is short. */
class proposals
{
public:
    point next(int kind)
    {
        point p{parameter(kind), parameter(kind), 0.0, random_() % 2 == 0};
        if (kind == wholeNumbers) {
            p.b = std::ceil(p.b);
        }
        const double mean = p.isY ? p.b / (p.a + p.b) : p.a / (p.a + p.b);
        const double spread = std::sqrt(p.a * p.b / (p.a + p.b + 1.0)) / (p.a + p.b);
        switch (random_() % 4) {
        case 0:
            p.place = shortened(logarithmic(-9.0, -0.3), 5);
            break;
        case 1:
            p.place = shortened(logarithmic(-300.0, 0.0), 5);
            break;
        case 2:
            p.place = shortened(uniform(0.0, 1.0), 5);
            break;
        default:
            p.place = shortened(mean + spread * uniform(-6.0, 6.0), 10);
        }
        return p;
    }

    static constexpr int kinds = 8;
    static constexpr int wholeNumbers = 7;

private:
    double parameter(int kind)
    {
        switch (kind) {
        case 0:
            return shortened(logarithmic(-10.0, 10.0), 4);
        case 1:
            return shortened(logarithmic(-1.0, 2.0), 4);
        case 2:
            return shortened(logarithmic(-30.0, 2.0), 4);
        case 3:
            return shortened(logarithmic(-25.0, -17.0), 4);
        case 4:
            return shortened(logarithmic(-3.0, 0.0), 4);
        case 5:
            return shortened(logarithmic(1.5, 6.0), 4);
        case 6:
            return random_() % 2 == 0 ? shortened(logarithmic(-20.0, -15.0), 4)
                                      : shortened(logarithmic(-2.0, 16.0), 4);
        default:
            return random_() % 2 == 0 ? 0.5 : shortened(logarithmic(0.0, 3.0), 4);
        }
    }

    // The standard's distributions differ between libraries.
    double uniform(double least, double most)
    {
        return least + (most - least) * (static_cast<double>(random_() >> 11) * 0x1p-53);
    }
    double logarithmic(double least, double most) { return std::pow(10.0, uniform(least, most)); }
    static double shortened(double x, int digits)
    {
        char written[40];
        std::snprintf(written, sizeof written, "%.*g", digits, x);
        return std::strtod(written, nullptr);
    }

    std::mt19937_64 random_{708};
};

place exactPlace(const point& p)
{
    const number given = p.place;
    const number other = 1 - given;
    if (p.isY) {
        return {other, given, log1p(-given), log(given)};
    }
    return {given, other, log(given), log1p(-given)};
}

void print(const point& p, const tails& found)
{
    const auto digits = [](const number& x) { return x.str(17, std::ios_base::scientific); };
    std::printf("%s %.16g %.16g ", wayOf(p).c_str(), p.a, p.b);
    std::printf(p.isY ? "- %.16g" : "%.16g -", p.place);
    std::printf(" %s %s %s %s\n", digits(exp(found.logRatio)).c_str(),
                digits(exp(found.logComplement)).c_str(), digits(found.logRatio).c_str(),
                digits(found.logComplement).c_str());
}

} // namespace

int main()
{
    constexpr int pointsOfEachWay = 180;
    constexpr int ways = 12;
    constexpr int slowPoints = 40;
    std::map<std::string, int> counts;
    int complete = 0;
    int slow = 0;
    const point extremes[] = {
        {1e8, 1e8, 0.4949, false},   {1e8, 3e8, 0.74, true},    {1e10, 1e10, 0.49999, false},
        {1e10, 1e10, 0.5, false},    {1e10, 2e9, 0.1666, true}, {1e-10, 1e-10, 0.5, false},
        {1e-10, 1e10, 1e-10, false}, {1e10, 1e-10, 1e-9, true}, {1e10, 1e-10, 0.5, false},
        {1e-10, 1.0, 1e-300, false}, {1e10, 30.0, 3e-9, true},  {1e10, 39.5, 0.3, false},
    };
    patience = 3'000'000;
    for (const point& p : extremes) {
        ++counts[wayOf(p)];
        print(p, tailsOf(p.a, p.b, exactPlace(p)));
    }
    proposals random;
    for (int turn = 0; complete < ways; ++turn) {
        const point p = random.next(turn % proposals::kinds);
        if (!(p.place > 0.0 && p.place < 1.0 && 1.0 - p.place > 0.0)) {
            continue;
        }
        int& count = counts[wayOf(p)];
        if (count == pointsOfEachWay) {
            continue;
        }
        patience = 20'000;
        tails found = tailsOf(p.a, p.b, exactPlace(p));
        if (found.logRatio >= 0 && slow < slowPoints) {
            ++slow;
            patience = 1'000'000;
            found = tailsOf(p.a, p.b, exactPlace(p));
        }
        if (found.logRatio >= 0) {
            continue;
        }
        ++count;
        complete += count == pointsOfEachWay ? 1 : 0;
        print(p, found);
    }
}
