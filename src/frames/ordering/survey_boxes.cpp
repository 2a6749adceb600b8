#include "frames/ordering/survey_boxes.h"

#include "frames/frame.h"
#include "ordering/survey_boxes.h"

using namespace korvel;

int Cpp_V_TopBottom3Box(const double* x, int n, const double* w, double* top1, double* bottom1, double* top2,
                        double* bottom2, double* top3, double* bottom3)
{
    auto scores = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    V_TopBottom3Box(&scores, n, &weights, top1, bottom1, top2, bottom2, top3, bottom3);
    return 0;
}

int Cpp_V_TopBottom3BoxConditional(const double* x, int n, double* w, const double* group, double groupValue,
                                   double* top1, double* bottom1, double* top2, double* bottom2, double* top3,
                                   double* bottom3)
{
    auto scores = frame::borrow(x, n);
    auto weights = frame::borrow(w, n);
    auto groups = frame::borrow(group, n);
    V_TopBottom3BoxConditional(&scores, n, &weights, &groups, groupValue, top1, bottom1, top2, bottom2, top3,
                               bottom3);
    return 0;
}
