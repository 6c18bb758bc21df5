#pragma once

#include <QWidget>

#include <filesystem>

namespace veltrix {

/// The window that is seen while the program starts. Without its picture it has its words alone: a
/// missing picture must not keep the board from starting.
class SplashWindow : public QWidget {
    Q_OBJECT

public:
    explicit SplashWindow(const std::filesystem::path& applicationFolder);

    /// Shows the window and returns when it has been painted, so that it is seen although what
    /// comes next lets no event through. Does not wait long for a desktop that is not ready.
    void ShowPainted();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool painted_ = false;
};

} // namespace veltrix
