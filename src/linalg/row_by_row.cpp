#include "linalg/row_by_row.h"

#include "linalg/team.h"

namespace korvel
{

namespace
{

// The block of the first product that is in scratch at once, whatever the tables: large enough to pay for
// laying the operands out anew, and small enough for the second cache.
constexpr std::ptrdiff_t blockRows = 72;
constexpr std::ptrdiff_t blockColumns = 448;

/** A block of the first product, and what it adds to the result. */
struct step {
    kernels::product first;
    kernels::product second;
};

step stepOf(const row_by_row& form, stretch rows, stretch middle, double* scratch)
{
    const kernels::columns_of<double> block{scratch, rows.count};
    kernels::product first{rows.count, middle.count, form.depth};
    first.left = form.first.after(rows.first);
    first.right = form.second.after(middle.first);
    first.result = block;
    kernels::product second{rows.count, form.cols, middle.count};
    second.left = {{block.first, block.stride}, false};
    second.right = form.third.afterTerms(middle.first);
    second.result = form.result.afterRows(rows.first);
    second.onto = middle.first > 0;
    if (form.summedPart == extent::mirrored) {
        second.kept = kernels::part::lower;
        second.rowsBefore = rows.first;
    }
    return {first, second};
}

/** Some rows of the result. */
void formRows(const row_by_row& form, stretch rows, double* scratch, double* kernelScratch)
{
    const kernels::product_kernel& kernel = kernels::productKernel();
    // Pieces of about equal length, and one without terms when there is nothing to sum.
    const auto pieces =
        static_cast<int>(std::max<std::ptrdiff_t>((form.middle + blockColumns - 1) / blockColumns, 1));
    for (int piece = 0; piece < pieces; ++piece) {
        const step now = stepOf(form, rows, shareOf(form.middle, piece, pieces), scratch);
        kernel.multiply(now.first, kernelScratch);
        kernel.multiply(now.second, kernelScratch);
    }
    if (form.summedPart == extent::mirrored) {
        mirror(form.result, rows.first, rows.count, kernels::part::lower);
    }
}

} // namespace

void multiplyRowByRow(const row_by_row& form, workers who)
{
    const kernels::product_kernel& kernel = kernels::productKernel();
    const stretch mostRows{0, std::min(form.rows, blockRows)};
    const stretch mostColumns{0, std::min(form.middle, blockColumns)};
    const auto blockSize = static_cast<std::size_t>(mostRows.count * mostColumns.count);
    const step largest = stepOf(form, mostRows, mostColumns, nullptr);
    const std::size_t size =
        blockSize + std::max(kernel.scratchSize(largest.first), kernel.scratchSize(largest.second));
    const scratch_space space(size, who == workers::team ? mostThreads() : 1);
    const auto work = [&](int thread, stretch share) {
        double atHand[scratch_space::smallSize];
        double* const scratch = space.of(thread, atHand);
        for (std::ptrdiff_t done = 0; done < share.count; done += blockRows) {
            const stretch rows{share.first + done, std::min(blockRows, share.count - done)};
            formRows(form, rows, scratch, scratch + blockSize);
        }
    };
    if (who == workers::team) {
        inTeam(form.rows, work);
    } else {
        work(0, {0, form.rows});
    }
}

} // namespace korvel
