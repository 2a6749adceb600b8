#include "linalg/product_forms.h"

#include "linalg/team.h"

namespace korvel
{

void multiply(const kernels::product& form)
{
    const kernels::product_kernel& kernel = kernels::productKernel();
    const scratch_space space(kernel.scratchSize(form), 1);
    double atHand[scratch_space::smallSize];
    kernel.multiply(form, space.of(0, atHand));
}

void multiplyInTeam(const kernels::product& form, shared_out by)
{
    const kernels::product_kernel& kernel = kernels::productKernel();
    const scratch_space space(kernel.scratchSize(form), mostThreads());
    inTeam(by == shared_out::rows ? form.rows : form.cols, [&](int thread, stretch share) {
        double atHand[scratch_space::smallSize];
        kernels::product piece = form;
        if (by == shared_out::rows) {
            piece.rows = share.count;
            piece.rowsBefore = form.rowsBefore + share.first;
            piece.left = form.left.after(share.first);
            piece.result = form.result.afterRows(share.first);
        } else {
            piece.cols = share.count;
            piece.right = form.right.after(share.first);
            piece.result = form.result.afterColumns(share.first);
        }
        kernel.multiply(piece, space.of(thread, atHand));
    });
}

void mirror(const kernels::columns_of<double>& table, std::ptrdiff_t first, std::ptrdiff_t count,
            kernels::part summedHalf)
{
    // In squares that stay in the first cache, since one side is walked across its columns.
    constexpr std::ptrdiff_t square = 32;
    const std::ptrdiff_t end = first + count;
    const bool upper = summedHalf == kernels::part::upper;
    for (std::ptrdiff_t top = first; top < end; top += square) {
        const std::ptrdiff_t bottom = std::min(top + square, end);
        for (std::ptrdiff_t from = upper ? top : 0; from < (upper ? end : bottom); from += square) {
            for (std::ptrdiff_t i = top; i < bottom; ++i) {
                const std::ptrdiff_t begin = upper ? std::max(from, i + 1) : from;
                const std::ptrdiff_t past = std::min(from + square, upper ? end : i);
                for (std::ptrdiff_t j = begin; j < past; ++j) {
                    table(i)[j] = table(j)[i];
                }
            }
        }
    }
}

void formSymmetricProduct(const product_side<const matrix<double>>& side, int depth, matrix<double>& result,
                          term_factors factors)
{
    const int order = side.outer();
    if (order < 1) {
        return;
    }
    depth = std::max(depth, 0);
    if (side.inside(depth) && factors.inside(depth) && order <= result.nbrows && order <= result.nbcols) {
        kernels::product form{order, order, depth};
        form.left = {side.places(depth).get(), side.down()};
        form.right = form.left;
        form.factors = factors.first();
        form.factorStep = factors.step();
        form.result = {result.data, result.nbrows};
        form.kept = kernels::part::upper;
        multiply(form);
        mirror(form.result, 0, order, kernels::part::upper);
        result.oobValue = result.getElement(order - 1, order - 1);
        return;
    }
    for (int i = 0; i < order; ++i) {
        for (int j = i; j < order; ++j) {
            const double sum = checkedSum(side, i, side, j, depth, factors);
            result.setElement(i, j, sum);
            result.setElement(j, i, sum);
        }
    }
}

} // namespace korvel
