#include "linalg/blas_without_fusing.h"

#include <cblas.h>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <string>

extern "C" void dgetrf_(const int* m, const int* n, double* a, const int* lda, int* pivots, int* info);
extern "C" void dgetri_(const int* n, double* a, const int* lda, const int* pivots, double* work,
                        const int* size, int* info);

namespace korvel::bench
{

namespace
{

/**
 * OpenBLAS chooses its kernels from the environment when it is loaded. A linker name space of its own loads
 * it a second time.
 */
void* loadAgain()
{
    const char* const before = std::getenv("OPENBLAS_CORETYPE");
    const std::string asked = before == nullptr ? "" : before;
    setenv("OPENBLAS_CORETYPE", "Sandybridge", 1);
    setenv("OPENBLAS_NUM_THREADS", "1", 1);
    void* const library = dlmopen(LM_ID_NEWLM, "libopenblas.so.0", RTLD_NOW);
    setenv("OPENBLAS_CORETYPE", asked.c_str(), 1);
    unsetenv("OPENBLAS_NUM_THREADS");
    return library;
}

} // namespace

void* routineWithoutFusing(const char* name)
{
    static void* const library = loadAgain();
    void* const routine = library == nullptr ? nullptr : dlsym(library, name);
    if (routine == nullptr) {
        std::fprintf(stderr, "OpenBLAS cannot be loaded again: %s\n", dlerror());
        std::exit(2);
    }
    return routine;
}

void dgemmWithoutFusing(const double* a, const double* b, double* c, int n)
{
    static const auto dgemm = withoutFusing(cblas_dgemm, "cblas_dgemm");
    dgemm(CblasColMajor, CblasNoTrans, CblasNoTrans, n, n, n, 1.0, a, n, b, n, 0.0, c, n);
}

lapack_inverse lapackInverse()
{
    return {dgetrf_, dgetri_};
}

lapack_inverse lapackInverseWithoutFusing()
{
    return {withoutFusing(dgetrf_, "dgetrf_"), withoutFusing(dgetri_, "dgetri_")};
}

} // namespace korvel::bench
