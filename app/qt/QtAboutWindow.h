#pragma once

#include "app/frmAbout.h"

#include <QDialog>

#include <filesystem>
#include <memory>

class QLabel;

namespace veltrix {

/// What is seen of the window "Over Veltrix Simulator versie 2": a picture without a frame, and a
/// button on it.
class QtAboutWindow : public QDialog, public AboutView {
    Q_OBJECT

public:
    QtAboutWindow(QWidget* parent, const std::filesystem::path& applicationFolder);

    void SetPicture(const std::string& name) override;
    void ShowModal(frmAbout& about) override;

    void Unload() override { accept(); }

private:
    const std::filesystem::path& applicationFolder_;
    QLabel* picSplash_ = nullptr;
    frmAbout* about_ = nullptr;
};

/// Makes the window over the main window.
class QtAboutWindows : public AboutViews {
public:
    QtAboutWindows(QWidget& parent, const std::filesystem::path& applicationFolder)
        : parent_(parent), applicationFolder_(applicationFolder) {}

    std::unique_ptr<AboutView> Create() override {
        return std::make_unique<QtAboutWindow>(&parent_, applicationFolder_);
    }

private:
    QWidget& parent_;
    const std::filesystem::path& applicationFolder_;
};

} // namespace veltrix
