#include "app/qt/QtAboutWindow.h"

#include "app/qt/QtPictures.h"

#include <QLabel>
#include <QPushButton>

#include <system_error>

namespace veltrix {

namespace {

constexpr int side = 300;      // pixels
constexpr int railHeight = 44; // what the picture leaves free for the button

} // namespace

QtAboutWindow::QtAboutWindow(QWidget* parent, const std::filesystem::path& applicationFolder)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint),
      applicationFolder_(applicationFolder),
      picSplash_(new QLabel(this)) {
    setObjectName("frmAbout");
    setWindowTitle("Over Veltrix Simulator versie 2");
    setFixedSize(side, side);
    picSplash_->setObjectName("picSplash");
    picSplash_->setGeometry(0, 0, side, side);

    auto* ok = new QPushButton("OK", this);
    ok->setObjectName("btnOK");
    ok->setDefault(true);
    const QSize size = ok->sizeHint();
    ok->setGeometry((side - size.width()) / 2, side - (railHeight + size.height()) / 2,
                    size.width(), size.height());
    connect(ok, &QPushButton::clicked, this, [this] { about_->btnOK_Click(); });
}

void QtAboutWindow::SetPicture(const std::string& name) {
    const QPixmap picture = LoadPixmap(applicationFolder_, name, devicePixelRatioF());
    if (picture.isNull())
        throw std::system_error(std::make_error_code(std::errc::no_such_file_or_directory));
    picSplash_->setPixmap(picture);
}

void QtAboutWindow::ShowModal(frmAbout& about) {
    about_ = &about;
    CentreOnScreen(*this);
    exec();
}

} // namespace veltrix
