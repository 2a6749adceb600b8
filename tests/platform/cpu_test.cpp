// Compares the instruction sets found with those that the system reports. Kernel tests run only for sets that
// are found, so an overlooked one would go untested.

#include "platform/cpu.h"

#include "linalg/kernels/product.h"

#include <gtest/gtest.h>
#include <utility>
#ifdef _WIN32
#include <cpuid.h>
#elif defined(__x86_64__)
#include <fstream>
#include <sstream>
#include <string>
#endif

namespace
{

struct told_sets {
    bool avx2 = false;
    bool avx512 = false;
};

#ifdef _WIN32

/** From the processor itself, and from the register that tells which registers the system saves. */
told_sets toldSets()
{
    constexpr unsigned keepsRegisters = 1U << 27;
    constexpr unsigned avxState = 0x06;
    constexpr unsigned avx512State = 0xe6;
    unsigned a = 0;
    unsigned b = 0;
    unsigned c = 0;
    unsigned d = 0;
    if (__get_cpuid(1, &a, &b, &c, &d) == 0 || (c & keepsRegisters) == 0) {
        return {};
    }
    unsigned kept = 0;
    unsigned high = 0;
    __asm__("xgetbv" : "=a"(kept), "=d"(high) : "c"(0));
    if (__get_cpuid_count(7, 0, &a, &b, &c, &d) == 0) {
        return {};
    }
    return {(b & (1U << 5)) != 0 && (kept & avxState) == avxState,
            (b & (1U << 16)) != 0 && (kept & avx512State) == avx512State};
}

#elif !defined(__x86_64__)

/** A processor of another family has none of them. An emulator may list those of its host. */
told_sets toldSets()
{
    return {};
}

#else

/** From the flags that the kernel lists. */
told_sets toldSets()
{
    std::ifstream info("/proc/cpuinfo");
    EXPECT_TRUE(info.is_open());
    told_sets told;
    for (std::string line; std::getline(info, line);) {
        if (line.starts_with("flags")) {
            std::istringstream flags(line);
            for (std::string flag; flags >> flag;) {
                told.avx2 = told.avx2 || flag == "avx2";
                told.avx512 = told.avx512 || flag == "avx512f";
            }
            break;
        }
    }
    return told;
}

#endif

TEST(Cpu, HasWhatTheSystemTells)
{
    const told_sets told = toldSets();
    EXPECT_EQ(korvel::platform::hasAvx2(), told.avx2);
    EXPECT_EQ(korvel::platform::hasAvx512(), told.avx512);
}

TEST(Cpu, ChoosesTheKernelOfItsBestSet)
{
    using namespace korvel::kernels;
    const told_sets told = toldSets();
    EXPECT_TRUE(hasSet(instruction_set::baseline));
    EXPECT_EQ(hasSet(instruction_set::avx2), told.avx2);
    EXPECT_EQ(hasSet(instruction_set::avx512), told.avx512);
    const product_kernel* const best = told.avx512 ? &avx512::productKernel
                                       : told.avx2 ? &avx2::productKernel
                                                   : &baseline::productKernel;
    EXPECT_EQ(&productKernel(), best);
    for (const auto& [set, kernel] : {std::pair{instruction_set::baseline, &baseline::productKernel},
                                      std::pair{instruction_set::avx2, &avx2::productKernel},
                                      std::pair{instruction_set::avx512, &avx512::productKernel}}) {
        if (hasSet(set)) {
            const forced_set forced(set);
            EXPECT_EQ(&productKernel(), kernel);
        }
    }
    EXPECT_EQ(&productKernel(), best);
}

} // namespace
