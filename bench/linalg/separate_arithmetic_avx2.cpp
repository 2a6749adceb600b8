#define KORVEL_ARITHMETIC separateArithmeticOfAvx2
#include "linalg/arithmetic_peak.inc"
