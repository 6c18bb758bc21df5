#include "app/qt/help/QtHelpWindow.h"

#include "app/qt/QtPictures.h"
#include "app/qt/help/QtBrowser.h"

#include <QCloseEvent>
#include <QUrl>

namespace veltrix {

namespace {

constexpr QSize inside(686, 418); // pixels
constexpr QSize smallest(280, 160);

} // namespace

QtHelpWindow::QtHelpWindow(frmHelp& help, const QIcon& icon)
    : QWidget(nullptr, Qt::Window), help_(help) {
    setObjectName("frmHelp");
    setWindowTitle("Hulp");
    setWindowIcon(icon);
    setMinimumSize(smallest);
    resize(inside);
    CentreOnScreen(*this);
}

std::unique_ptr<Browser> QtHelpWindow::AddBrowser() {
    auto browser = std::make_unique<QtBrowser>(this);
    connect(browser.get(), &QtBrowser::WebLinkClicked, this, [this](const QUrl& address) {
        help_.WebLink_Click(address.toString(QUrl::FullyEncoded).toStdString());
    });
    return browser;
}

void QtHelpWindow::Show() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void QtHelpWindow::closeEvent(QCloseEvent* event) {
    help_.Form_Unload();
    event->accept();
}

void QtHelpWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    help_.Form_Resize();
}

std::unique_ptr<HelpView> QtHelpWindows::Create(frmHelp& help) {
    return std::make_unique<QtHelpWindow>(
        help, LoadIcon(applicationFolder_, "\\images2\\help", {16, 24, 32, 48, 64}));
}

} // namespace veltrix
