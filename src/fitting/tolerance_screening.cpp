#include "fitting/tolerance_screening.h"

#include "containers/cells.h"
#include "containers/packed_symmetric.h"
#include "fitting/least_squares.h"
#include "linalg/packed_sweep.h"

#include <cmath>
#include <cstdint>

namespace
{

using korvel::packedPlace;
using korvel::storeChecked;

constexpr int constantVariable = 50000;
constexpr int collinearVariable = 60000;

/** The arguments that say what is screened and how. */
struct screening_options {
    double tolerance;
    short int duplicates;
    bool entered;
    bool reverse;
    bool skipGroup;
};

template <class Number>
class screening
{
public:
    screening(const matrix<double>& R, int p, const matrix<Number>& groupNumbers, screening_options options,
              matrix<Number>& status, matrix<double>& tolerances, matrix<double>& inflationFactors)
        : R_(R), p_(p), groups_(groupNumbers), options_(options), status_(status), tolerances_(tolerances),
          factors_(inflationFactors), master_(korvel::packedElements(p + 1), 1, 0.0)
    {
        for (int v = 1; v <= p_; ++v) {
            mark(v, -1);
        }
        for (int i = 1; i <= p_; ++i) {
            pack(i);
        }
    }

    /** Screens the variables of group `g`. */
    void screenGroup(int g)
    {
        int first = 0;
        int last = 0;
        for (int v = 1; v <= p_; ++v) {
            if (groups_[v - 1] == static_cast<Number>(g)) {
                first = first == 0 ? v : first;
                last = v;
            }
        }
        for (int k = 0; first != 0 && k <= last - first; ++k) {
            const int v = options_.reverse ? last - k : first + k;
            if (!(statusOf(v) > 0)) {
                screenVariable(v);
            }
        }
    }

private:
    [[nodiscard]] Number statusOf(int v) const { return status_[v - 1]; }
    void mark(int v, int status) { storeChecked(status_, v - 1, static_cast<Number>(status)); }

    void store(int v, double tolerance, double factor)
    {
        storeChecked(tolerances_, v - 1, tolerance);
        storeChecked(factors_, v - 1, factor);
    }

    [[nodiscard]] double correlation(int i, int j) const { return R_.getElement(i - 1, j - 1); }

    /** Row `i` of the triangle; marks it when it is constant, and its duplicates among the later ones. */
    void pack(int i)
    {
        for (int j = 1; j <= i; ++j) {
            storeChecked(master_, packedPlace(i, j), correlation(i, j));
        }
        if (std::fabs(correlation(i, i)) < 1e-12) {
            mark(i, constantVariable);
            store(i, 0.0, MISSING_DBL);
        } else if (options_.duplicates != 0) {
            for (int j = i + 1; j <= p_; ++j) {
                if (std::fabs(correlation(i, j)) > 0.999999999999) {
                    mark(j, collinearVariable);
                    store(j, 0.0, MISSING_DBL);
                }
            }
        }
    }

    [[nodiscard]] bool mayBeSwept(int u, int v) const
    {
        return u != v && statusOf(u) != static_cast<Number>(constantVariable) &&
               (!(statusOf(u) > 0) || options_.entered) &&
               !(options_.skipGroup && groups_[u - 1] == groups_[v - 1]);
    }

    void screenVariable(int v)
    {
        matrix<double> table(master_);
        for (int u = 1; u <= p_; ++u) {
            storeChecked(table, packedPlace(p_ + 1, u), correlation(u, v));
        }
        storeChecked(table, packedPlace(p_ + 1, v), 1.0);
        storeChecked(table, packedPlace(p_ + 1, p_ + 1), 1.0);
        double left = 1.0;
        for (int u = 1; u <= p_; ++u) {
            if (!mayBeSwept(u, v)) {
                continue;
            }
            if (OLSCheckIfIn(&table, p_, u, options_.tolerance) > options_.tolerance) {
                M_Sweep(&table, p_ + 1, u);
                left = 1.0 - (1.0 - table[packedPlace(p_ + 1, p_ + 1)]);
                if (options_.tolerance > left) {
                    break;
                }
            } else if (options_.duplicates == -1 &&
                       std::fabs(table[packedPlace(u, u)]) < options_.tolerance) {
                mark(u, collinearVariable);
            }
        }
        store(v, left, left > 0.0 ? 1.0 / left : MISSING_DBL);
    }

    const matrix<double>& R_;
    const int p_;
    const matrix<Number>& groups_;
    const screening_options options_;
    matrix<Number>& status_;
    matrix<double>& tolerances_;
    matrix<double>& factors_;
    matrix<double> master_;
};

template <class Number>
void checkTolerance(const matrix<double>& R, int p, int groupCount, const matrix<Number>& groupSelection,
                    const matrix<Number>& groupNumbers, screening_options options, matrix<Number>& status,
                    matrix<double>& tolerances, matrix<double>& inflationFactors)
{
    screening<Number> variables(R, p, groupNumbers, options, status, tolerances, inflationFactors);
    for (int g = groupCount; g >= 1; --g) {
        if (groupSelection[g - 1] == Number{1}) {
            variables.screenGroup(g);
        }
    }
}

} // namespace

void CheckTolerance(matrix<double>* R, int p, int groupCount, matrix<double>* groupSelection,
                    matrix<double>* groupNumbers, double tolerance, short int duplicates, short int entered,
                    short int reverse, short int skipGroup, matrix<double>* status,
                    matrix<double>* tolerances, matrix<double>* inflationFactors)
{
    checkTolerance(*R, p, groupCount, *groupSelection, *groupNumbers,
                   {tolerance, duplicates, entered == -1, reverse == -1, skipGroup == -1}, *status,
                   *tolerances, *inflationFactors);
}

void CheckTolerance(matrix<double>* R, int p, int groupCount, matrix<int>* groupSelection,
                    matrix<int>* groupNumbers, double tolerance, short int duplicates, short int entered,
                    short int reverse, short int skipGroup, matrix<int>* status, matrix<double>* tolerances,
                    matrix<double>* inflationFactors)
{
    checkTolerance(*R, p, groupCount, *groupSelection, *groupNumbers,
                   {tolerance, duplicates, entered == -1, reverse == -1, skipGroup == -1}, *status,
                   *tolerances, *inflationFactors);
}
