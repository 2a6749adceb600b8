#include "linalg/row_by_row.h"

#include "linalg/team.h"

namespace korvel
{

namespace
{

/** Rows of the first product that are in scratch at once: enough to pay for laying out the operands anew. */
constexpr std::ptrdiff_t rowsAtOnce = 64;

/** What some rows of the result take: the rows of the first product in scratch, and then those of the second.
 */
struct piece {
    kernels::product first;
    kernels::product second;
};

piece pieceOf(const row_by_row& form, stretch rows, double* scratch)
{
    const std::ptrdiff_t stride = std::min(form.rows, rowsAtOnce);
    kernels::product first{rows.count, form.middle, form.depth};
    first.left = form.first.after(rows.first);
    first.right = form.second;
    first.result = {scratch, stride};
    kernels::product second{rows.count, form.cols, form.middle};
    second.left = {{scratch, stride}, false};
    second.right = form.third;
    second.result = form.result.afterRows(rows.first);
    if (form.summedPart == extent::mirrored) {
        second.kept = kernels::part::lower;
        second.rowsBefore = rows.first;
    }
    return {first, second};
}

} // namespace

void multiplyRowByRow(const row_by_row& form, workers who)
{
    const kernels::product_kernel& kernel = kernels::productKernel();
    const std::ptrdiff_t stride = std::min(form.rows, rowsAtOnce);
    const auto rowSpace = static_cast<std::size_t>(stride * form.middle);
    const piece largest = pieceOf(form, {0, stride}, nullptr);
    const std::size_t size =
        rowSpace + std::max(kernel.scratchSize(largest.first), kernel.scratchSize(largest.second));
    const scratch_space space(size, who == workers::team ? mostThreads() : 1);
    const auto work = [&](int thread, stretch share) {
        double atHand[scratch_space::smallSize];
        double* const scratch = space.of(thread, atHand);
        for (std::ptrdiff_t done = 0; done < share.count; done += rowsAtOnce) {
            const stretch rows{share.first + done, std::min(rowsAtOnce, share.count - done)};
            const piece now = pieceOf(form, rows, scratch);
            kernel.multiply(now.first, scratch + rowSpace);
            kernel.multiply(now.second, scratch + rowSpace);
            if (form.summedPart == extent::mirrored) {
                mirror(form.result, rows.first, rows.count, kernels::part::lower);
            }
        }
    };
    if (who == workers::team) {
        inTeam(form.rows, work);
    } else {
        work(0, {0, form.rows});
    }
}

} // namespace korvel
