#include "platform/automation.h"
#include "platform/automation/ledger.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>

using korvel::automation::theLedger;

namespace
{

struct element_kind {
    ULONG bytes;
    USHORT features;
};

/** Size and features of the element types that the macro layer's arrays have; a size of 0 for any other. */
element_kind elementKind(VARTYPE type)
{
    switch (type) {
    case VT_I1:
    case VT_UI1:
        return {1, FADF_HAVEVARTYPE};
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
        return {2, FADF_HAVEVARTYPE};
    case VT_I4:
    case VT_UI4:
    case VT_R4:
    case VT_INT:
    case VT_UINT:
    case VT_ERROR:
        return {4, FADF_HAVEVARTYPE};
    case VT_R8:
    case VT_CY:
    case VT_DATE:
    case VT_I8:
    case VT_UI8:
        return {8, FADF_HAVEVARTYPE};
    case VT_BSTR:
        return {sizeof(BSTR), FADF_HAVEVARTYPE | FADF_BSTR};
    case VT_VARIANT:
        return {sizeof(VARIANT), FADF_HAVEVARTYPE | FADF_VARIANT};
    default:
        return {0, 0};
    }
}

std::size_t elementCount(const SAFEARRAY& array)
{
    std::size_t count = array.cDims == 0 ? 0 : 1;
    for (USHORT d = 0; d < array.cDims; ++d) {
        count *= array.rgsabound[d].cElements;
    }
    return count;
}

void freeElements(const SAFEARRAY& array)
{
    const std::size_t count = elementCount(array);
    if ((array.fFeatures & FADF_BSTR) != 0) {
        auto* texts = static_cast<BSTR*>(array.pvData);
        std::for_each(texts, texts + count, SysFreeString);
    } else if ((array.fFeatures & FADF_VARIANT) != 0) {
        auto* cells = static_cast<VARIANT*>(array.pvData);
        std::for_each(cells, cells + count, [](VARIANT& cell) {
            if (cell.vt == VT_BSTR) {
                SysFreeString(cell.bstrVal);
            }
        });
    }
}

} // namespace

static_assert(sizeof(SAFEARRAYBOUND) == 8);
static_assert(offsetof(SAFEARRAY, fFeatures) == 2 && offsetof(SAFEARRAY, cbElements) == 4 &&
              offsetof(SAFEARRAY, cLocks) == 8 && offsetof(SAFEARRAY, pvData) == 16 &&
              offsetof(SAFEARRAY, rgsabound) == 24 && sizeof(SAFEARRAY) == 32);
static_assert(sizeof(VARIANT) == 24 && offsetof(VARIANT, dblVal) == 8);

extern "C" void* CoTaskMemAlloc(size_t bytes)
{
    constexpr auto largest = static_cast<size_t>(std::numeric_limits<std::ptrdiff_t>::max());
    if (bytes > largest || !theLedger().permits()) {
        return nullptr;
    }
    // A request for nothing still gets a block of its own, as on Windows.
    void* block = std::malloc(std::max<size_t>(bytes, 1));
    if (block != nullptr) {
        ++theLedger().blocks.made;
    }
    return block;
}

extern "C" void CoTaskMemFree(void* block)
{
    if (block != nullptr) {
        ++theLedger().blocks.freed;
        std::free(block);
    }
}

extern "C" SAFEARRAY* SafeArrayCreate(VARTYPE type, UINT dimensions, SAFEARRAYBOUND* bounds)
{
    const element_kind kind = elementKind(type);
    if (kind.bytes == 0 || dimensions == 0 || dimensions > 0xFFFF || bounds == nullptr ||
        !theLedger().permits()) {
        return nullptr;
    }
    const std::size_t bytes = sizeof(SAFEARRAY) + (dimensions - 1) * sizeof(SAFEARRAYBOUND);
    auto* array = static_cast<SAFEARRAY*>(std::calloc(1, bytes));
    if (array == nullptr) {
        return nullptr;
    }
    array->cDims = static_cast<USHORT>(dimensions);
    array->fFeatures = kind.features;
    array->cbElements = kind.bytes;
    std::reverse_copy(bounds, bounds + dimensions, array->rgsabound);

    std::size_t dataBytes = 0;
    const bool representable =
        !__builtin_mul_overflow(elementCount(*array), std::size_t{kind.bytes}, &dataBytes);
    array->pvData = representable ? CoTaskMemAlloc(dataBytes) : nullptr;
    if (array->pvData == nullptr) {
        std::free(array);
        return nullptr;
    }
    std::memset(array->pvData, 0, dataBytes);
    ++theLedger().arrays.made;
    return array;
}

extern "C" HRESULT SafeArrayDestroy(SAFEARRAY* array)
{
    if (array == nullptr) {
        return S_OK;
    }
    if (array->cLocks != 0) {
        return DISP_E_ARRAYISLOCKED;
    }
    if (array->pvData != nullptr) {
        freeElements(*array);
        CoTaskMemFree(array->pvData);
    }
    ++theLedger().arrays.freed;
    std::free(array);
    return S_OK;
}
