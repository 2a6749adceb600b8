// The product kernel of each instruction set beside a plain loop. Random counts around each tile, panel and
// threshold; operands summed along rows and along columns; columns in one block and in a list; factors;
// halves; sums that start from the result; products that are subtracted.

#include "linalg/kernels/product.h"

#include "linalg/kernels/instruction_sets.h"
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

/** Where a kernel changes its ways. */
std::vector<index> edgesOf(const kernels::product_kernel& kernel)
{
    const kernels::product_edges& edges = kernel.edges;
    return {edges.tileRows,    edges.tileColumns, edges.panelRows, edges.panelColumns, edges.panelDepth,
            edges.fewRows,     edges.fewColumns,  edges.narrow,    edges.narrowDepth,  0,
            edges.tileRows / 2};
}

/** A count just below, at or just above an edge or a multiple of it. */
index countAtEdge(std::mt19937_64& random, const kernels::product_kernel& kernel)
{
    const std::vector<index> edges = edgesOf(kernel);
    const index edge = edges[random() % edges.size()] * (oneIn(random, 4) ? 2 : 1);
    return std::max<index>(0, edge + static_cast<index>(random() % 3) - 1);
}

/** Counts up to a few tiles, and often those at an edge. */
index someCount(std::mt19937_64& random, const kernels::product_kernel& kernel)
{
    return oneIn(random, 3) ? countAtEdge(random, kernel) : static_cast<index>(random() % 70);
}

/** A product of such counts that the plain loop forms soon. */
kernels::product someProduct(std::mt19937_64& random, const kernels::product_kernel& kernel)
{
    constexpr index mostTerms = 1'500'000;
    kernels::product form;
    do {
        form.rows = someCount(random, kernel);
        form.cols = someCount(random, kernel);
        form.depth = someCount(random, kernel);
    } while (form.rows * form.cols * form.depth > mostTerms);
    return form;
}

/** Cells of all kinds, but only ordinary ones in half of the rounds: an infinity or a NaN hides every term
 * that is added after it. */
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
    const kernels::forced_set forced_{GetParam()};
    const kernels::product_kernel& kernel_ = kernels::productKernel();

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
                    const double term = a * elementOf(right, j, k, form.right.sumsDownColumns);
                    sum = form.subtracts ? sum - term : sum + term;
                }
                if (keeps(form, i, j)) {
                    expected[result.place(i, j)] = sum;
                }
            }
        }
        const std::size_t size = kernel_.scratchSize(form);
        // Offset by one double, so that no kernel may rely on alignment.
        std::vector<double> scratch(size + 2, 1234.5);
        kernel_.multiply(form, scratch.data() + 1);
        EXPECT_EQ(scratch.front(), 1234.5);
        EXPECT_EQ(scratch.back(), 1234.5);
        for (std::size_t k = 0; k < expected.size(); ++k) {
            ASSERT_SAME_BITS(result.cells()[k], expected[k])
                << "cell " << k << ", " << form.rows << " x " << form.cols << " x " << form.depth;
        }
    }
};

/** A random choice of the part that is kept, of the start of the sums and of the terms. */
void chooseOptions(kernels::product& form, std::mt19937_64& random)
{
    form.kept = static_cast<part>(random() % 3);
    form.rowsBefore = oneIn(random, 4) ? static_cast<index>(random() % 40) : 0;
    form.onto = oneIn(random, 3);
    form.subtracts = oneIn(random, 4);
}

class ProductKernelOfTwo : public ProductKernel
{
protected:
    /** One product of these counts on random tables, everything else by chance. */
    void tryOne(kernels::product form, std::mt19937_64& random)
    {
        random_cells cells = someCells(random);
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
        chooseOptions(form, random);
        expectThePlainLoop(form, left, right, result);
    }
};

TEST_P(ProductKernelOfTwo, HasTheBitsOfThePlainLoop)
{
    std::mt19937_64 random(20);
    for (int round = 0; round < 400; ++round) {
        ASSERT_NO_FATAL_FAILURE(tryOne(someProduct(random, kernel_), random));
    }
}

TEST_P(ProductKernelOfTwo, HasThemAroundEveryEdge)
{
    std::mt19937_64 random(21);
    const auto few = [&] { return 1 + static_cast<index>(random() % 30); };
    for (const index edge : edgesOf(kernel_)) {
        for (const index count : {edge - 1, edge, edge + 1, 2 * edge + 1}) {
            if (count < 0) {
                continue;
            }
            for (int round = 0; round < 3; ++round) {
                ASSERT_NO_FATAL_FAILURE(tryOne({count, few(), few()}, random));
                ASSERT_NO_FATAL_FAILURE(tryOne({few(), count, few()}, random));
                ASSERT_NO_FATAL_FAILURE(tryOne({few(), few(), count}, random));
            }
        }
    }
}

TEST_P(ProductKernelOfTwo, HasThemOverSeveralPanelsOfEachCount)
{
    std::mt19937_64 random(23);
    const kernels::product_edges& edges = kernel_.edges;
    for (const index over : {1, 5}) {
        ASSERT_NO_FATAL_FAILURE(
            tryOne({edges.panelRows + over, edges.fewColumns + over, edges.panelDepth + over}, random));
        ASSERT_NO_FATAL_FAILURE(tryOne({edges.fewRows + over, edges.panelColumns + over, 20}, random));
        ASSERT_NO_FATAL_FAILURE(tryOne({edges.panelRows + over, edges.panelColumns + over, 9}, random));
        ASSERT_NO_FATAL_FAILURE(tryOne({9, edges.panelColumns + over, edges.panelDepth + over}, random));
    }
}

class ProductKernelOfOne : public ProductKernel
{
};

TEST_P(ProductKernelOfOne, HasTheBitsOfThePlainLoop)
{
    std::mt19937_64 random(22);
    for (int round = 0; round < 300; ++round) {
        random_cells cells = someCells(random);
        kernels::product form = someProduct(random, kernel_);
        form.cols = form.rows = std::min<index>(form.rows, kernel_.edges.narrow + 2);
        const bool down = oneIn(random, 2);
        const table both = operandTable(form.rows, form.depth, down, random, cells);
        table result(form.rows, form.rows, static_cast<index>(random() % 3), cells);
        form.left = {both.columns<const double>(oneIn(random, 3)), down};
        form.right = form.left;
        form.result = result.columns<double>(oneIn(random, 3));
        chooseOptions(form, random);
        ASSERT_NO_FATAL_FAILURE(expectThePlainLoop(form, both, both, result));
    }
}

TEST_P(ProductKernel, ScratchOfAProductServesAnyStretchOfIt)
{
    std::mt19937_64 random(24);
    random_cells cells(25, odd_cells::none);
    const table any(1, 1, 0, cells);
    const auto scratchSize = kernel_.scratchSize;
    for (int round = 0; round < 2000; ++round) {
        const index order = someCount(random, kernel_);
        kernels::product whole{order, oneIn(random, 2) ? order : someCount(random, kernel_),
                               someCount(random, kernel_)};
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

// Only the sets of this processor. tests/platform/cpu_test.cpp checks that none of them is overlooked.
const auto sets = ::testing::ValuesIn(setsOfThisProcessor());
INSTANTIATE_TEST_SUITE_P(Sets, ProductKernel, sets, nameOfSet);
INSTANTIATE_TEST_SUITE_P(Sets, ProductKernelOfTwo, sets, nameOfSet);
INSTANTIATE_TEST_SUITE_P(Sets, ProductKernelOfOne, sets, nameOfSet);

} // namespace

} // namespace korvel::test
