#pragma once

#include <QEvent>
#include <QObject>
#include <QPaintEvent>
#include <QRegion>
#include <QWidget>

namespace veltrix::test {

/// Sees what is painted of a widget from now on.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    int Times = 0;
    QRegion Region;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            ++Times;
            Region += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }
};

} // namespace veltrix::test
