#include "frames/containers/matrix3d.h"

#include "containers/matrix3d.h"

using namespace korvel;

double Cpp_Test(ST_MVect* record)
{
    return sumOfElements(matrix3DVect<matrix<double>>(record->Vectors));
}
