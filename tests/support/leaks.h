#ifndef KORVEL_TESTS_SUPPORT_LEAKS_H
#define KORVEL_TESTS_SUPPORT_LEAKS_H

#if defined(__SANITIZE_ADDRESS__)
#define KORVEL_TESTS_SEE_LEAKS
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KORVEL_TESTS_SEE_LEAKS
#endif
#endif

#if defined(KORVEL_TESTS_SEE_LEAKS)
#include <sanitizer/lsan_interface.h>
#endif

namespace korvel::test
{

/** While it lives, what is allocated may be lost: for routines that lose memory when they fail. */
class leaks_allowed
{
public:
    leaks_allowed(const leaks_allowed&) = delete;
    leaks_allowed& operator=(const leaks_allowed&) = delete;
#if defined(KORVEL_TESTS_SEE_LEAKS)
    leaks_allowed()
    {
        __lsan_disable();
    }
    ~leaks_allowed()
    {
        __lsan_enable();
    }
#else
    leaks_allowed() {}
    ~leaks_allowed() {}
#endif
};

} // namespace korvel::test

#endif
