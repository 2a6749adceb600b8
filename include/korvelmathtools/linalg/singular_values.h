/**
 * @file
 * Singular value decomposition A = U diag(s) V': Householder bidiagonalisation and implicitly shifted QR
 * iteration (Golub and Reinsch, Numerische Mathematik 14, 1970), in the order of LINPACK's dsvdc (Dongarra,
 * Moler, Bunch and Stewart, LINPACK Users' Guide, 1979).
 *
 * Its tests are absolute, whatever the scale of the table. A norm counts as zero unless it is above 1e-31,
 * and an element of the bidiagonal form when what it adds to the sum of its neighbours' magnitudes is below
 * 2.220446049250313e-16. So:
 *
 * - Singular values are good to about that number, not to that share of the largest one. Below it a table's
 *   own bidiagonal form passes for its values; with columns of a length up to 1e-31, the table's own
 * elements.
 * - A table with large elements is iterated further than its own precision would ask for.
 *
 * Missing elements are the numbers that they are. NaN and infinite elements keep the iteration from
 * converging.
 *
 * `job` is a number of two digits; higher digits are ignored. The tens digit says what is wanted of U: 0
 * nothing, 1 all `n` columns, above 1 the first min(n, p). The units digit says whether the p by p table V is
 * wanted: not 0. What is not wanted is neither read nor written.
 *
 * `s` receives min(n + 1, p) numbers, of which the first min(n, p) are the singular values, descending and
 * not negative. With `n` or `p` below 1 there is nothing to decompose: `s` is 0, and U and V are unit tables.
 *
 * `info` receives 0, or, where the iteration has a limit, -m when it gave up with m values to go: those that
 * follow the first m in `s` are then good.
 */
#ifndef KORVEL_LINALG_SINGULAR_VALUES_H
#define KORVEL_LINALG_SINGULAR_VALUES_H

#include "containers/matrix.h"
#include "containers/matrix3d.h"
#include "containers/records.h"
#include "platform/export.h"

#include <algorithm>

namespace korvel
{

/** What the digits of a job ask for. */
struct svd_job {
    int columnsOfU; ///< 0: U is not wanted
    bool wantsV;

    svd_job(int job, int n, int p)
        : columnsOfU(job % 100 < 10 ? 0 : std::max(job % 100 < 20 ? n : std::min(n, p), 0)),
          wantsV(job % 10 != 0)
    {
    }
};

} // namespace korvel

/**
 * Decomposes a dense table. A value may take 500 steps.
 *
 * @param A    the table, `n` by `p`; not null. It comes out as it was
 * @param n    rows
 * @param p    columns
 * @param s    receives min(n + 1, p) numbers; sized by the caller; not null
 * @param U    receives the left vectors, `n` rows and as many columns as `job` asks for; sized by the caller;
 * may be null when none are wanted
 * @param V    receives the right vectors, `p` by `p`; sized by the caller; may be null when they are not
 * wanted
 * @param job  see above
 * @param info receives 0, or minus the number of values that did not converge; not null
 *
 * The tables are different ones. What the spare slots of the results hold afterwards has no meaning.
 * @throws std::bad_alloc when memory is short; the results then have no meaning
 */
KORVEL_API void M_SVDecomp(matrix<double>* A, int n, int p, matrix<double>* s, matrix<double>* U,
                           matrix<double>* V, int job, int* info);

/** The same for tables of chunks. A value may take 60 steps, so that a table may fail that succeeds as a
 * dense one. */
KORVEL_API void M_SVDecompSPV(matrix3D<matrix<double>>* A, int n, int p, matrix<double>* s,
                              matrix3D<matrix<double>>* U, matrix3D<matrix<double>>* V, int job, int* info);

/**
 * The same for records, whose first columns hold what is asked for. `A` is destroyed: it holds the reduced
 * form afterwards. The steps have no limit, and with NaN or infinite elements there is no end to them.
 *
 * @param A    the table, `n` by `p`
 * @param n    rows
 * @param p    columns
 * @param s    its first column receives min(n + 1, p) numbers
 * @param U    receives the left vectors; not looked at when none are wanted
 * @param V    receives the right vectors; not looked at when they are not wanted
 * @param job  see above
 * @param info receives 0; not null
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_SVDecomp_Fast_ST(cST_MVect<double>& A, int n, int p, cST_MVect<double>& s,
                                   cST_MVect<double>& U, cST_MVect<double>& V, int job, int* info);

/**
 * The generalised decomposition A = U diag(s) V', with U' diag(rowWeights) U and V' diag(colWeights) V the
 * unit table: the table is scaled by the roots of the weights, decomposed by `M_SVDecomp_Fast_ST` with job
 * 21, and the vectors are divided by the roots. A weight of 0 gives infinite numbers and NaN.
 *
 * @param A          the table, `n` by `p`; not changed
 * @param n          rows
 * @param p          columns
 * @param rowWeights its first column has the weight of each row
 * @param colWeights its first column has the weight of each column
 * @param s          its first column receives min(n + 1, p) numbers
 * @param U          receives the left vectors, only the first min(p, n - 1) of them
 * @param V          receives the right vectors, `p` by `p`
 * @param job        not used
 * @param info       receives 0; not null
 * @throws std::bad_alloc when memory is short
 */
KORVEL_API void M_GeneralizedSVDecomp_Fast_ST(cST_MVect<double>& A, int n, int p,
                                              cST_MVect<double>& rowWeights, cST_MVect<double>& colWeights,
                                              cST_MVect<double>& s, cST_MVect<double>& U,
                                              cST_MVect<double>& V, int job, int* info);

#endif
