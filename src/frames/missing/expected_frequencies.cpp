#include "frames/missing/expected_frequencies.h"

#include "frames/frame.h"
#include "missing/expected_frequencies.h"

using namespace korvel;

int Cpp_ReplaceMissingInContengencyByExp_ST(ST_MVect* x, int rows)
{
    auto table = frame::record<double>(x);
    ReplaceMissingInContengencyByExp_ST(table, rows);
    return 0;
}
