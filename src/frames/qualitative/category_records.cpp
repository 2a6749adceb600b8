#include "frames/qualitative/category_records.h"

#include "frames/frame.h"
#include "qualitative/category_records.h"

using namespace korvel;

int Cpp_M_InfoQuali3_ST(ST_MVect* data, const double* weights, ST_QualiInfo* info)
{
    auto cells = frame::record<text>(data);
    const auto rowWeights = frame::borrow(weights, cells.nbrowsmax);
    auto statistics = frame::record(info);
    M_InfoQuali_ST(cells, rowWeights, statistics);
    return 0;
}
