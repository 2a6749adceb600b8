#include "frames/fitting/tolerance_screening.h"

#include "fitting/tolerance_screening.h"
#include "frames/frame.h"

using namespace korvel;

int VB_CheckTolerance(const double* r, int p, int groupCount, const double* groupSelection,
                      const double* groupNumbers, double tolerance, short int duplicates, short int entered,
                      short int reverse, short int skipGroup, double* status, double* tolerances,
                      double* inflationFactors)
{
    auto marks = frame::changing(status, p);
    auto shares = frame::changing(tolerances, p);
    auto factors = frame::changing(inflationFactors, p);
    auto correlations = frame::copyIn(r, p, p);
    auto selected = frame::copyIn(groupSelection, groupCount);
    auto groups = frame::copyIn(groupNumbers, p);
    CheckTolerance(&correlations, p, groupCount, &selected, &groups, tolerance, duplicates, entered, reverse,
                   skipGroup, &marks, &shares, &factors);
    return 0;
}
