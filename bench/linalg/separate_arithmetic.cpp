#define KORVEL_ARITHMETIC separateArithmetic
#include "linalg/arithmetic_peak.inc"
