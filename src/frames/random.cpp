#include "frames/random.h"

#include "random/random_source.h"
#include "random/random_table.h"

int Cpp_set_rand_algo(int algorithm)
{
    korvel::selectGenerator(korvel::processSource, algorithm);
    return 0;
}

double Cpp_Random01(int* seed, short int flag, int* nextSeed)
{
    return GenerateRandom01(seed, flag, nextSeed);
}

int VB_M_GenerateRandom01(double* out, int rows, int cols, int* seed, short int flag, int* nextSeed)
{
    korvel::generateRandom01(out, rows, cols, seed, flag, nextSeed);
    return 0;
}
