#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace veltrix {

/// The name of a socket, compared by identity instead of letter by letter: names of equal text
/// share one entry of a table, and the entry's number is the identity. A name is used like a
/// string; the evaluator, which compares names thousands of times a second, uses the numbers.
/// An entry leaves the table with its last holder, so the table never outgrows the names in use.
/// Not for use from more than one thread.
class SocketName {
public:
    /// The empty name.
    SocketName() noexcept = default;
    SocketName(std::string_view text);

    SocketName(const std::string& text) : SocketName(std::string_view(text)) {}

    SocketName(const char* text) : SocketName(std::string_view(text)) {}

    SocketName(const SocketName& other) noexcept;
    SocketName(SocketName&& other) noexcept;

    SocketName& operator=(const SocketName& other) noexcept {
        // The evaluator writes the same names over one another in every tick.
        if (id_ != other.id_)
            change(other.id_);
        return *this;
    }

    SocketName& operator=(SocketName&& other) noexcept;
    ~SocketName();

    [[nodiscard]] const std::string& Text() const noexcept;

    operator const std::string&() const noexcept { return Text(); }

    [[nodiscard]] bool empty() const noexcept { return id_ == 0; }

    /// The identity: 0 for the empty name, small positive numbers for all others. A number is used
    /// again once the last holder of its name is gone.
    [[nodiscard]] std::uint32_t Id() const noexcept { return id_; }

    friend bool operator==(const SocketName& a, const SocketName& b) noexcept {
        return a.id_ == b.id_;
    }

    friend bool operator==(const SocketName& a, std::string_view b) noexcept {
        return a.Text() == b;
    }

    friend bool operator==(const SocketName& a, const std::string& b) noexcept {
        return a.Text() == b;
    }

    friend bool operator==(const SocketName& a, const char* b) noexcept { return a.Text() == b; }

private:
    void change(std::uint32_t id) noexcept;

    std::uint32_t id_ = 0;
};

} // namespace veltrix
