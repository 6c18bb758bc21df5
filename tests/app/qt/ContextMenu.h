#pragma once

#include "tests/app/qt/WaitUntil.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>

namespace veltrix::test {

/// Opens a widget's menu as the right mouse button does, does something with it and closes it.
inline void withContextMenu(QWidget& widget, const std::function<void(QMenu&)>& act) {
    bool seen = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr)
            return;
        look.stop();
        act(*menu);
        menu->close();
        seen = true;
    });
    look.start(1);
    const QPoint middle = widget.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, widget.mapToGlobal(middle));
    QApplication::sendEvent(&widget, &event);
    EXPECT_TRUE(waitUntil([&] { return seen; }));
}

} // namespace veltrix::test
