#include "frames/qualitative/category_info.h"

#include "frames/frame.h"
#include "qualitative/caller_categories.h"

using namespace korvel;

int VB_M_InfoQuali(OLECHAR* const* data, int n, int p, OLECHAR** modes, double* modeFrequencies,
                   int* categoryCounts, OLECHAR** categories, double* frequencies, const double* weights,
                   int* total, short int sort)
{
    const auto cells = frame::insteadOfTexts(data, n, p);
    auto modeTexts = frame::filling(modes, p);
    auto modeNumbers = frame::filling(modeFrequencies, p);
    auto counts = frame::filling(categoryCounts, p);
    auto names = frame::filling(categories, p, n);
    auto sums = frame::filling(frequencies, p, n);
    const auto rowWeights = frame::borrow(weights, n);
    infoQuali2(cells, n, p, n, counts, modeTexts, modeNumbers, names, sums, rowWeights, total, sort);
    frame::bringBack(modeTexts, modes);
    frame::bringBack(names, categories);
    return 0;
}

int Cpp_M_InfoQualiNoMiss(OLECHAR* const* data, int n, int p, OLECHAR** modes, double* modeFrequencies,
                          int* categoryCounts, OLECHAR** categories, double* frequencies,
                          const double* weights, int* total, short int sort)
{
    return VB_M_InfoQuali(data, n, p, modes, modeFrequencies, categoryCounts, categories, frequencies,
                          weights, total, sort);
}

int VB_M_InfoQuali2(OLECHAR* const* data, int n, int p, int width, int* categoryCounts, OLECHAR** modes,
                    double* modeFrequencies, OLECHAR** categories, double* frequencies, const double* weights,
                    int* total, short int sort)
{
    const auto cells = frame::insteadOfTexts(data, n, p);
    auto counts = frame::filling(categoryCounts, p);
    auto modeTexts = frame::filling(modes, p);
    auto modeNumbers = frame::filling(modeFrequencies, p);
    auto names = frame::filling(categories, p, width);
    auto sums = frame::filling(frequencies, p, width);
    const auto rowWeights = frame::borrow(weights, n);
    infoQuali2(cells, n, p, width, counts, modeTexts, modeNumbers, names, sums, rowWeights, total, sort);
    frame::bringBack(modeTexts, modes);
    frame::bringBack(names, categories);
    return 0;
}

int Cpp_M_InfoQuali3(OLECHAR* const* data, int n, int p, int width, int count, OLECHAR** modes,
                     double* modeFrequencies, OLECHAR** categories, double* frequencies,
                     double* weightedFrequencies, const double* weights, int* total, short int sort)
{
    const auto cells = frame::insteadOfTexts(data, n, p);
    auto modeTexts = frame::filling(modes, p);
    auto modeNumbers = frame::filling(modeFrequencies, p);
    auto names = frame::filling(categories, p, width);
    auto rows = frame::filling(frequencies, p, width);
    auto sums = frame::filling(weightedFrequencies, p, width);
    infoQuali3(cells, n, p, width, count, modeTexts, modeNumbers, names, rows, sums,
               frame::borrow(weights, n), total, sort);
    frame::bringBack(modeTexts, modes);
    frame::bringBack(names, categories);
    return 0;
}
