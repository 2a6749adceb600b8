/**
 * @file
 * A caller's memory: host arrays and records as the macro layer lays them out, with guard bytes round every
 * block.
 */
#ifndef KORVEL_TESTS_SUPPORT_CALLER_MEMORY_H
#define KORVEL_TESTS_SUPPORT_CALLER_MEMORY_H

#include "containers/caller_records.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <deque>
#include <string>
#include <type_traits>
#include <vector>

namespace korvel::test
{

/** What tests compare with the contents of a caller's arrays. */
using doubles = std::vector<double>;
using ints = std::vector<int>;
using shorts = std::vector<short int>;
using texts = std::vector<std::u16string>;

/** The BSTR's characters, NUL included where its length says so. */
inline std::u16string contentOf(BSTR source)
{
    return std::u16string(source, source + SysStringLen(source));
}

/** Owns everything that it makes; the library may replace texts, but no block. */
class caller_memory
{
public:
    caller_memory() = default;
    caller_memory(const caller_memory&) = delete;
    caller_memory& operator=(const caller_memory&) = delete;

    ~caller_memory()
    {
        for (SAFEARRAY* array : texts_) {
            auto* places = static_cast<BSTR*>(array->pvData);
            std::for_each(places, places + array->rgsabound[0].cElements, SysFreeString);
        }
        std::for_each(labels_.begin(), labels_.end(), SysFreeString);
    }

    /** A host array; `counts` has the leftmost dimension first. */
    template <class T>
    SAFEARRAY* array(const std::vector<ULONG>& counts, const std::vector<T>& values)
    {
        static_assert(std::is_trivially_copyable_v<T>);
        blocks_.emplace_back(values.size() * sizeof(T) + 2 * guardBytes, guardByte);
        if (!values.empty()) {
            std::memcpy(blocks_.back().data() + guardBytes, values.data(), values.size() * sizeof(T));
        }
        SAFEARRAY* made = descriptor(counts);
        made->cbElements = sizeof(T);
        made->pvData = blocks_.back().data() + guardBytes;
        return made;
    }

    /** A host array of one dimension. */
    template <class T>
    SAFEARRAY* array(const std::vector<T>& values)
    {
        return array({static_cast<ULONG>(values.size())}, values);
    }

    /** A host array of texts, of one dimension. */
    SAFEARRAY* texts(const std::vector<std::u16string>& values)
    {
        std::vector<BSTR> places;
        for (const std::u16string& value : values) {
            places.push_back(newBstr(value));
        }
        SAFEARRAY* made = array(places);
        made->fFeatures |= FADF_BSTR;
        texts_.push_back(made);
        return made;
    }

    BSTR label(const std::u16string& value) { return labels_.emplace_back(newBstr(value)); }

    template <class T>
    ST_Vect column(const std::u16string& name, const std::vector<T>& values)
    {
        return {static_cast<int>(values.size()), label(name), array(values)};
    }

    ST_Vect column(const std::u16string& name, const std::vector<std::u16string>& values)
    {
        return {static_cast<int>(values.size()), label(name), texts(values)};
    }

    /** A table with a label for each column and the scalars that its columns have. */
    ST_MVect table(const std::vector<ST_Vect>& columns, const std::vector<std::u16string>& names)
    {
        std::vector<int> counts;
        for (const ST_Vect& column : columns) {
            counts.push_back(column.Count);
        }
        const auto [least, most] = std::minmax_element(counts.begin(), counts.end());
        ST_MVect made{};
        made.nbcols = static_cast<int>(columns.size());
        made.samenbrows = counts.empty() || *least == *most ? -1 : 0;
        made.nbrowsmax = counts.empty() ? 0 : *most;
        made.nbrows = array(counts);
        made.Vectors = array(columns);
        made.CLabels = texts(names);
        return made;
    }

    /** Whether nothing was written outside the blocks. */
    bool guardsIntact() const
    {
        return std::all_of(blocks_.begin(), blocks_.end(), [](const std::vector<unsigned char>& block) {
            const auto isGuard = [](unsigned char byte) { return byte == guardByte; };
            return std::all_of(block.begin(), block.begin() + guardBytes, isGuard) &&
                   std::all_of(block.end() - guardBytes, block.end(), isGuard);
        });
    }

private:
    static constexpr std::ptrdiff_t guardBytes = 64;
    static constexpr unsigned char guardByte = 0xA5;

    static BSTR newBstr(const std::u16string& value)
    {
        std::basic_string<OLECHAR> characters(value.begin(), value.end());
        return SysAllocStringLen(characters.data(), static_cast<UINT>(characters.size()));
    }

    SAFEARRAY* descriptor(const std::vector<ULONG>& counts)
    {
        descriptors_.emplace_back(sizeof(SAFEARRAY) + counts.size() * sizeof(SAFEARRAYBOUND));
        auto* made = reinterpret_cast<SAFEARRAY*>(descriptors_.back().data());
        made->cDims = static_cast<USHORT>(counts.size());
        made->fFeatures = FADF_FIXEDSIZE;
        auto* bounds = &made->rgsabound[0];
        for (std::size_t d = 0; d < counts.size(); ++d) {
            bounds[counts.size() - 1 - d] = {counts[d], 1};
        }
        return made;
    }

    std::deque<std::vector<unsigned char>> descriptors_;
    std::deque<std::vector<unsigned char>> blocks_;
    std::vector<SAFEARRAY*> texts_;
    std::vector<BSTR> labels_;
};

/** The numbers in a host array of one dimension. */
template <class T>
std::vector<T> numbersIn(const SAFEARRAY* array)
{
    const auto* first = static_cast<const T*>(array->pvData);
    return {first, first + array->rgsabound[0].cElements};
}

/** The texts in a host array of one dimension. */
inline std::vector<std::u16string> textsIn(const SAFEARRAY* array)
{
    std::vector<std::u16string> found;
    for (BSTR place : numbersIn<BSTR>(array)) {
        found.push_back(contentOf(place));
    }
    return found;
}

/** The block of BSTR in a host array of texts. */
inline OLECHAR** blockOf(SAFEARRAY* array)
{
    return static_cast<OLECHAR**>(array->pvData);
}

/** The record of column `j` of a table. */
inline ST_Vect& columnOf(const ST_MVect& table, int j)
{
    return static_cast<ST_Vect*>(table.Vectors->pvData)[j];
}

} // namespace korvel::test

#endif
