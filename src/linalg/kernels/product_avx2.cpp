// Compiled for AVX2. Nothing here may be an inline function that other sources have too: the linker keeps one
// of them, and it could be the one that only some processors run.
#define KORVEL_KERNEL_SET avx2
#define KORVEL_KERNEL_LANES 4
#include "linalg/kernels/product_kernel.inc"
