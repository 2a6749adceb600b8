#include "frames/random/random_source.h"

#include "random/random_source.h"

int Cpp_set_rand_algo(int algorithm)
{
    korvel::selectGenerator(korvel::processSource, algorithm);
    return 0;
}
