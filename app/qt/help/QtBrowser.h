#pragma once

#include "app/Browser.h"

#include <QWidget>

namespace veltrix {

class FindBar;
class PageView;

/// Shows pages of this computer; words can be looked for in them, and the text made larger. A link
/// to the internet is only told of.
class QtBrowser : public QWidget, public Browser {
    Q_OBJECT

public:
    /// Invisible at first.
    explicit QtBrowser(QWidget* parent);

    void Navigate(const std::string& address) override;
    void SetVisible(bool Visible) override;
    void Move(std::int32_t Left, std::int32_t Top, std::int32_t Width,
              std::int32_t Height) override;

signals:
    void WebLinkClicked(const QUrl& address);

private:
    void addShortcuts();

    PageView* page_ = nullptr;
    FindBar* find_ = nullptr;
};

} // namespace veltrix
