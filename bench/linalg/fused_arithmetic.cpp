#define KORVEL_ARITHMETIC fusedArithmetic
#include "linalg/arithmetic_peak.inc"
