#pragma once

#include <cstdint>

namespace veltrix {

class PictorATL;

/// The ring that marks the socket under the pointer.
class clsCursor {
public:
    /// Keeps the surface, which must outlive the cursor, and loads the ring, hidden at first.
    void Constructor(PictorATL& mag);

    void Hide();

    /// Shows the ring around a board position.
    void ShowPoint(std::int32_t x, std::int32_t y);

private:
    PictorATL* mag_ = nullptr;
    std::int32_t sprite_ = 0;
};

} // namespace veltrix
