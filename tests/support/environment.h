#ifndef KORVEL_TESTS_SUPPORT_ENVIRONMENT_H
#define KORVEL_TESTS_SUPPORT_ENVIRONMENT_H

#include <cstdlib>
#include <optional>
#include <string>

namespace korvel::test
{

/** Sets an environment variable, or removes it, and puts the old value back at the end. */
class environment_guard
{
public:
    environment_guard(const char* name, const std::optional<std::string>& value) : name_(name)
    {
        if (const char* old = std::getenv(name)) {
            old_ = old;
        }
        set(value);
    }
    ~environment_guard() { set(old_); }
    environment_guard(const environment_guard&) = delete;
    environment_guard& operator=(const environment_guard&) = delete;

private:
    void set(const std::optional<std::string>& value) const
    {
        if (value) {
            setenv(name_, value->c_str(), 1);
        } else {
            unsetenv(name_);
        }
    }

    const char* name_;
    std::optional<std::string> old_;
};

} // namespace korvel::test

#endif
