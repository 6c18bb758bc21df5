#pragma once

#include "app/modControlPanel.h"
#include "instruments/UCWaveIn.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace veltrix {

class frmWaveInputs;

/// What is seen of the dialog of the sound inputs.
class WaveInputsView {
public:
    static constexpr std::int32_t SensorMeter = UCWaveIn::Inputs + 1;
    static constexpr float FullScale = 200; ///< width of a meter's bar in pixels

    virtual ~WaveInputsView() = default;

    virtual void SetInputCount(const std::string& caption) = 0;

    /// The name beside input `i`, 1 to 5.
    virtual void SetName(std::int32_t i, const std::string& caption) = 0;

    /// Meter 1 to 5 of the inputs, or that of the sensor. Its bar has `width` pixels, which may be
    /// more than full scale. A meter that is never set is empty.
    virtual void SetMeter(std::int32_t i, float width, bool visible) = 0;

    /// Shows the dialog before all other windows until it is unloaded or closed. Meanwhile
    /// its events go to `dialog`, and its timer ticks every frmWaveInputs::Interval.
    virtual void ShowModal(frmWaveInputs& dialog) = 0;

    /// Closes the dialog.
    virtual void Unload() = 0;
};

/// Makes the views of the dialogs.
class WaveInputsViews {
public:
    virtual ~WaveInputsViews() = default;

    [[nodiscard]] virtual std::unique_ptr<WaveInputsView> Create() = 0;
};

/// The dialog "Geluid Sensor": the sound inputs with a meter each, and the sensor's own. It changes
/// nothing.
class frmWaveInputs {
public:
    static constexpr std::int32_t Interval = 10; ///< of Timer1, ms

    /// `start` must outlive the dialog.
    frmWaveInputs(std::unique_ptr<WaveInputsView> view, ProgramStart& start)
        : view_(std::move(view)), start_(start) {}

    /// Keeps `wi`, which must outlive the dialog, and names its inputs.
    void Constructor(UCWaveIn& wi);

    void Show() { view_->ShowModal(*this); }

    /// Moves the meters.
    void Timer1_Timer();

    /// Opens the sound settings of the platform, or does nothing where there are none.
    void Command1_Click();

    void btnOK_Click() { view_->Unload(); }

private:
    void setMeter(std::int32_t i, float width) { view_->SetMeter(i, width, width > 0); }

    std::unique_ptr<WaveInputsView> view_;
    ProgramStart& start_;
    UCWaveIn* wi_ = nullptr;
};

} // namespace veltrix
