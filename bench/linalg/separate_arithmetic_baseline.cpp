#define KORVEL_ARITHMETIC separateArithmeticOfBaseline
#include "linalg/arithmetic_peak.inc"
