#include "platform/local_time.h"

#include <ctime>

namespace korvel
{

bool readLocalTime(SYSTEMTIME& now)
{
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
#if defined(_WIN32)
    const bool known = localtime_s(&local, &seconds) == 0;
#else
    const bool known = localtime_r(&seconds, &local) != nullptr;
#endif
    if (known) {
        const auto field = [](int value) { return static_cast<decltype(now.wYear)>(value); };
        now = {};
        now.wYear = field(local.tm_year + 1900);
        now.wMonth = field(local.tm_mon + 1);
        now.wDay = field(local.tm_mday);
        now.wHour = field(local.tm_hour);
        now.wMinute = field(local.tm_min);
        now.wSecond = field(local.tm_sec);
    }
    return known;
}

} // namespace korvel
