/**
 * @file
 * Texts and host arrays that the system's own calls made, as macro code has them.
 */
#ifndef KORVEL_TESTS_SUPPORT_HOST_ARRAYS_H
#define KORVEL_TESTS_SUPPORT_HOST_ARRAYS_H

#include "containers/missing.h"
#include "platform/automation.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace korvel::test
{

/** A new BSTR of all characters of `value`, a NUL among them too. */
inline BSTR newBstr(const text& value)
{
    const std::basic_string<OLECHAR> characters(value.begin(), value.end());
    return SysAllocStringLen(characters.data(), static_cast<UINT>(characters.size()));
}

/** What a BSTR holds, a NUL inside it too; nothing for a null pointer. */
inline std::optional<text> contents(BSTR source)
{
    if (source == nullptr) {
        return std::nullopt;
    }
    const OLECHAR* first = source;
    return text(first, first + SysStringLen(source));
}

/** What stands in a place for a text: null, or characters. */
using place = std::optional<text>;

/** A block of BSTR. Whatever stands in it at the end is freed. */
class bstr_block
{
public:
    bstr_block(std::initializer_list<place> values)
    {
        for (const place& value : values) {
            places_.push_back(value ? newBstr(*value) : nullptr);
        }
    }
    ~bstr_block() { std::for_each(places_.begin(), places_.end(), SysFreeString); }
    bstr_block(const bstr_block&) = delete;
    bstr_block& operator=(const bstr_block&) = delete;

    [[nodiscard]] OLECHAR** data() { return places_.data(); }
    [[nodiscard]] BSTR& operator[](std::size_t k) { return places_[k]; }

    [[nodiscard]] std::vector<place> values() const
    {
        std::vector<place> found;
        std::transform(places_.begin(), places_.end(), std::back_inserter(found), contents);
        return found;
    }

private:
    std::vector<BSTR> places_;
};

template <class T>
constexpr VARTYPE elementType()
{
    if constexpr (std::is_same_v<T, double>) {
        return VT_R8;
    } else if constexpr (std::is_same_v<T, int>) {
        return VT_I4;
    } else if constexpr (std::is_same_v<T, short int>) {
        return VT_BOOL;
    } else {
        return VT_BSTR;
    }
}

/** A host array of the system, destroyed at the end unless it was given away. */
class host_array
{
public:
    /** `counts` has the leftmost dimension first; `lowest` is the number of the first element in each. */
    host_array(VARTYPE type, const std::vector<ULONG>& counts, LONG lowest = 1)
    {
        std::vector<SAFEARRAYBOUND> bounds;
        for (const ULONG count : counts) {
            bounds.push_back({count, lowest});
        }
        array_ = SafeArrayCreate(type, static_cast<UINT>(bounds.size()), bounds.data());
    }

    /** Numbers in linear order. */
    template <class T>
    host_array(const std::vector<ULONG>& counts, const std::vector<T>& values)
        : host_array(elementType<T>(), counts)
    {
        std::copy(values.begin(), values.end(), elements<T>());
    }

    /** Texts in linear order; `type` is VT_BSTR. */
    host_array(VARTYPE type, const std::vector<ULONG>& counts, std::initializer_list<place> values)
        : host_array(type, counts)
    {
        std::transform(values.begin(), values.end(), elements<BSTR>(),
                       [](const place& value) { return value ? newBstr(*value) : nullptr; });
    }

    ~host_array()
    {
        if (array_ != nullptr) {
            // What a test marks as the caller's own memory is still the system's.
            array_->fFeatures = static_cast<USHORT>(array_->fFeatures & ~FADF_FIXEDSIZE);
            SafeArrayDestroy(array_);
        }
    }
    host_array(const host_array&) = delete;
    host_array& operator=(const host_array&) = delete;

    [[nodiscard]] SAFEARRAY* get() const { return array_; }
    [[nodiscard]] SAFEARRAY& operator*() const { return *array_; }
    [[nodiscard]] SAFEARRAY* operator->() const { return array_; }
    [[nodiscard]] SAFEARRAY** address() { return &array_; }
    SAFEARRAY* release() { return std::exchange(array_, nullptr); }

    /** Count of a dimension, the leftmost one being 0. */
    [[nodiscard]] ULONG& count(std::size_t dimension) const
    {
        SAFEARRAYBOUND* bounds = &array_->rgsabound[0];
        return bounds[array_->cDims - 1u - dimension].cElements;
    }

    template <class T>
    [[nodiscard]] T* elements() const
    {
        return static_cast<T*>(array_->pvData);
    }

    template <class T>
    [[nodiscard]] std::vector<T> numbers(std::size_t n) const
    {
        return {elements<T>(), elements<T>() + n};
    }

    [[nodiscard]] std::vector<place> texts(std::size_t n) const
    {
        std::vector<place> found;
        std::transform(elements<BSTR>(), elements<BSTR>() + n, std::back_inserter(found), contents);
        return found;
    }

private:
    SAFEARRAY* array_ = nullptr;
};

} // namespace korvel::test

#endif
