#include "progress.h"

#include <cstdio>
#include <utility>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace report
{

namespace
{

bool isErrorStreamATerminal()
{
#ifdef _WIN32
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(STDERR_FILENO) != 0;
#endif
}

} // namespace

progress::progress(std::string about) : about_(std::move(about)), isTerminal_(isErrorStreamATerminal()) {}

progress::~progress()
{
    if (!shown_.empty()) {
        std::fprintf(stderr, "\r%*s\r", static_cast<int>(shown_.size()), "");
        std::fflush(stderr);
    }
}

void progress::show(const std::string& what, double share)
{
    if (!isTerminal_) {
        return;
    }
    std::string line = about_ + ": " + what + " ...";
    if (share >= 0.0) {
        line += ' ' + std::to_string(static_cast<int>(100.0 * share)) + " %";
    }
    if (line == shown_) {
        return;
    }
    // What is left of a longer line is blanked.
    std::fprintf(stderr, "\r%-*s\r%s", static_cast<int>(shown_.size()), "", line.c_str());
    std::fflush(stderr);
    shown_ = std::move(line);
}

} // namespace report
