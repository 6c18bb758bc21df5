#include "app/frmWaveInputs.h"

#include "board/Types.h"

namespace veltrix {

void frmWaveInputs::Constructor(UCWaveIn& wi) {
    wi_ = &wi;
    view_->SetInputCount("Aantal inputs: " + std::to_string(wi.GetUsedCount()));
    for (std::int32_t i = 1; i <= UCWaveIn::Inputs; ++i)
        view_->SetName(i, "");
    for (std::int32_t i = 1; i <= wi.GetUsedCount(); ++i) {
        std::string caption = "(" + wi.GetWaveName(i) + ")";
        if (!wi.GetWaveInValid(i))
            caption += " (Cannot be used)";
        view_->SetName(i, caption);
    }
}

void frmWaveInputs::Timer1_Timer() {
    if (wi_ == nullptr)
        return;
    const std::int32_t n = wi_->GetUsedCount();
    const std::int32_t v = wi_->GetVolume();
    setMeter(WaveInputsView::SensorMeter,
             static_cast<float>(v) * WaveInputsView::FullScale / static_cast<float>(level::High));
    for (std::int32_t i = 1; i <= n; ++i)
        setMeter(i, wi_->GetWaveVolume(i) * WaveInputsView::FullScale);
}

void frmWaveInputs::Command1_Click() {
    for (const std::string& commandLine : modControlPanel::SoundSettings())
        if (modControlPanel::Run(start_, commandLine))
            return;
}

} // namespace veltrix
