#pragma once

#include <QWidget>

namespace veltrix {

/// A bar that shows how loud something is. It follows its level smoothly: quick to rise, slower to
/// fall, so that the eye sees a short sound.
class VolumeMeter : public QWidget {
    Q_OBJECT

public:
    /// An empty meter. `fullScale` is the width of the longest bar in pixels.
    explicit VolumeMeter(int fullScale, QWidget* parent = nullptr);

    /// The level as a width in pixels; more than full scale is shown as full scale.
    void SetLevel(float width, bool visible);

    /// The width that the bar moves to.
    [[nodiscard]] double Level() const noexcept { return level_; }

    /// The width that it has by now.
    [[nodiscard]] double Shown() const noexcept { return shown_; }

    /// Moves the bar on by one step; to be called every 10 ms.
    void Step();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QRectF bar(double width) const;

    int fullScale_;
    double level_ = 0; // pixels
    double shown_ = 0;
};

} // namespace veltrix
