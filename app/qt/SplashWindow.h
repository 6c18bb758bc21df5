#pragma once

#include <QWidget>

#include <filesystem>

namespace veltrix {

/// The window that is seen while the program starts.
class SplashWindow : public QWidget {
    Q_OBJECT

public:
    explicit SplashWindow(const std::filesystem::path& applicationFolder);
};

} // namespace veltrix
