#pragma once

#include "app/frmHelp.h"

#include <QIcon>
#include <QWidget>

#include <filesystem>
#include <memory>

namespace veltrix {

/// What is seen of the window "Hulp".
class QtHelpWindow : public QWidget, public HelpView {
    Q_OBJECT

public:
    /// `help` must outlive the window.
    QtHelpWindow(frmHelp& help, const QIcon& icon);

    std::unique_ptr<Browser> AddBrowser() override;
    void Show() override;

    [[nodiscard]] std::int32_t ScaleWidth() const override { return width(); }

    [[nodiscard]] std::int32_t ScaleHeight() const override { return height(); }

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    frmHelp& help_;
};

/// Makes the windows, with their icon out of the application folder.
class QtHelpWindows : public HelpViews {
public:
    explicit QtHelpWindows(const std::filesystem::path& applicationFolder)
        : applicationFolder_(applicationFolder) {}

    std::unique_ptr<HelpView> Create(frmHelp& help) override;

private:
    const std::filesystem::path& applicationFolder_;
};

} // namespace veltrix
