#include "frames/qualitative/category_validation.h"

#include "frames/frame.h"
#include "qualitative/category_validation.h"

using namespace korvel;

int VB_M_InfoQualiValid(OLECHAR* const* data, int n, int p, int width, const int* categoryCounts,
                        OLECHAR* const* categories, double* counts, short int* newCategoryFound,
                        const double* weights)
{
    auto cells = frame::readTexts(data, n, p);
    auto known = frame::borrow(categoryCounts, p);
    auto names = frame::readTexts(categories, p, width);
    auto sums = frame::filling(counts, p, width);
    auto rowWeights = frame::borrow(weights, n);
    M_InfoQualiValid(&cells, n, p, width, &known, &names, &sums, newCategoryFound, &rowWeights);
    return 0;
}

int Cpp_M_InfoQualiValid_ST(ST_MVect* data, int n, int p, ST_QualiInfo* reference, ST_QualiInfo* result,
                            short int* newCategoryFound, const double* weights)
{
    auto cells = frame::record<text>(data);
    auto known = frame::record(reference);
    auto counted = frame::record(result);
    auto rowWeights = frame::borrow(weights, n);
    M_InfoQualiValid_ST(cells, n, p, known, counted, newCategoryFound, rowWeights);
    return 0;
}
