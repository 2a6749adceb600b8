#define MATHLIB_STANDALONE
#include "special/peers.h"

#include <Rmath.h>
#include <boost/math/special_functions/beta.hpp>

namespace korvel::bench
{

namespace
{

namespace policies = boost::math::policies;
using quiet = policies::policy<
    policies::domain_error<policies::ignore_error>, policies::overflow_error<policies::ignore_error>,
    policies::underflow_error<policies::ignore_error>, policies::evaluation_error<policies::ignore_error>>;
using doubles = policies::normalise<quiet, policies::promote_double<false>>::type;

/** Whether x is the number that is exact: the other one has been rounded. */
bool xIsExact(const point& p)
{
    return p.x <= p.y;
}

template <class Policy>
double boostOf(const point& p)
{
    return xIsExact(p) ? boost::math::ibeta(p.a, p.b, p.x, Policy())
                       : boost::math::ibetac(p.b, p.a, p.y, Policy());
}

} // namespace

double ratioOfR(const point& p, bool complement, bool logarithm)
{
    return xIsExact(p) ? pbeta(p.x, p.a, p.b, complement ? 0 : 1, logarithm ? 1 : 0)
                       : pbeta(p.y, p.b, p.a, complement ? 1 : 0, logarithm ? 1 : 0);
}

double ratioOfBoost(const point& p)
{
    return boostOf<doubles>(p);
}

double ratioOfBoostPromoted(const point& p)
{
    return boostOf<quiet>(p);
}

} // namespace korvel::bench
