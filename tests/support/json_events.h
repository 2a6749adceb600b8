/**
 * @file
 * A JSON text as the list of what a reader meets in it.
 */
#ifndef KORVEL_TESTS_SUPPORT_JSON_EVENTS_H
#define KORVEL_TESTS_SUPPORT_JSON_EVENTS_H

#include <bit>
#include <charconv>
#include <cstdint>
#include <optional>
#include <rapidjson/reader.h>
#include <string>
#include <vector>

namespace korvel::test
{

/** One event each: a bracket, or a letter for its kind, a colon, and the content. */
using json_events = std::vector<std::string>;

inline std::string eventOfNumber(double value)
{
    return "double:" + std::to_string(std::bit_cast<std::uint64_t>(value));
}

/** Collects events; a number with a point or an exponent is a double, any other an integer. */
class event_collector : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, event_collector>
{
public:
    json_events events;

    bool Null() { return add("null"); }
    bool Bool(bool value) { return add(value ? "true" : "false"); }
    bool RawNumber(const char* characters, rapidjson::SizeType length, bool)
    {
        const std::string_view token(characters, length);
        if (token.find_first_of(".eE") == std::string_view::npos) {
            return add("integer:" + std::string(token));
        }
        double value = 0.0;
        std::from_chars(token.data(), token.data() + token.size(), value);
        return add(eventOfNumber(value));
    }
    bool String(const char* bytes, rapidjson::SizeType length, bool)
    {
        return add("string:" + std::string(bytes, length));
    }
    bool Key(const char* bytes, rapidjson::SizeType length, bool)
    {
        return add("key:" + std::string(bytes, length));
    }
    bool StartObject() { return add("{"); }
    bool EndObject(rapidjson::SizeType) { return add("}"); }
    bool StartArray() { return add("["); }
    bool EndArray(rapidjson::SizeType) { return add("]"); }

private:
    bool add(std::string event)
    {
        events.push_back(std::move(event));
        return true;
    }
};

/** Puts `NaN`, `Infinity` and `-Infinity` in quotes where they stand outside of a string. */
inline std::string quoteSpecialNumbers(const std::string& json)
{
    std::string quoted;
    bool inString = false;
    for (std::size_t k = 0; k < json.size(); ++k) {
        if (!inString) {
            bool found = false;
            for (const std::string token : {"NaN", "-Infinity", "Infinity"}) {
                if (json.compare(k, token.size(), token) == 0) {
                    quoted += '"' + token + '"';
                    k += token.size() - 1;
                    found = true;
                    break;
                }
            }
            if (found) {
                continue;
            }
        }
        if (inString && json[k] == '\\') {
            quoted += json[k++];
        } else if (json[k] == '"') {
            inString = !inString;
        }
        quoted += json[k];
    }
    return quoted;
}

/** The events of a JSON text in well-formed UTF-8; nothing when it is not well-formed. */
inline std::optional<json_events> eventsOf(const std::string& json)
{
    constexpr unsigned flags = rapidjson::kParseValidateEncodingFlag | rapidjson::kParseNumbersAsStringsFlag;
    rapidjson::Reader reader;
    rapidjson::StringStream stream(json.c_str());
    event_collector collector;
    if (reader.Parse<flags>(stream, collector).IsError()) {
        return std::nullopt;
    }
    return collector.events;
}

} // namespace korvel::test

#endif
