#include "linalg/cone_projection.h"

#include "linalg/eigen_decomposition.h"
#include "linalg/products_symmetric.h"

#include <limits>

void korvel::cone_projection::form(const matrix<double>& table, int n, matrix<double>& projection)
{
    const int status = eigenDecomposition(table, values_, vectors_, n, -1);
    int kept = n;
    if (status == 0 && n > 0) {
        const double rounding = n * std::numeric_limits<double>::epsilon() * values_[0];
        wasInside_ = values_[n - 1] >= -rounding;
        // The values descend, and what is multiplied by 0 adds nothing to a sum.
        while (kept > 0 && values_[kept - 1] <= 0.0) {
            --kept;
        }
    } else {
        wasInside_ = false;
        for (int i = 0; i < n; ++i) {
            if (values_[i] < 0.0) {
                values_[i] = 0.0;
            }
        }
    }
    M_ProductADiagVTrA(&vectors_, n, kept, &values_, &projection);
}
