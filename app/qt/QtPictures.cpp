#include "app/qt/QtPictures.h"

#include "board/AppPath.h"

#include <QScreen>
#include <QWidget>

namespace veltrix {

QPixmap LoadPixmap(const std::filesystem::path& applicationFolder, const std::string& name,
                   double scale) {
    const int pixels = scale <= 1 ? 1 : scale <= 2 ? 2 : 3;
    std::string file = name;
    if (pixels > 1)
        file.insert(file.rfind('.'), "@" + std::to_string(pixels) + "x");
    QPixmap picture(QString::fromStdString(Utf8FromPath(AppPath(applicationFolder, file))));
    if (picture.isNull() && pixels > 1)
        return LoadPixmap(applicationFolder, name, 1);
    picture.setDevicePixelRatio(pixels);
    return picture;
}

QIcon LoadIcon(const std::filesystem::path& applicationFolder, const std::string& name,
               std::initializer_list<int> sizes) {
    QIcon icon;
    for (const int size : sizes)
        icon.addFile(QString::fromStdString(Utf8FromPath(
                         AppPath(applicationFolder, name + "-" + std::to_string(size) + ".png"))),
                     QSize(size, size));
    return icon;
}

void CentreOnScreen(QWidget& window) {
    const QRect screen = window.screen()->availableGeometry();
    window.move(screen.center() - QRect(QPoint(0, 0), window.frameGeometry().size()).center());
}

} // namespace veltrix
