// Runs the benchmarks of linear algebra beside the best kernels that OpenBLAS has for this processor. A
// packaged OpenBLAS does not know newer processors and then runs its slowest kernels, so the environment
// names a family with the same instructions. OpenBLAS reads the environment before any of our code runs, so
// the program sets it and restarts itself.

#include <benchmark/benchmark.h>
#include <cblas.h>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace
{

constexpr const char* coreType = "OPENBLAS_CORETYPE";

/** The latest family that OpenBLAS has kernels for and whose instructions this processor has, or null. */
const char* bestFamily()
{
    __builtin_cpu_init();
    if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
        __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl")) {
        return "SkylakeX";
    }
    if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma")) {
        return "Haswell";
    }
    return __builtin_cpu_supports("avx") ? "Sandybridge" : nullptr;
}

/** Starts the program anew with OpenBLAS told the family, unless someone told it one already. */
void askForTheBest(char** arguments)
{
    const char* const family = bestFamily();
    if (std::getenv(coreType) == nullptr && family != nullptr) {
        setenv(coreType, family, 1);
        execv("/proc/self/exe", arguments);
        std::perror("/proc/self/exe");
        std::exit(2);
    }
}

} // namespace

int main(int count, char** arguments)
{
    askForTheBest(arguments);
    benchmark::AddCustomContext("OpenBLAS runs the kernels of", openblas_get_corename());
    benchmark::AddCustomContext("OpenBLAS", openblas_get_config());
    benchmark::Initialize(&count, arguments);
    if (benchmark::ReportUnrecognizedArguments(count, arguments)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
