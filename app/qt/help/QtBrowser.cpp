#include "app/qt/help/QtBrowser.h"

#include "app/qt/help/FindBar.h"
#include "app/qt/help/PageView.h"

#include <QShortcut>
#include <QUrl>
#include <QVBoxLayout>

namespace veltrix {

QtBrowser::QtBrowser(QWidget* parent)
    : QWidget(parent), page_(new PageView(this)), find_(new FindBar(*page_, this)) {
    setObjectName("browser");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(page_, 1);
    column->addWidget(find_);
    setFocusProxy(page_);
    addShortcuts();
    connect(page_, &PageView::WebLinkClicked, this, &QtBrowser::WebLinkClicked);
    connect(page_, &PageView::FindWanted, find_, &FindBar::Open);
    hide();
}

void QtBrowser::Navigate(const std::string& address) {
    page_->Open(QUrl::fromLocalFile(QString::fromStdString(address)));
}

void QtBrowser::SetVisible(bool Visible) {
    setVisible(Visible);
    if (Visible)
        setFocus();
}

void QtBrowser::Move(std::int32_t Left, std::int32_t Top, std::int32_t Width, std::int32_t Height) {
    setGeometry(Left, Top, Width, Height);
}

void QtBrowser::addShortcuts() {
    const auto add = [this](const char* keys, auto* receiver, auto action) {
        connect(new QShortcut(QKeySequence(keys), this), &QShortcut::activated, receiver, action);
    };
    add("Ctrl+F", find_, &FindBar::Open);
    add("F3", find_, &FindBar::FindNext);
    add("Shift+F3", find_, &FindBar::FindPrevious);
    add("Ctrl++", page_, &PageView::ZoomIn);
    add("Ctrl+=", page_, &PageView::ZoomIn); // the same key without Shift
    add("Ctrl+-", page_, &PageView::ZoomOut);
    add("Ctrl+0", page_, &PageView::ZoomReset);
}

} // namespace veltrix
