#include "linalg/generalized_inverse.h"

#include "linalg/products.h"
#include "linalg/products_symmetric.h"
#include "linalg/singular_values.h"
#include "tables/duplicate.h"

#include <algorithm>

namespace
{

/** U·diag(s)·V' of a square table, or as far as it came. */
struct decomposition {
    matrix<double> s;
    matrix<double> U;
    matrix<double> V;
    bool converged = false;

    /** `A` is changed on the way and is as before afterwards. */
    decomposition(matrix<double>& A, int n) : s(n, 1, 0.0), U(n, n, 0.0), V(n, n, 0.0)
    {
        int info = 0;
        M_SVDecomp(&A, n, n, &s, &U, &V, 21, &info);
        converged = info >= 0;
    }

    /** Turns the values into the reciprocals of those that are kept, and counts these. */
    int invertValues(double tolerance)
    {
        const int n = s.nbrows;
        int rank = n;
        for (int i = 0; i < n; ++i) {
            if (s[i] >= tolerance) {
                s[i] = 1.0 / s[i];
            } else if (converged) {
                std::fill(s.data + i, s.data + n, 0.0);
                return i;
            } else {
                s[i] = 0.0;
                --rank;
            }
        }
        return rank;
    }

    [[nodiscard]] int status() const { return converged ? 0 : -1; }
};

} // namespace

int M_InvGeneralized(const matrix<double>& A, int n, matrix<double>& G, double tolerance, int& rank)
{
    rank = 0;
    if (n < 1) {
        return 0;
    }
    matrix<double> copy(A);
    decomposition parts(copy, n);
    rank = parts.invertValues(tolerance);
    M_ProductADiagVTrB(&parts.V, n, n, &parts.s, &parts.U, n, &G);
    return parts.status();
}

int M_InvGeneralized(matrix<double>* A, int n, matrix<double>* G, double tolerance, int& rank)
{
    return M_InvGeneralized(*A, n, *G, tolerance, rank);
}

int M_InvGeneralized(matrixSparse* A, int n, matrixSparse* G, double tolerance, int& rank)
{
    const int order = std::max(n, 0);
    const matrix<double> table = A->to_matrix(order, order);
    matrix<double> inverse(order, order, 0.0);
    const int status = M_InvGeneralized(table, n, inverse, tolerance, rank);
    G->outputSparse(&inverse);
    return status;
}

int M_InvGeneralizedSPV(matrix<double>** A, int n, matrix<double>* G, double tolerance, int& rank)
{
    matrix<double> table(std::max(n, 0), n, 0.0);
    M_DuplicateSPV(A, n, n, &table, n, n, 1, 1);
    return M_InvGeneralized(table, n, *G, tolerance, rank);
}

int M_InvGeneralizedSym(matrix<double>* A, int n, matrix<double>* G, double tolerance, int& rank)
{
    rank = 0;
    if (n < 1) {
        return 0;
    }
    decomposition parts(*A, n);
    rank = parts.invertValues(tolerance);
    M_ProductADiagVTrA(&parts.U, n, n, &parts.s, G);
    return parts.status();
}

int M_Rank(matrix<double>* A, int n, int p)
{
    if (n < 1 || p < 1) {
        return 0;
    }
    matrix<double> s(n < p ? n + 1 : p, 1, 0.0);
    matrix<double> U(n, 1, 0.0);
    matrix<double> V(p, 1, 0.0);
    int info = 0;
    M_SVDecomp(A, n, p, &s, &U, &V, 0, &info);
    if (info < 0) {
        return -1;
    }
    int rank = 0;
    while (rank < p && !(s[rank] <= 1e-12)) {
        ++rank;
    }
    return rank;
}
