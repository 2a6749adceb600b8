#include "frames/random/random_table.h"

#include "random/random_table.h"

int VB_M_GenerateRandom01(double* out, int rows, int cols, int* seed, short int flag, int* nextSeed)
{
    korvel::generateRandom01(out, rows, cols, seed, flag, nextSeed);
    return 0;
}
