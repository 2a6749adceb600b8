// The product kernel by itself, of each instruction set, beside one plain loop: random counts around each
// tile, panel and threshold, both ways to sum each operand, columns in one block and in a list, factors,
// halves, sums that go on.

#include "linalg/kernels/product.h"
#include "support/bits.h"
#include "support/random_cells.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace korvel::test
{

namespace
{

using kernels::instruction_set;
using kernels::part;
using index = std::ptrdiff_t;

/** A table of random cells in the middle of a block, its columns some cells apart, with a list of them. */
class table
{
public:
    table(index rows, index cols, index apart, random_cells& cells)
        : stride_(rows + apart), cells_(static_cast<std::size_t>(1 + stride_ * cols + 1))
    {
        std::generate(cells_.begin(), cells_.end(), [&] { return cells.value(); });
        for (index j = 0; j < cols; ++j) {
            list_.push_back(cells_.data() + 1 + j * stride_);
        }
    }

    template <class T>
    [[nodiscard]] kernels::columns_of<T> columns(bool inList) const
    {
        auto* const first = const_cast<double*>(cells_.data()) + 1;
        return inList ? kernels::columns_of<T>{nullptr, 0, pointers<T>()}
                      : kernels::columns_of<T>{first, stride_};
    }

    table(const table&) = delete;
    table& operator=(const table&) = delete;

    /** Where element (i, j) is among the cells. */
    [[nodiscard]] std::size_t place(index i, index j) const
    {
        return static_cast<std::size_t>(1 + i + j * stride_);
    }
    [[nodiscard]] double at(index i, index j) const { return cells_[place(i, j)]; }
    [[nodiscard]] const std::vector<double>& cells() const { return cells_; }

private:
    template <class T>
    [[nodiscard]] T* const* pointers() const
    {
        return const_cast<T* const*>(list_.data());
    }

    index stride_;
    std::vector<double> cells_;
    std::vector<double*> list_;
};

bool oneIn(std::mt19937_64& random, std::uint64_t count)
{
    return random() % count == 0;
}

/** Counts that lie around the edges of registers, tiles, panels and thresholds more often than elsewhere. */
index someCount(std::mt19937_64& random)
{
    constexpr index edges[] = {0, 1, 2, 4, 5, 8, 10, 16, 20, 32, 64, 128, 130, 256};
    if (oneIn(random, 3)) {
        return std::max<index>(0, edges[random() % std::size(edges)] + static_cast<index>(random() % 3) - 1);
    }
    return static_cast<index>(random() % 70);
}

/** Cells among which nothing is odd in half of the rounds: an infinity or a NaN would hide what comes after
 * it. */
random_cells someCells(std::mt19937_64& random)
{
    constexpr odd_cells kinds[] = {odd_cells::none, odd_cells::none, odd_cells::missing_and_zeros,
                                   odd_cells::all};
    return random_cells(random(), kinds[random() % std::size(kinds)]);
}

/** A table that holds an operand of `outer` by `depth`. */
table operandTable(index outer, index depth, bool down, std::mt19937_64& random, random_cells& cells)
{
    return {down ? depth : outer, down ? outer : depth, static_cast<index>(random() % 3), cells};
}

double elementOf(const table& from, index o, index k, bool down)
{
    return down ? from.at(k, o) : from.at(o, k);
}

bool keeps(const kernels::product& form, index i, index j)
{
    const index row = form.rowsBefore + i;
    return form.kept == part::whole || (form.kept == part::upper ? j >= row : j <= row);
}

class ProductKernel : public ::testing::TestWithParam<instruction_set>
{
protected:
    void SetUp() override
    {
        if (!kernels::hasSet(GetParam())) {
            GTEST_SKIP() << "this processor lacks the instructions";
        }
    }

    /** Forms the product and compares every cell of the result, and all around it, with the plain loop. */
    void expectThePlainLoop(kernels::product form, const table& left, const table& right, const table& result)
    {
        std::vector<double> expected = result.cells();
        for (index i = 0; i < form.rows; ++i) {
            for (index j = 0; j < form.cols; ++j) {
                double sum = form.onto ? result.at(i, j) : 0.0;
                for (index k = 0; k < form.depth; ++k) {
                    double a = elementOf(left, i, k, form.left.sumsDownColumns);
                    if (form.factors != nullptr) {
                        a *= form.factors[k * form.factorStep];
                    }
                    sum += a * elementOf(right, j, k, form.right.sumsDownColumns);
                }
                if (keeps(form, i, j)) {
                    expected[result.place(i, j)] = sum;
                }
            }
        }
        const kernels::forced_set forced(GetParam());
        const std::size_t size = kernels::productKernel().scratchSize(form);
        // One double past an even place, so that no alignment is taken for granted.
        std::vector<double> scratch(size + 2, 1234.5);
        kernels::productKernel().multiply(form, scratch.data() + 1);
        EXPECT_EQ(scratch.front(), 1234.5);
        EXPECT_EQ(scratch.back(), 1234.5);
        for (std::size_t k = 0; k < expected.size(); ++k) {
            ASSERT_TRUE(sameBits(result.cells()[k], expected[k]))
                << "cell " << k << ", " << form.rows << " x " << form.cols << " x " << form.depth;
        }
    }
};

TEST_P(ProductKernel, HasTheBitsOfThePlainLoop)
{
    std::mt19937_64 random(20);
    for (int round = 0; round < 400; ++round) {
        random_cells cells = someCells(random);
        kernels::product form{someCount(random), someCount(random), someCount(random)};
        const bool leftDown = oneIn(random, 2);
        const bool rightDown = oneIn(random, 2);
        const table left = operandTable(form.rows, form.depth, leftDown, random, cells);
        const table right = operandTable(form.cols, form.depth, rightDown, random, cells);
        table result(form.rows, form.cols, static_cast<index>(random() % 3), cells);
        std::vector<double> factors(static_cast<std::size_t>(2 * form.depth + 1));
        std::generate(factors.begin(), factors.end(), [&] { return cells.value(); });
        form.left = {left.columns<const double>(oneIn(random, 3)), leftDown};
        form.right = {right.columns<const double>(oneIn(random, 3)), rightDown};
        form.result = result.columns<double>(oneIn(random, 3));
        form.factors = oneIn(random, 4) ? factors.data() : nullptr;
        form.factorStep = 1 + static_cast<index>(random() % 2);
        form.kept = static_cast<part>(random() % 3);
        form.rowsBefore = static_cast<index>(random() % 40);
        form.onto = oneIn(random, 3);
        ASSERT_NO_FATAL_FAILURE(expectThePlainLoop(form, left, right, result));
    }
}

TEST_P(ProductKernel, OfATableByItselfHasTheBitsOfThePlainLoop)
{
    std::mt19937_64 random(22);
    for (int round = 0; round < 200; ++round) {
        random_cells cells = someCells(random);
        const index order = someCount(random);
        kernels::product form{order, order, someCount(random)};
        const bool down = oneIn(random, 2);
        const table both = operandTable(order, form.depth, down, random, cells);
        table result(order, order, static_cast<index>(random() % 3), cells);
        form.left = {both.columns<const double>(oneIn(random, 3)), down};
        form.right = form.left;
        form.result = result.columns<double>(oneIn(random, 3));
        form.kept = static_cast<part>(random() % 3);
        form.rowsBefore = oneIn(random, 4) ? static_cast<index>(random() % 40) : 0;
        form.onto = oneIn(random, 3);
        ASSERT_NO_FATAL_FAILURE(expectThePlainLoop(form, both, both, result));
    }
}

TEST_P(ProductKernel, ScratchOfAProductServesAnyStretchOfIt)
{
    const kernels::forced_set forced(GetParam());
    std::mt19937_64 random(24);
    random_cells cells(25, odd_cells::none);
    const table any(1, 1, 0, cells);
    const auto scratchSize = kernels::productKernel().scratchSize;
    for (int round = 0; round < 2000; ++round) {
        const index order = someCount(random);
        kernels::product whole{order, oneIn(random, 2) ? order : someCount(random), someCount(random)};
        whole.left = {any.columns<const double>(oneIn(random, 4)), oneIn(random, 2)};
        whole.right = oneIn(random, 2) ? whole.left
                                       : kernels::operand{any.columns<const double>(false), oneIn(random, 2)};
        kernels::product piece = whole;
        const bool byRows = oneIn(random, 2);
        index& count = byRows ? piece.rows : piece.cols;
        count -= std::min<index>(std::max<index>(count - 1, 0), static_cast<index>(random() % 20));
        EXPECT_LE(scratchSize(piece), scratchSize(whole))
            << whole.rows << " x " << whole.cols << " x " << whole.depth
            << (byRows ? ", rows " : ", columns ") << count;
        piece.left.columns.rowsAbove += 1;
        EXPECT_LE(scratchSize(piece), scratchSize(whole));
    }
}

std::string nameOfSet(const ::testing::TestParamInfo<instruction_set>& tested)
{
    constexpr const char* names[] = {"Baseline", "Avx2", "Avx512"};
    return names[static_cast<int>(tested.param)];
}

INSTANTIATE_TEST_SUITE_P(Sets, ProductKernel,
                         ::testing::Values(instruction_set::baseline, instruction_set::avx2,
                                           instruction_set::avx512),
                         nameOfSet);

} // namespace

} // namespace korvel::test
