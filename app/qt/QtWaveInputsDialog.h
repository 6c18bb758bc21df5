#pragma once

#include "app/frmWaveInputs.h"

#include <QDialog>
#include <QTimer>

#include <array>
#include <memory>

class QGridLayout;
class QLabel;
class QWidget;

namespace veltrix {

class VolumeMeter;

/// What is seen of the dialog "Geluid Sensor".
class QtWaveInputsDialog : public QDialog, public WaveInputsView {
    Q_OBJECT

public:
    explicit QtWaveInputsDialog(QWidget* parent);

    void SetInputCount(const std::string& caption) override;
    void SetName(std::int32_t i, const std::string& caption) override;
    void SetMeter(std::int32_t i, float width, bool visible) override;
    void ShowModal(frmWaveInputs& dialog) override;

    void Unload() override { accept(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void addMeter(QGridLayout& rows, int row, const QString& caption, std::int32_t i);

    QLabel* inputCount_ = nullptr;
    std::array<QLabel*, UCWaveIn::Inputs> names_{};
    std::array<VolumeMeter*, WaveInputsView::SensorMeter> meters_{};
    QTimer timer1_;
    frmWaveInputs* dialog_ = nullptr;
};

/// Makes the dialog over the main window.
class QtWaveInputsDialogs : public WaveInputsViews {
public:
    explicit QtWaveInputsDialogs(QWidget& parent) : parent_(parent) {}

    std::unique_ptr<WaveInputsView> Create() override {
        return std::make_unique<QtWaveInputsDialog>(&parent_);
    }

private:
    QWidget& parent_;
};

} // namespace veltrix
