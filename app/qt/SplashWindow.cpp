#include "app/qt/SplashWindow.h"

#include "app/qt/QtPictures.h"

#include <QCoreApplication>
#include <QLabel>
#include <QTimer>

namespace veltrix {

namespace {

constexpr int side = 300;     // pixels
constexpr int patience = 100; // ms

} // namespace

SplashWindow::SplashWindow(const std::filesystem::path& applicationFolder)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setObjectName("frmSplash");
    setFixedSize(side, side);
    // Dark as the picture is where the text stands, which must be readable without it too.
    setPalette(QColor(0x2b, 0x30, 0x38));
    auto* picture = new QLabel(this);
    picture->setObjectName("picSplash");
    picture->setGeometry(0, 0, side, side);
    picture->setPixmap(LoadPixmap(applicationFolder, "\\images2\\splash.bmp", devicePixelRatioF()));
    auto* text = new QLabel("Loading...", this);
    text->setObjectName("Label1");
    text->setGeometry(0, side - 40, side, 40);
    text->setAlignment(Qt::AlignCenter);
    text->setStyleSheet("color: white");
    CentreOnScreen(*this);
}

void SplashWindow::ShowPainted() {
    show();
    QTimer limit;
    limit.setSingleShot(true);
    limit.start(patience);
    while (!painted_ && limit.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents |
                                        QEventLoop::ExcludeUserInputEvents);
}

void SplashWindow::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    painted_ = true;
}

} // namespace veltrix
