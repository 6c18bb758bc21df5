#pragma once

#include <QIcon>
#include <QPixmap>

#include <filesystem>
#include <initializer_list>
#include <string>

class QWidget;

namespace veltrix {

/// The picture of a data file in the rendition that suits a screen of this scale; a null pixmap
/// when there is none.
[[nodiscard]] QPixmap LoadPixmap(const std::filesystem::path& applicationFolder,
                                 const std::string& name, double scale);

/// An icon of these sizes in pixels. `name` is that of its data files without size and ending:
/// "\\images2\\veltrix" for "\\images2\\veltrix-16.png" and so on. Sizes without a file are left
/// out.
[[nodiscard]] QIcon LoadIcon(const std::filesystem::path& applicationFolder,
                             const std::string& name, std::initializer_list<int> sizes);

/// Puts a window that is about to be shown in the middle of its screen.
void CentreOnScreen(QWidget& window);

} // namespace veltrix
