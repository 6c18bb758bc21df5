#pragma once

#include "app/EventEdge.h"

#include <QWidget>

namespace veltrix {

/// Shows the surface's frame pixel for pixel, whatever the screen's scale, and hands mouse events
/// to the program in board pixels.
class BoardWidget : public QWidget {
    Q_OBJECT

public:
    explicit BoardWidget(QWidget* parent = nullptr);

    /// From now on the widget shows this program's surface. Both must outlive the widget's events.
    void Connect(FORM1& form, EventEdge& edge);

    /// Repaints what the last Refresh of the surface changed.
    void ShowChanges();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void matchScale();
    void showShape(PointerShape shape);

    FORM1* form_ = nullptr;
    EventEdge* edge_ = nullptr;
    PointerShape shape_ = PointerShape::Arrow;
};

} // namespace veltrix
