#pragma once

#include "board/PictorATL.h"
#include "board/SocketName.h"
#include "board/Types.h"

#include <cstdint>

namespace veltrix {

/// The slider that pops up beside a module to set a voltage from 0 to 5 V. There is one for the
/// whole board; `naam` says which regulator it was opened for.
class clsVoltControl : public SurfaceEvents {
public:
    clsVoltControl() = default;
    clsVoltControl(const clsVoltControl&) = delete;
    clsVoltControl& operator=(const clsVoltControl&) = delete;
    ~clsVoltControl() override;

    /// Keeps the surface, which must outlive the knob, makes the scale with its tick marks, and
    /// listens to the surface's mouse events from now on.
    void Constructor(PictorATL& newMag);

    /// Opens the knob with the scale's top left corner at a board position.
    void Move(std::int32_t x, std::int32_t y);
    void Hide();

    /// Whether the pointer is over the open knob.
    [[nodiscard]] bool InBound() const noexcept;

    /// Hides the knob when its cross was clicked since it was opened.
    void Update();

    /// The level in tenths of a volt, 0 to 50; dragging gives fractions.
    [[nodiscard]] double Value() const noexcept { return value_; }

    /// A value below 0 counts as 0, one above 50 as 50.
    void SetValue(double Value);

    [[nodiscard]] bool Visible() const noexcept { return visible_; }

    /// The name of the regulator that the knob was opened for.
    SocketName naam;

    void MouseDown(std::int32_t sprite, MouseButton button, std::int32_t x,
                   std::int32_t y) override;
    void MouseUp(std::int32_t sprite, MouseButton button, std::int32_t x, std::int32_t y) override;
    void MouseMove(std::int32_t sprite, std::int32_t x, std::int32_t y) override;

private:
    void follow(std::int32_t x);
    void setState(std::int32_t state);

    PictorATL* mag_ = nullptr;
    std::int32_t scale_ = 0;
    std::int32_t pointer_ = 0;
    std::int32_t closeZone_ = 0;
    double value_ = 0;
    Bool16 visible_;
    Bool16 dragging_;
    Bool16 closeRequested_;
};

} // namespace veltrix
