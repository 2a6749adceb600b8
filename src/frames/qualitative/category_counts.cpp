#include "frames/qualitative/category_counts.h"

#include "frames/frame.h"
#include "qualitative/caller_categories.h"
#include "qualitative/category_counts.h"

using namespace korvel;

int Cpp_GetMaxCat(OLECHAR* const* data, int n, int p, int* categoryCounts)
{
    const auto cells = frame::insteadOfTexts(data, n, p);
    auto counts = frame::filling(categoryCounts, p);
    return largestCategoryCount(cells, n, p, counts);
}

int Cpp_CheckUniqueCatByVar(OLECHAR* const* categories, int p, int width, const int* categoryCounts)
{
    const auto names = frame::readTexts(categories, p, width);
    const auto counts = frame::borrow(categoryCounts, p);
    return CheckUniqueCatByVar(names, p, width, counts);
}
