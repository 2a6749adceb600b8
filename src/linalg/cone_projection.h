/**
 * @file
 * The nearest positive semidefinite table: eigenvalues below 0 become 0.
 */
#ifndef KORVEL_LINALG_CONE_PROJECTION_H
#define KORVEL_LINALG_CONE_PROJECTION_H

#include "containers/matrix.h"

namespace korvel
{

/** Projects symmetric tables, one after the other in the same scratch. */
class cone_projection
{
public:
    /**
     * The projection of a table, of which only the lower triangle is used. Where the eigenvalues do not
     * converge it has no meaning, and of a table with a missing cell it is 0.
     *
     * @param projection receives `n` by `n`, sized by the caller
     * @throws std::bad_alloc when memory is short
     */
    void form(const matrix<double>& table, int n, matrix<double>& projection);

    /** Whether the table just projected had no eigenvalue that is below 0 by more than rounding makes it. */
    [[nodiscard]] bool wasInside() const { return wasInside_; }

private:
    matrix<double> values_;
    matrix<double> vectors_;
    bool wasInside_ = false;
};

} // namespace korvel

#endif
