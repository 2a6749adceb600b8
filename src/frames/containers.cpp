#include "frames/containers.h"

#include "containers/bstr.h"
#include "containers/matrix3d.h"
#include "containers/missing.h"

#include <array>
#include <cstdio>

using namespace korvel;

namespace
{

/** Whether a cell that holds no text renders as nothing. */
bool rendersEmpty(VARTYPE type)
{
    return type == VT_EMPTY || type == VT_NULL;
}

} // namespace

short int VB_IsMissingValueDbl(double x)
{
    return isMissingOrdered(x) ? -1 : 0;
}

short int VB_IsMissingValueStr(VARIANT* cell)
{
    switch (cell->vt) {
    case VT_BSTR:
        return IsMissingValue(readBstr(cell->bstrVal));
    case VT_BSTR | VT_BYREF:
        return IsMissingValue(readBstr(*cell->pbstrVal));
    case VT_VARIANT | VT_BYREF:
        return VB_IsMissingValueStr(cell->pvarVal);
    default:
        return rendersEmpty(cell->vt) ? -1 : 0;
    }
}

OLECHAR** ExtractBSTR(SAFEARRAY** sa)
{
    return *sa != nullptr ? static_cast<OLECHAR**>((*sa)->pvData) : nullptr;
}

double Cpp_Test(ST_MVect* record)
{
    return sumOfElements(matrix3DVect<matrix<double>>(record->Vectors));
}

void dprint(double value, const char* label)
{
    std::array<char, 1000> line{};
    std::snprintf(line.data(), line.size(), "%s %36.16f\n", label, value);
    OutputDebugStringA(line.data());
}
