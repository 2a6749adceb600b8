#include "linalg/blas_without_fusing.h"

#include <cblas.h>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <string>

namespace korvel::bench
{

namespace
{

/** OpenBLAS chooses its kernels from the environment when it is loaded; a name space of its own loads it
 * again. */
decltype(&cblas_dgemm) loadAgain()
{
    const char* const before = std::getenv("OPENBLAS_CORETYPE");
    const std::string asked = before == nullptr ? "" : before;
    setenv("OPENBLAS_CORETYPE", "Sandybridge", 1);
    setenv("OPENBLAS_NUM_THREADS", "1", 1);
    void* const library = dlmopen(LM_ID_NEWLM, "libopenblas.so.0", RTLD_NOW);
    setenv("OPENBLAS_CORETYPE", asked.c_str(), 1);
    unsetenv("OPENBLAS_NUM_THREADS");
    void* const dgemm = library == nullptr ? nullptr : dlsym(library, "cblas_dgemm");
    if (dgemm == nullptr) {
        std::fprintf(stderr, "OpenBLAS cannot be loaded again: %s\n", dlerror());
        std::exit(2);
    }
    return reinterpret_cast<decltype(&cblas_dgemm)>(dgemm);
}

} // namespace

void dgemmWithoutFusing(const double* a, const double* b, double* c, int n)
{
    static const auto dgemm = loadAgain();
    dgemm(CblasColMajor, CblasNoTrans, CblasNoTrans, n, n, n, 1.0, a, n, b, n, 0.0, c, n);
}

} // namespace korvel::bench
