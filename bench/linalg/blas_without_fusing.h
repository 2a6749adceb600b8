/**
 * @file
 * The peer OpenBLAS a second time in the same program, restricted to instructions that do not fuse
 * multiplication and addition: the arithmetic of this library.
 */
#ifndef KORVEL_BENCH_BLAS_WITHOUT_FUSING_H
#define KORVEL_BENCH_BLAS_WITHOUT_FUSING_H

namespace korvel::bench
{

/** A routine of that second OpenBLAS, of BLAS or LAPACK, by its name as a symbol. */
[[nodiscard]] void* routineWithoutFusing(const char* name);

/** The same, with the type of the routine that is passed. */
template <class Routine>
Routine* withoutFusing(Routine*, const char* name)
{
    return reinterpret_cast<Routine*>(routineWithoutFusing(name));
}

/** c = a * b, all of them n by n, column after column, on one thread. */
void dgemmWithoutFusing(const double* a, const double* b, double* c, int n);

/** LAPACK's inverse in place: dgetrf and dgetri, on one thread. */
struct lapack_inverse {
    void (*dgetrf)(const int* m, const int* n, double* a, const int* lda, int* pivots, int* info);
    void (*dgetri)(const int* n, double* a, const int* lda, const int* pivots, double* work, const int* size,
                   int* info);
};

/** The routines of OpenBLAS as it is, and held to separate multiplications and additions. */
[[nodiscard]] lapack_inverse lapackInverse();
[[nodiscard]] lapack_inverse lapackInverseWithoutFusing();

} // namespace korvel::bench

#endif
