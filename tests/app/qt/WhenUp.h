#pragma once

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace veltrix::test {

/// Does something with the next dialog that is up before all others, and sees that it is closed by
/// that. To be there before the dialog, whose event loop does not return.
template <typename Dialog>
class WhenUp {
public:
    explicit WhenUp(std::function<void(Dialog&)> act) : act_(std::move(act)) {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
        timer_.start(1);
    }

    WhenUp(const WhenUp&) = delete;
    WhenUp& operator=(const WhenUp&) = delete;

    ~WhenUp() { EXPECT_FALSE(timer_.isActive()) << "the dialog never opened"; }

private:
    void look() {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || dialog == before_ || !dialog->isVisible())
            return;
        timer_.stop();
        const QPointer<Dialog> acted = dialog;
        act_(*dialog);
        if (acted != nullptr && acted->isVisible()) {
            ADD_FAILURE() << "the test leaves the dialog open";
            acted->close();
        }
    }

    std::function<void(Dialog&)> act_;
    QPointer<QWidget> before_ = QApplication::activeModalWidget();
    QTimer timer_;
};

} // namespace veltrix::test
