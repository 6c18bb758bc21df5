#include "app/qt/BoardWidget.h"

#include <QImage>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <cmath>
#include <optional>

namespace veltrix {

namespace {

std::optional<MouseButton> buttonOf(Qt::MouseButton button) {
    if (button == Qt::LeftButton)
        return MouseButton::Left;
    if (button == Qt::RightButton)
        return MouseButton::Right;
    return std::nullopt;
}

/// The board pixel that a position lies in; screens with a scale report parts of one.
Point boardPixel(QPointF position) {
    return {static_cast<std::int32_t>(std::floor(position.x())),
            static_cast<std::int32_t>(std::floor(position.y()))};
}

} // namespace

BoardWidget::BoardWidget(QWidget* parent) : QWidget(parent) {
    setObjectName("Pictor1");
    setAccessibleName("Veltrix-bord");
    setFixedSize(Board::Width, Board::Height);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void BoardWidget::Connect(FORM1& form, EventEdge& edge) {
    form_ = &form;
    edge_ = &edge;
}

void BoardWidget::ShowChanges() {
    const double scale = form_->Pictor1.Scale();
    for (const Rect& rect : form_->Pictor1.Changed()) {
        const QRectF area(rect.x / scale, rect.y / scale, rect.width / scale, rect.height / scale);
        update(area.toAlignedRect());
    }
}

void BoardWidget::paintEvent(QPaintEvent* event) {
    if (form_ == nullptr)
        return;
    matchScale();
    const Picture& frame = form_->Pictor1.Frame();
    if (frame.Empty())
        return;
    QImage image(reinterpret_cast<const uchar*>(frame.pixels.data()), frame.width, frame.height,
                 qsizetype{frame.width} * 4, QImage::Format_RGB32);
    image.setDevicePixelRatio(form_->Pictor1.Scale());
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawImage(0, 0, image);
}

void BoardWidget::matchScale() {
    // Asked when painting, because a window learns of another screen's scale in more ways than
    // there are signals.
    if (form_->Pictor1.Scale() == devicePixelRatioF())
        return;
    edge_->Quietly([this](FORM1& form) {
        form.Pictor1.Restart(devicePixelRatioF());
        form.Pictor1.Refresh();
    });
    // A scale that the surface refuses must not have the board painted over and over.
    if (form_->Pictor1.Scale() == devicePixelRatioF())
        update();
}

void BoardWidget::mousePressEvent(QMouseEvent* event) {
    const auto button = buttonOf(event->button());
    if (form_ == nullptr || !button)
        return;
    const Point at = boardPixel(event->position());
    edge_->Quietly([&](FORM1& form) { form.Pictor1_MouseDown(*button, at.x, at.y); });
    edge_->Quietly([&](FORM1& form) { showShape(form.Pictor1_ShapeAt(at.x, at.y)); });
}

void BoardWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    // Two quick clicks on a push button press and release it.
    mousePressEvent(event);
}

void BoardWidget::mouseReleaseEvent(QMouseEvent* event) {
    const auto button = buttonOf(event->button());
    if (form_ == nullptr || !button)
        return;
    const Point at = boardPixel(event->position());
    edge_->Quietly([&](FORM1& form) { form.Pictor1_MouseUp(*button, at.x, at.y); });
}

void BoardWidget::mouseMoveEvent(QMouseEvent* event) {
    if (form_ == nullptr)
        return;
    const Point at = boardPixel(event->position());
    edge_->Quietly([&](FORM1& form) { form.Pictor1_MouseMove(at.x, at.y); });
    edge_->Quietly([&](FORM1& form) { showShape(form.Pictor1_ShapeAt(at.x, at.y)); });
}

void BoardWidget::leaveEvent(QEvent* event) {
    if (form_ != nullptr)
        edge_->Quietly([](FORM1& form) { form.Pictor1_MouseLeave(); });
    QWidget::leaveEvent(event);
}

void BoardWidget::showShape(PointerShape shape) {
    if (shape == shape_)
        return;
    shape_ = shape;
    switch (shape) {
    case PointerShape::Arrow:
        unsetCursor();
        break;
    case PointerShape::Hand:
        setCursor(Qt::PointingHandCursor);
        break;
    case PointerShape::Cross:
        setCursor(Qt::CrossCursor);
        break;
    }
}

} // namespace veltrix
