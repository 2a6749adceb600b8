#include "containers/host_array.h"

#include <algorithm>
#include <boost/numeric/conversion/cast.hpp>
#include <cstring>
#include <limits>

namespace korvel
{

namespace
{

/** The bound of a dimension counted from the left; the descriptor keeps them from the right. */
template <class Array>
auto& boundFromLeft(Array& array, std::size_t dimension)
{
    auto* bounds = &array.rgsabound[0];
    return bounds[array.cDims - 1u - dimension];
}

std::uint64_t product(std::uint64_t a, std::uint64_t b)
{
    std::uint64_t result = 0;
    return __builtin_mul_overflow(a, b, &result) ? std::numeric_limits<std::uint64_t>::max() : result;
}

void freeTexts(const SAFEARRAY& array, std::uint64_t count)
{
    auto* texts = static_cast<BSTR*>(array.pvData);
    for (std::uint64_t k = 0; k < count; ++k) {
        SysFreeString(texts[k]);
        texts[k] = nullptr;
    }
}

} // namespace

table_shape hostArrayShape(const SAFEARRAY& array)
{
    const auto count = [&](std::size_t dimension) {
        return dimension < array.cDims ? boost::numeric_cast<int>(boundFromLeft(array, dimension).cElements)
                                       : 1;
    };
    return {count(0), count(1)};
}

std::uint64_t hostArrayLength(const SAFEARRAY& array)
{
    std::uint64_t length = 1;
    for (std::size_t dimension = 0; dimension < array.cDims; ++dimension) {
        length = product(length, boundFromLeft(array, dimension).cElements);
    }
    return length;
}

bool resizeHostArray(SAFEARRAY& array, std::span<const int> counts, bool clear)
{
    if ((array.fFeatures & FADF_FIXEDSIZE) != 0 || counts.empty() || counts.size() != array.cDims ||
        std::any_of(counts.begin(), counts.end(), [](int count) { return count < 0; })) {
        return false;
    }

    const auto firstZero =
        static_cast<std::size_t>(std::find(counts.begin(), counts.end(), 0) - counts.begin());
    const auto newCount = [&](std::size_t dimension) {
        return dimension < firstZero ? static_cast<ULONG>(counts[dimension]) : ULONG{0};
    };
    const std::uint64_t oldLength = hostArrayLength(array);
    std::uint64_t newLength = 1;
    for (std::size_t dimension = 0; dimension < counts.size(); ++dimension) {
        newLength = product(newLength, newCount(dimension));
    }

    if ((array.fFeatures & FADF_BSTR) != 0 && array.pvData != nullptr) {
        freeTexts(array, oldLength);
    }
    const std::uint64_t bytes = product(array.cbElements, newLength);
    if (newLength > oldLength) {
        void* block = CoTaskMemAlloc(bytes);
        if (block == nullptr) {
            return false;
        }
        if (clear) {
            std::memset(block, 0, bytes);
        }
        CoTaskMemFree(array.pvData);
        array.pvData = block;
    } else if (clear && array.pvData != nullptr) {
        std::memset(array.pvData, 0, bytes);
    }
    for (std::size_t dimension = 0; dimension < counts.size(); ++dimension) {
        boundFromLeft(array, dimension).cElements = newCount(dimension);
    }
    return true;
}

} // namespace korvel
