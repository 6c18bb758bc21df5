#pragma once

#include <cstdint>
#include <string>

namespace veltrix {

/// A control that shows pages, made at run time because a computer may not have one.
class Browser {
public:
    virtual ~Browser() = default;

    /// Goes to a page, named by its path (UTF-8). One that is not there is no error: the browser
    /// has a page of its own that says so.
    virtual void Navigate(const std::string& address) = 0;

    virtual void SetVisible(bool Visible) = 0;

    /// Puts the control at a place of its window's inside, all in pixels.
    virtual void Move(std::int32_t Left, std::int32_t Top, std::int32_t Width,
                      std::int32_t Height) = 0;
};

} // namespace veltrix
