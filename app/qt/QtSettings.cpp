#include "app/qt/QtSettings.h"

#include <QSettings>

namespace veltrix {

std::string QtSettings::Get(const std::string& application, const std::string& section,
                            const std::string& key, const std::string& standard) {
    QSettings settings(QSettings::NativeFormat, QSettings::UserScope,
                       QString::fromStdString(application));
    settings.setFallbacksEnabled(false);
    return settings
        .value(QString::fromStdString(section + "/" + key), QString::fromStdString(standard))
        .toString()
        .toStdString();
}

} // namespace veltrix
