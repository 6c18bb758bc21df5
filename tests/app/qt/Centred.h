#pragma once

#include <QPoint>
#include <QScreen>
#include <QWidget>

#include <gtest/gtest.h>

#include <cstdlib>

namespace veltrix::test {

/// Whether a window stands in the middle of its screen, but for this many pixels each way: what
/// frame the desktop puts around it is not known beforehand.
inline testing::AssertionResult centred(const QWidget& window, int frame = 1) {
    const QPoint off = window.geometry().center() - window.screen()->availableGeometry().center();
    if (std::abs(off.x()) <= frame && std::abs(off.y()) <= frame)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "off by " << off.x() << ", " << off.y();
}

} // namespace veltrix::test
