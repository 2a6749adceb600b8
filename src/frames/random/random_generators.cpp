#include "frames/random/random_generators.h"

#include "random/random_generators.h"

double Cpp_Random01(int* seed, short int flag, int* nextSeed)
{
    return GenerateRandom01(seed, flag, nextSeed);
}
