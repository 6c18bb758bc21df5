#include "app/qt/QtWaveInputsDialog.h"

#include "app/qt/QtPictures.h"
#include "app/qt/VolumeMeter.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace veltrix {

namespace {

constexpr int nameWidth = 240; // pixels; a longer name is shown shortened

/// A line of text that is shortened in its middle where there is no room for all of it: the end of
/// a name tells whether the input can be used.
class ShortenedLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        style()->drawItemText(
            &painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
            fontMetrics().elidedText(text(), Qt::ElideMiddle, width()), foregroundRole());
    }
};

} // namespace

QtWaveInputsDialog::QtWaveInputsDialog(QWidget* parent)
    : QDialog(parent, Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint) {
    setObjectName("frmWaveInputs");
    setWindowTitle("Geluid Sensor");

    inputCount_ = new QLabel(this);
    inputCount_->setObjectName("labInputCount");

    auto* rows = new QGridLayout;
    rows->setHorizontalSpacing(12);
    rows->setVerticalSpacing(8);
    for (std::int32_t i = 1; i <= UCWaveIn::Inputs; ++i) {
        addMeter(*rows, i - 1, QString("Input #%1").arg(i), i);
        auto* name = new ShortenedLabel(this);
        name->setObjectName(QString("Label3_%1").arg(i));
        name->setTextFormat(Qt::PlainText);
        name->setForegroundRole(QPalette::PlaceholderText); // grey on any background
        name->setFixedWidth(nameWidth);
        rows->addWidget(name, i - 1, 2);
        names_[static_cast<std::size_t>(i - 1)] = name;
    }
    auto* line = new QFrame(this);
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    rows->addWidget(line, UCWaveIn::Inputs, 0, 1, 3);
    addMeter(*rows, UCWaveIn::Inputs + 1, "Geluids-sensor", SensorMeter);

    auto* settings = new QPushButton("Windows Sound Settings", this);
    settings->setObjectName("Command1");
    settings->setAutoDefault(false);
    connect(settings, &QPushButton::clicked, this, [this] { dialog_->Command1_Click(); });
    auto* ok = new QPushButton("OK", this);
    ok->setObjectName("btnOK");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, [this] { dialog_->btnOK_Click(); });
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(settings);
    buttons->addStretch();
    buttons->addWidget(ok);

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(18, 16, 18, 16);
    all->setSpacing(14);
    all->addWidget(inputCount_);
    all->addLayout(rows);
    all->addLayout(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);
    ok->setFocus();

    timer1_.setTimerType(Qt::PreciseTimer);
    timer1_.setInterval(frmWaveInputs::Interval);
}

void QtWaveInputsDialog::addMeter(QGridLayout& rows, int row, const QString& caption,
                                  std::int32_t i) {
    auto* label = new QLabel(caption, this);
    label->setObjectName(QString("Label2_%1").arg(i - 1));
    rows.addWidget(label, row, 0);
    auto* meter = new VolumeMeter(static_cast<int>(FullScale), this);
    meter->setObjectName(QString("picVolume_%1").arg(i));
    meter->setAccessibleName(caption);
    rows.addWidget(meter, row, 1, Qt::AlignVCenter);
    meters_[static_cast<std::size_t>(i - 1)] = meter;
}

void QtWaveInputsDialog::SetInputCount(const std::string& caption) {
    inputCount_->setText(QString::fromStdString(caption));
}

void QtWaveInputsDialog::SetName(std::int32_t i, const std::string& caption) {
    QLabel& name = *names_.at(static_cast<std::size_t>(i - 1));
    const QString text = QString::fromStdString(caption);
    name.setText(text);
    name.setToolTip(name.fontMetrics().horizontalAdvance(text) > nameWidth ? text : QString());
}

void QtWaveInputsDialog::SetMeter(std::int32_t i, float width, bool visible) {
    meters_.at(static_cast<std::size_t>(i - 1))->SetLevel(width, visible);
}

void QtWaveInputsDialog::ShowModal(frmWaveInputs& dialog) {
    dialog_ = &dialog;
    connect(&timer1_, &QTimer::timeout, this, [this] {
        dialog_->Timer1_Timer();
        for (VolumeMeter* meter : meters_)
            meter->Step();
    });
    timer1_.start();
    adjustSize();
    CentreOnScreen(*this);
    exec();
    timer1_.stop();
}

void QtWaveInputsDialog::paintEvent(QPaintEvent* event) {
    QDialog::paintEvent(event);
    // Sound that spreads from the lower right corner, faint enough to read over.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor colour = palette().color(QPalette::Highlight);
    for (int radius = 40; radius < width(); radius += 28) {
        colour.setAlphaF(static_cast<float>(0.10 * (1.0 - static_cast<double>(radius) / width())));
        painter.setPen(QPen(colour, 10));
        painter.drawEllipse(QPointF(width(), height()), radius, radius);
    }
}

} // namespace veltrix
