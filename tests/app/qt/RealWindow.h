#pragma once

#include "app/qt/QtAboutWindow.h"
#include "app/qt/QtDialogs.h"
#include "app/qt/QtMainWindow.h"
#include "app/qt/QtPlatform.h"
#include "app/qt/help/QtHelpWindow.h"
#include "tests/app/qt/BoxAnswers.h"
#include "tests/app/qt/WaitUntil.h"
#include "tests/support/Folders.h"
#include "tests/support/MemoryDesktop.h"
#include "tests/support/TempFolder.h"

#include <QAction>
#include <QBackingStore>
#include <QImage>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QWindow>

#include <optional>
#include <stdexcept>
#include <string>

namespace veltrix::test {

/// The main window, on a screen that may have another scale than the one it is on.
class ScaledWindow : public QtMainWindow {
public:
    using QtMainWindow::QtMainWindow;

    [[nodiscard]] double Scale() const override {
        return ScreenScale.value_or(QtMainWindow::Scale());
    }

    std::optional<double> ScreenScale;
};

/// The real window with the whole program behind it, put together as main does. Only what would
/// make one run differ from the next is memory: the clock, which the test turns, and the sound.
/// The test is the user: it clicks snaps by name, chooses menu items and answers boxes.
struct RealWindow {
    RealWindow() { program.folder = ApplicationFolder(); }

    BoxAnswers answers;
    FakeProgram program;
    FakeTickTimer timer;
    FakeClock clock;
    FakeSoundInputs sound;
    FakeWaveInputsViews waveInputs;
    FakeProgramStart programs;
    FakeShell shell;
    FakeFileTypes fileTypes;
    FakeSoundPlayer player;
    KeptLog log;
    ScaledWindow window{ApplicationFolder()};
    QtMessageBox messages{window};
    QtFileDialog files{window};
    QtFaultNotice notice{window};
    QtAboutWindows aboutWindows{window, program.folder};
    QtHelpWindows helpWindows{program.folder};
    QtPointer pointer{window.Surface(), *window.menuBar()};
    FORM1 form{{window, program, window, window, messages, files, timer, clock, pointer,
                sound.Captures(), sound.settings, waveInputs, programs, aboutWindows, helpWindows,
                shell, fileTypes, player, log}};
    EventEdge edge{form, messages, notice, log};
    int ticks = 0;

    void Load(const std::string& commandLine = {}) {
        program.commandLine = commandLine;
        window.Connect(form, edge);
        edge.Command([](FORM1& starting) { starting.Form_Load(); });
    }

    void Start(const std::string& commandLine = {}) {
        Load(commandLine);
        if (!QTest::qWaitForWindowExposed(&window, 60000))
            throw std::runtime_error("the window does not show");
    }

    void RunTicks(int count) {
        for (int i = 0; i < count; ++i) {
            ++ticks;
            clock.now = static_cast<float>(ticks / 100.0);
            edge.Tick();
            window.Surface().ShowChanges();
            QCoreApplication::processEvents();
        }
    }

    // The menu

    [[nodiscard]] QAction& Item(const char* name) const {
        auto* item = window.findChild<QAction*>(name);
        if (item == nullptr)
            throw std::invalid_argument(std::string("no menu item ") + name);
        return *item;
    }

    /// Chooses an item, which must be enabled.
    void Choose(const char* name) {
        EXPECT_TRUE(Item(name).isEnabled()) << name;
        Item(name).trigger();
    }

    // The mouse, which enters by the window as the desktop's does

    [[nodiscard]] QPoint InWindow(const std::string& snap) const {
        const Point place = at(form.TheBoard(), snap);
        return QPoint(place.x, place.y + window.menuBar()->height());
    }

    void MoveTo(const std::string& snap) {
        // A pointer that is there already would make no event.
        QTest::mouseMove(window.windowHandle(), InWindow(snap) + QPoint(1, 1));
        QTest::mouseMove(window.windowHandle(), InWindow(snap));
    }

    void Press(const std::string& snap, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(window.windowHandle(), button, {}, InWindow(snap));
    }

    void Release(const std::string& snap, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseRelease(window.windowHandle(), button, {}, InWindow(snap));
    }

    void Click(const std::string& snap, Qt::MouseButton button = Qt::LeftButton) {
        MoveTo(snap);
        Press(snap, button);
        Release(snap, button);
    }

    void DrawWire(const std::string& from, const std::string& to) {
        Click(from);
        Click(to);
    }

    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        // Without a window manager nobody gives the keyboard back after a dialog.
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window, 60000));
        QTest::keyClick(window.windowHandle(), key, modifiers);
    }

    // What is there to see

    [[nodiscard]] std::int32_t Wires() const { return form.TheBoard().Lines.Count(); }

    [[nodiscard]] const std::array<clsLED, 2>& PushButtons() const {
        return form.TheBoard().PushButtons;
    }

    /// The pixels of the window, as they are handed to the screen.
    [[nodiscard]] QImage OnScreen() const {
        QPaintDevice* pixels = window.backingStore()->paintDevice();
        if (pixels->devType() != QInternal::Image)
            throw std::runtime_error("the window is not painted in memory");
        QImage image = static_cast<QImage*>(pixels)->convertToFormat(QImage::Format_RGB32);
        image.setDevicePixelRatio(1);
        return image;
    }

    /// The surface's picture of the board.
    [[nodiscard]] QImage Frame() const {
        const Picture& frame = form.Pictor1.Frame();
        return QImage(reinterpret_cast<const uchar*>(frame.pixels.data()), frame.width,
                      frame.height, qsizetype{frame.width} * 4, QImage::Format_RGB32)
            .copy();
    }
};

} // namespace veltrix::test
