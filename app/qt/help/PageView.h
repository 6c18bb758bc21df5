#pragma once

#include <QTextBrowser>

namespace veltrix {

/// Shows pages of this computer and nothing else: what lies on the network is neither loaded nor
/// shown, no script runs, and in the place of a page that is not there stands one that says so.
/// Pages have dark text on white, whatever the colours of the desktop.
class PageView : public QTextBrowser {
    Q_OBJECT

public:
    explicit PageView(QWidget* parent = nullptr);

    /// Shows a page from its beginning.
    void Open(const QUrl& page);

    /// How large the text is, in percent of the usual.
    [[nodiscard]] int Zoom() const noexcept { return zoom_; }

    // The next larger and smaller size, and the usual one. The text that was at the top stays
    // there.
    void ZoomIn();
    void ZoomOut();
    void ZoomReset();

signals:
    /// The user follows a link to the internet.
    void WebLinkClicked(const QUrl& address);

    /// The user wants to look for a word.
    void FindWanted();

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void follow(const QUrl& link);
    void setZoom(int percent);

    int zoom_ = 100;
    int wheel_ = 0; ///< turned since the last step, in eighths of a degree
};

} // namespace veltrix
