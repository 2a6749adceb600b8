/**
 * @file
 * The product kernel: C(i,j) = sum over k of left(i,k) * right(j,k), each element one accumulator to which
 * the products are added in ascending k, a multiplication and then an addition. All members of the product
 * family rest on it.
 *
 * It works on raw columns in panels: some rows and columns of the operands are copied into small blocks that
 * lie as they are read, and a tile of C is kept in registers while it is summed over one panel. A tile that
 * is stored after one panel and loaded again for the next is still the same accumulator. Nothing in this
 * alters a rounding.
 *
 * It is compiled for the baseline, for AVX2 and for AVX-512; which one is called is decided once, when the
 * library is loaded.
 */
#ifndef KORVEL_LINALG_KERNELS_PRODUCT_H
#define KORVEL_LINALG_KERNELS_PRODUCT_H

#include <cstddef>

namespace korvel::kernels
{

/** The columns of a table, each in a row of memory: `first` and `stride`, or a list of pointers. */
template <class T>
struct columns_of {
    T* first = nullptr;
    std::ptrdiff_t stride = 0;
    T* const* list = nullptr;
    std::ptrdiff_t rowsAbove = 0; ///< rows to pass over at the head of each column

    [[gnu::always_inline]] T* operator()(std::ptrdiff_t j) const
    {
        return (list != nullptr ? list[j] : first + j * stride) + rowsAbove;
    }

    /** The table without its first `count` columns. */
    [[nodiscard]] columns_of afterColumns(std::ptrdiff_t count) const
    {
        return list != nullptr ? columns_of{first, stride, list + count, rowsAbove}
                               : columns_of{first + count * stride, stride, list, rowsAbove};
    }

    /** The table without its first `count` rows. */
    [[nodiscard]] columns_of afterRows(std::ptrdiff_t count) const
    {
        return {first, stride, list, rowsAbove + count};
    }
};

/** An operand, of which element (o, k) is summed over k: row k of column o, or row o of column k. */
struct operand {
    columns_of<const double> columns;
    bool sumsDownColumns = false;

    /** The operand from element (`count`, 0) on. */
    [[nodiscard]] operand after(std::ptrdiff_t count) const
    {
        return {sumsDownColumns ? columns.afterColumns(count) : columns.afterRows(count), sumsDownColumns};
    }

    /** The operand from element (0, `count`) on. */
    [[nodiscard]] operand afterTerms(std::ptrdiff_t count) const
    {
        return {sumsDownColumns ? columns.afterRows(count) : columns.afterColumns(count), sumsDownColumns};
    }
};

/** Which elements of the result are summed and stored. */
enum class part { whole, upper, lower };

/** A product to be formed. The counts are not negative. */
struct product {
    std::ptrdiff_t rows = 0;
    std::ptrdiff_t cols = 0;
    std::ptrdiff_t depth = 0;
    operand left{};  ///< element (i, k), i below `rows`
    operand right{}; ///< element (j, k), j below `cols`
    /** `depth` factors, `factorStep` apart, by which the left elements are multiplied first; null: none. */
    const double* factors = nullptr;
    std::ptrdiff_t factorStep = 1;
    columns_of<double> result{}; ///< element (i, j) is row i of column j
    part kept = part::whole;
    /**
     * Rows of the whole table above those of this product, where only a stretch of its rows is formed: the
     * diagonal that bounds the upper or lower part passes through element (j - rowsBefore, j).
     */
    std::ptrdiff_t rowsBefore = 0;
    bool onto = false;      ///< sums start from what is stored in the result, and not from 0.0
    bool subtracts = false; ///< each product is subtracted from its sum, and not added to it
};

/** Counts at which a kernel goes another way, so that tests can lie around each. */
struct product_edges {
    std::ptrdiff_t tileRows;
    std::ptrdiff_t tileColumns;
    std::ptrdiff_t panelRows;
    std::ptrdiff_t panelColumns;
    std::ptrdiff_t panelDepth;
    std::ptrdiff_t fewRows;    ///< so many left rows do not pay for packing the right operand
    std::ptrdiff_t fewColumns; ///< nor so many right columns for packing the left one
    std::ptrdiff_t narrow;     ///< order of the largest table times itself that is packed once for both sides
    std::ptrdiff_t narrowDepth;
};

/** What is compiled once for each instruction set. */
struct product_kernel {
    /** Doubles of scratch that `multiply` needs. */
    std::size_t (*scratchSize)(const product&);
    /** Forms the product. Result, operands and scratch do not overlap. */
    void (*multiply)(const product&, double* scratch);
    product_edges edges;
};

/** The kernel of the best instruction set that the processor has. */
[[nodiscard]] const product_kernel& productKernel() noexcept;

/** What a kernel is compiled for. Each set has the ones before it. */
enum class instruction_set { baseline, avx2, avx512 };

/** Whether this processor has it. */
[[nodiscard]] bool hasSet(instruction_set set) noexcept;

/** The set whose kernels are used. */
[[nodiscard]] instruction_set currentSet() noexcept;

/** For tests: while it lives, the kernels of a set that the processor has are used, and no better ones. */
class forced_set
{
public:
    explicit forced_set(instruction_set set) noexcept;
    ~forced_set();
    forced_set(const forced_set&) = delete;
    forced_set& operator=(const forced_set&) = delete;
};

namespace baseline
{
extern const product_kernel productKernel;
}

namespace avx2
{
extern const product_kernel productKernel;
}

namespace avx512
{
extern const product_kernel productKernel;
}

} // namespace korvel::kernels

#endif
