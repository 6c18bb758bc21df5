#include "tests/app/qt/Centred.h"
#include "tests/app/qt/RealWindow.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace veltrix::test {

namespace {

struct QtMainWindowTest : testing::Test, RealWindow {};

TEST_F(QtMainWindowTest, HasATitleBarThatOnlyCloses) {
    Start();
    const Qt::WindowFlags flags = window.windowFlags();
    EXPECT_EQ(flags & Qt::WindowType_Mask, Qt::Window);
    for (const auto flag : {Qt::CustomizeWindowHint, Qt::WindowTitleHint, Qt::WindowSystemMenuHint,
                            Qt::WindowCloseButtonHint, Qt::MSWindowsFixedSizeDialogHint})
        EXPECT_TRUE(flags & flag) << flag;
    for (const auto flag : {Qt::WindowMinimizeButtonHint, Qt::WindowMaximizeButtonHint,
                            Qt::WindowContextHelpButtonHint, Qt::FramelessWindowHint})
        EXPECT_FALSE(flags & flag) << flag;
}

TEST_F(QtMainWindowTest, ShowsTheBoardBelowItsMenuAndNothingElse) {
    Start();
    EXPECT_EQ(window.centralWidget(), &window.Surface());
    EXPECT_EQ(window.Surface().geometry(), QRect(0, window.menuBar()->height(), 415, 376));
    EXPECT_EQ(window.size(), QSize(415, 376 + window.menuBar()->height()));
}

TEST_F(QtMainWindowTest, CannotBeResized) {
    Start();
    const QSize size = window.size();
    EXPECT_EQ(window.minimumSize(), size);
    EXPECT_EQ(window.maximumSize(), size);
    window.resize(size * 2);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.size(), size);
    EXPECT_EQ(window.Surface().pos(), QPoint(0, window.menuBar()->height()));
}

TEST_F(QtMainWindowTest, OpensInTheMiddleOfTheScreen) {
    Start();
    const QSize frame = window.frameGeometry().size() - window.size(); // unknown before it shows
    EXPECT_TRUE(centred(window, 1 + std::max(frame.width(), frame.height())));
}

TEST_F(QtMainWindowTest, IsNotSeenBeforeTheSplashIsGone) {
    const auto splash = [] {
        for (const QWidget* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == "frmSplash" && widget->isVisible())
                return true;
        return false;
    };
    window.ShowSplash();
    EXPECT_TRUE(splash());
    EXPECT_FALSE(window.isVisible());
    Start(); // which shows one of its own
    EXPECT_FALSE(splash());
    EXPECT_TRUE(window.isVisible());
}

TEST_F(QtMainWindowTest, NeverShowsWhenTheSurfaceDoesNotStart) {
    window.ScreenScale = -1;
    answers.Press("OK");
    Load();
    ASSERT_EQ(answers.boxes.size(), 1U);
    EXPECT_EQ(answers.boxes[0].text, "Can't load Pictor");
    EXPECT_EQ(answers.boxes[0].title, "Error");
    EXPECT_EQ(program.ended, 1);
    EXPECT_FALSE(window.isVisible());
    QTest::mouseClick(&window.Surface(), Qt::LeftButton, {}, QPoint(30, 180));
    EXPECT_TRUE(window.close()) << "it has nothing left to ask";
}

TEST_F(QtMainWindowTest, ItsCaptionIsTheProgramsName) {
    Start();
    EXPECT_EQ(window.windowTitle(), "Veltrix versie 2.0");
    window.SetCaption("Veltrix versie 2.0 - één.vtx");
    EXPECT_EQ(window.windowTitle(), QString::fromUtf8("Veltrix versie 2.0 - één.vtx"));
}

TEST_F(QtMainWindowTest, HasNoMenuOfItsOwnUnderTheRightButton) {
    Start();
    MoveTo("Zoemer");
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, InWindow("Zoemer"));
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {},
                      QPoint(window.width() - 2, window.menuBar()->height() / 2));
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(window.contextMenuPolicy(), Qt::NoContextMenu);
}

TEST_F(QtMainWindowTest, ATickThatFailsIsToldOnceWhileTheBoardRunsOn) {
    Start();
    DrawWire("Var. Spanning Uit Geel", "LED 1 Ingang");
    // More volts than a wire has colours for, which only a damaged document can bring.
    auto& board = const_cast<Board&>(form.TheBoard());
    board.Knobs.VariableVoltage = 3000;
    RunTicks(1);
    const auto notices = [this] { return visibleBoxes(window); };
    ASSERT_EQ(notices().size(), 1);
    QMessageBox& told = *notices().first();
    EXPECT_FALSE(told.isModal());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(told.windowTitle(), "Veltrix versie 2.0");
    EXPECT_EQ(told.text(), "Op het bord staat een getal of een aantal draden dat niet kan.");

    RunTicks(5);
    EXPECT_EQ(notices(), QList{&told}) << "told again";
    DrawWire("Drukknop 1 Uit Geel", "LED 2 Ingang");
    EXPECT_EQ(Wires(), 2) << "the board is there for the mouse";

    board.Knobs.VariableVoltage = 4000;
    RunTicks(1);
    EXPECT_EQ(notices().size(), 1) << "another fault takes the place of the one before";
    QTest::mouseClick(notices().first()->buttons().first(), Qt::LeftButton);
    EXPECT_TRUE(notices().empty());
}

} // namespace

} // namespace veltrix::test
