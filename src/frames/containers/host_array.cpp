#include "frames/containers/host_array.h"

OLECHAR** ExtractBSTR(SAFEARRAY** sa)
{
    return *sa != nullptr ? static_cast<OLECHAR**>((*sa)->pvData) : nullptr;
}
