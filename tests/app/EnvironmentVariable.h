#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace veltrix::test {

/// Sets a variable of the environment, or takes it away, for as long as it lives.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const std::optional<std::string>& value) : name_(name) {
        if (const char* before = std::getenv(name))
            before_ = before;
        set(value);
    }

    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

    ~EnvironmentVariable() { set(before_); }

private:
    void set(const std::optional<std::string>& value) {
        if (value)
            ::setenv(name_, value->c_str(), 1);
        else
            ::unsetenv(name_);
    }

    const char* name_;
    std::optional<std::string> before_;
};

} // namespace veltrix::test
