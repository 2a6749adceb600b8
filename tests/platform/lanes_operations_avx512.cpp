#if defined(__x86_64__)
#define KORVEL_TEST_SET avx512
#include "platform/lanes_operations.inc"
#endif
