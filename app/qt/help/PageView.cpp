#include "app/qt/help/PageView.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QScrollBar>
#include <QTextDocument>
#include <QUrl>
#include <QWheelEvent>

#include <algorithm>
#include <iterator>

namespace veltrix {

namespace {

constexpr double pointSize = 11; // of the text at 100 percent
constexpr int margin = 18;       // pixels around the text
constexpr int zooms[] = {60, 70, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300};
constexpr int wheelStep = 120; // eighths of a degree

QString missingPage(const QString& path) {
    const QFileInfo file(path);
    return QString("<h1>Deze bladzijde is er niet</h1>"
                   "<p>Het programma zocht de bladzijde <b>%1</b> in de map <b>%2</b>, maar daar "
                   "staat die niet.</p>"
                   "<p>Misschien is het programma niet helemaal gekopieerd: de map <b>html</b> "
                   "hoort naast het programma te staan. Installeer het opnieuw, of vraag het aan "
                   "degene die de computer beheert. Het bord zelf werkt ook zonder uitleg.</p>")
        .arg(file.fileName().toHtmlEscaped(), file.path().toHtmlEscaped());
}

/// Colours that a page can count on.
QPalette paper(QPalette palette) {
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, QColor(0x22, 0x26, 0x2b));
    palette.setColor(QPalette::Link, QColor(0x1d, 0x5a, 0xa6));
    palette.setColor(QPalette::LinkVisited, QColor(0x1d, 0x5a, 0xa6));
    palette.setColor(QPalette::Highlight, QColor(0xff, 0xd4, 0x2a));
    palette.setColor(QPalette::HighlightedText, QColor(0x22, 0x26, 0x2b));
    return palette;
}

} // namespace

PageView::PageView(QWidget* parent) : QTextBrowser(parent) {
    setObjectName("page");
    setFrameShape(QFrame::NoFrame);
    setOpenLinks(false);
    setPalette(paper(palette()));
    document()->setDocumentMargin(margin);
    setZoom(zoom_);
    connect(this, &QTextBrowser::anchorClicked, this, &PageView::follow);
}

void PageView::Open(const QUrl& page) {
    if (source() == page)
        reload();
    else
        setSource(page);
    verticalScrollBar()->setValue(0);
}

void PageView::ZoomIn() {
    const auto* larger = std::upper_bound(std::begin(zooms), std::end(zooms), zoom_);
    if (larger != std::end(zooms))
        setZoom(*larger);
}

void PageView::ZoomOut() {
    const auto* same = std::lower_bound(std::begin(zooms), std::end(zooms), zoom_);
    if (same != std::begin(zooms))
        setZoom(*std::prev(same));
}

void PageView::ZoomReset() {
    setZoom(100);
}

QVariant PageView::loadResource(int type, const QUrl& name) {
    const QUrl url = source().resolved(name);
    if (type != QTextDocument::HtmlResource)
        return url.isLocalFile() ? QTextBrowser::loadResource(type, url) : QVariant();
    QFile file(url.toLocalFile());
    if (!url.isLocalFile() || !file.open(QIODevice::ReadOnly))
        return missingPage(url.isLocalFile() ? url.toLocalFile() : url.toString());
    return file.readAll();
}

void PageView::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    QAction* back = menu.addAction("Terug", this, &QTextBrowser::backward);
    back->setShortcut(QKeySequence("Alt+Left"));
    back->setEnabled(isBackwardAvailable());
    QAction* forward = menu.addAction("Vooruit", this, &QTextBrowser::forward);
    forward->setShortcut(QKeySequence("Alt+Right"));
    forward->setEnabled(isForwardAvailable());
    menu.addSeparator();
    QAction* copy = menu.addAction("Kopiëren", this, &QTextEdit::copy);
    copy->setShortcut(QKeySequence::Copy);
    copy->setEnabled(textCursor().hasSelection());
    menu.addAction("Alles selecteren", this, &QTextEdit::selectAll)
        ->setShortcut(QKeySequence::SelectAll);
    menu.addSeparator();
    menu.addAction("Zoeken...", this, &PageView::FindWanted)->setShortcut(QKeySequence("Ctrl+F"));
    menu.addAction("Groter", this, &PageView::ZoomIn)->setShortcut(QKeySequence("Ctrl++"));
    menu.addAction("Kleiner", this, &PageView::ZoomOut)->setShortcut(QKeySequence("Ctrl+-"));
    menu.addAction("Normale grootte", this, &PageView::ZoomReset)
        ->setShortcut(QKeySequence("Ctrl+0"));
    menu.exec(event->globalPos());
}

void PageView::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QTextBrowser::wheelEvent(event);
        return;
    }
    event->accept();
    // A fine wheel turns in parts of a step.
    for (wheel_ += event->angleDelta().y(); wheel_ >= wheelStep; wheel_ -= wheelStep)
        ZoomIn();
    for (; wheel_ <= -wheelStep; wheel_ += wheelStep)
        ZoomOut();
}

void PageView::follow(const QUrl& link) {
    const QUrl url = source().resolved(link);
    if (url.isLocalFile())
        setSource(url);
    else if (url.scheme() == "http" || url.scheme() == "https" || url.scheme() == "mailto")
        emit WebLinkClicked(url);
}

void PageView::setZoom(int percent) {
    zoom_ = percent;
    const QTextCursor top = cursorForPosition(QPoint(0, 0));
    const int before = cursorRect(top).top();
    QFont larger = font();
    larger.setPointSizeF(pointSize * percent / 100);
    setFont(larger);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(top).top() - before);
}

} // namespace veltrix
