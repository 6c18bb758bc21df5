#pragma once

#include <QPixmap>

#include <filesystem>
#include <string>

class QWidget;

namespace veltrix {

/// The picture of a data file in the rendition that suits a screen of this scale; a null pixmap
/// when there is none.
[[nodiscard]] QPixmap LoadPixmap(const std::filesystem::path& applicationFolder,
                                 const std::string& name, double scale);

/// Puts a window that is about to be shown in the middle of its screen.
void CentreOnScreen(QWidget& window);

} // namespace veltrix
