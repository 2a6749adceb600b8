// Compiled for AVX-512; the warning at the head of columns_avx2.cpp holds here too.
#define KORVEL_KERNEL_SET avx512
#include "statistics/kernels/columns_kernel.inc"
