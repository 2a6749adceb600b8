/**
 * @file
 * The handle through which records write themselves as JSON. The text is made by RapidJSON, whose headers
 * this one does not need.
 */
#ifndef KORVEL_CONTAINERS_JSON_MAKER_H
#define KORVEL_CONTAINERS_JSON_MAKER_H

#include "containers/matrix.h"
#include "platform/export.h"

#include <string>

namespace rapidjson
{

template <typename CharType>
struct UTF8;
class CrtAllocator;
template <typename Encoding, typename Allocator>
class GenericStringBuffer;
template <typename OutputStream, typename SourceEncoding, typename TargetEncoding, typename StackAllocator,
          unsigned writeFlags>
class PrettyWriter;

} // namespace rapidjson

namespace korvel
{

/** `rapidjson::StringBuffer`. */
using json_buffer = rapidjson::GenericStringBuffer<rapidjson::UTF8<char>, rapidjson::CrtAllocator>;

/** `rapidjson::PrettyWriter` over that buffer, with `kWriteNanAndInfFlag`. */
using json_writer = rapidjson::PrettyWriter<json_buffer, rapidjson::UTF8<char>, rapidjson::UTF8<char>,
                                            rapidjson::CrtAllocator, 2>;

} // namespace korvel

/**
 * A JSON text in the making. Whoever starts a write supplies the handle, takes the text by `written` and ends
 * with `dispose`; nothing is freed before that.
 *
 * Form of the text: UTF-8; one member of an object a line, indented by 4 spaces a level; an array on one
 * line, with ", " between its elements. A `double` has the digits that RapidJSON finds (Loitsch's Grisu2):
 * they read back as the same number, nearly always the fewest that do, though not always the nearest of
 * these. It always has a decimal point or an exponent. `NaN`, `Infinity` and `-Infinity`, which standard JSON
 * lacks, stand as such. A missing number is written like any other.
 *
 * An operation with an empty key writes an element of an array, or the one value that the text consists of;
 * any other key writes a member of the object that was opened last. All operations raise `std::bad_alloc`
 * when memory is short.
 */
class JsonMaker
{
public:
    korvel::json_buffer* buffer = nullptr; ///< The text so far; null until the first operation.
    korvel::json_writer* writer = nullptr; ///< Writes into `buffer`; made together with it.

    /** Opens an object. */
    KORVEL_API void startObject(const std::string& key);
    /** Closes the object opened last. */
    KORVEL_API void endObject();
    /** Opens an array. */
    KORVEL_API void startArray(const std::string& key);
    /** Closes the array opened last. */
    KORVEL_API void endArray();

    /** A number without decimals. */
    KORVEL_API void write(const std::string& key, int value);
    /** A number. */
    KORVEL_API void write(const std::string& key, double value);
    /** A text. A surrogate pair becomes one character, a lone surrogate U+FFFD. */
    KORVEL_API void write(const std::string& key, const text& value);
    /** `true` or `false`. */
    KORVEL_API void writeBoolean(const std::string& key, bool value);

    /**
     * A table: an array of the elements when it has one column, an array of one array for each column when it
     * has more. A table without elements, or without a block, writes nothing, not even its key.
     */
    template <class T>
    void writeTable(const std::string& key, const matrix<T>& table)
    {
        if (table.nbElem == 0 || table.data == nullptr) {
            return;
        }
        if (table.nbcols == 1) {
            writeColumn(key, table, 0);
            return;
        }
        startArray(key);
        for (int j = 0; j < table.nbcols; ++j) {
            writeColumn({}, table, j);
        }
        endArray();
    }

    /** The text so far; empty before the first operation. */
    [[nodiscard]] KORVEL_API std::string written() const;

    /** Frees buffer and writer; the next operation starts a new text. */
    KORVEL_API void dispose() noexcept;

private:
    korvel::json_writer& at(const std::string& key);

    template <class T>
    void writeColumn(const std::string& key, const matrix<T>& table, int j)
    {
        startArray(key);
        for (int i = 0; i < table.nbrows; ++i) {
            write({}, table.getElement(i, j));
        }
        endArray();
    }
};

#endif
