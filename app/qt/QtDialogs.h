#pragma once

#include "app/EventEdge.h"
#include "document/Dialogs.h"

#include <QPointer>

#include <optional>
#include <string>

class QMessageBox;
class QWidget;

namespace veltrix {

/// Message boxes with Dutch buttons.
class QtMessageBox : public MessageBox {
public:
    explicit QtMessageBox(QWidget& parent) : parent_(parent) {}

    Answer Show(const std::string& text, const std::string& title, Buttons buttons,
                Icon icon = Icon::None) override;

private:
    QWidget& parent_;
};

/// The desktop's own file dialogs.
class QtFileDialog : public FileDialog {
public:
    explicit QtFileDialog(QWidget& parent) : parent_(parent) {}

    std::optional<std::string> ShowOpen(const std::string& filter) override;
    std::optional<std::string> ShowSave(const std::string& filter) override;

private:
    QWidget& parent_;
};

/// A box that tells of a fault while the board runs on behind it; at most one at a time.
class QtFaultNotice : public FaultNotice {
public:
    explicit QtFaultNotice(QWidget& parent) : parent_(parent) {}

    void Show(const std::string& text) override;

private:
    QWidget& parent_;
    QPointer<QMessageBox> box_;
};

} // namespace veltrix
