#include "output.h"

#include <cerrno>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <system_error>

namespace report
{

namespace
{

[[noreturn]] void throwFailure(const std::error_code& error)
{
    throw std::runtime_error("cannot be written: " + error.message());
}

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

// Nothing, or why it failed.
std::error_code writeStream(std::FILE* stream, std::string_view text)
{
    const bool isWhole = std::fwrite(text.data(), 1, text.size(), stream) == text.size();
    return isWhole && std::fflush(stream) == 0 ? std::error_code() : lastError();
}

std::error_code writeNew(const std::filesystem::path& path, std::string_view text)
{
    std::FILE* const file = std::fopen(path.string().c_str(), "wb");
    if (file == nullptr) {
        return lastError();
    }
    const std::error_code error = writeStream(file, text);
    const bool isClosed = std::fclose(file) == 0;
    return error || isClosed ? error : lastError();
}

} // namespace

void writeOut(std::string_view text)
{
    if (const std::error_code error = writeStream(stdout, text)) {
        throwFailure(error);
    }
}

void writeFile(const std::filesystem::path& path, std::string_view text)
{
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    if (std::filesystem::is_directory(status)) {
        throw std::runtime_error("is a directory, not a file");
    }
    // A device or a pipe cannot be replaced.
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        if (const std::error_code failure = writeNew(path, text)) {
            throwFailure(failure);
        }
        return;
    }
    // A link stays one.
    std::filesystem::path target =
        std::filesystem::exists(status) ? std::filesystem::canonical(path, error) : path;
    std::filesystem::path beside = target;
    beside += ".part";
    std::error_code failure = writeNew(beside, text);
    if (!failure) {
        std::filesystem::rename(beside, target, failure);
    }
    if (failure) {
        std::filesystem::remove(beside, error);
        throwFailure(failure);
    }
}

} // namespace report
