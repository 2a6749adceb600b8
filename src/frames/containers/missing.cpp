#include "frames/containers/missing.h"

#include "containers/bstr.h"
#include "containers/missing.h"

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

short int VB_IsMissingValueStr(const VARIANT* cell)
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
