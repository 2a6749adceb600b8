// The column statistics for the baseline.
#define KORVEL_KERNEL_SET baseline
#include "statistics/kernels/columns_kernel.inc"
