#include "containers/json_maker.h"

#include "containers/utf8.h"

#include <memory>
#include <new>
#include <string_view>
#include <type_traits>

// The base class that writes numbers ignores the writer's template argument and takes the default flags.
#define RAPIDJSON_WRITE_DEFAULT_FLAGS kWriteNanAndInfFlag
#include <rapidjson/allocators.h>
#include <rapidjson/internal/stack.h>

namespace rapidjson::internal
{

/**
 * Grows a block like the general form, but throws when memory is short: the general form goes on with a null
 * block.
 */
template <>
void Stack<CrtAllocator>::Resize(std::size_t newCapacity)
{
    const std::size_t size = GetSize();
    auto* grown = static_cast<char*>(allocator_->Realloc(stack_, GetCapacity(), newCapacity));
    if (grown == nullptr) {
        throw std::bad_alloc();
    }
    stack_ = grown;
    stackTop_ = grown + size;
    stackEnd_ = grown + newCapacity;
}

} // namespace rapidjson::internal

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

using namespace korvel;

static_assert(std::is_same_v<json_buffer, rapidjson::StringBuffer>);
static_assert(
    std::is_same_v<json_writer,
                   rapidjson::PrettyWriter<rapidjson::StringBuffer, rapidjson::UTF8<>, rapidjson::UTF8<>,
                                           rapidjson::CrtAllocator, rapidjson::kWriteNanAndInfFlag>>);

namespace
{

rapidjson::SizeType lengthOf(std::string_view bytes)
{
    return static_cast<rapidjson::SizeType>(bytes.size());
}

} // namespace

/** Returns the writer, made on first use, after writing the key unless that is empty. */
json_writer& JsonMaker::at(const std::string& key)
{
    if (writer == nullptr) {
        auto newBuffer = std::make_unique<json_buffer>();
        writer = std::make_unique<json_writer>(*newBuffer).release();
        buffer = newBuffer.release();
        writer->SetIndent(' ', 4);
        writer->SetFormatOptions(rapidjson::kFormatSingleLineArray);
    }
    if (!key.empty()) {
        writer->Key(key.data(), lengthOf(key));
    }
    return *writer;
}

void JsonMaker::startObject(const std::string& key)
{
    at(key).StartObject();
}

void JsonMaker::endObject()
{
    writer->EndObject();
}

void JsonMaker::startArray(const std::string& key)
{
    at(key).StartArray();
}

void JsonMaker::endArray()
{
    writer->EndArray();
}

void JsonMaker::write(const std::string& key, int value)
{
    at(key).Int(value);
}

void JsonMaker::write(const std::string& key, double value)
{
    at(key).Double(value);
}

void JsonMaker::write(const std::string& key, const text& value)
{
    const std::string bytes = toUtf8(value);
    at(key).String(bytes.data(), lengthOf(bytes));
}

void JsonMaker::writeBoolean(const std::string& key, bool value)
{
    at(key).Bool(value);
}

std::string JsonMaker::written() const
{
    return buffer == nullptr ? std::string{} : std::string(buffer->GetString(), buffer->GetSize());
}

void JsonMaker::dispose() noexcept
{
    delete writer;
    delete buffer;
    writer = nullptr;
    buffer = nullptr;
}
