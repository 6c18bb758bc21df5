#include "tests/app/qt/PrintTo.h"
#include "tests/app/qt/RealWindow.h"

#include "app/qt/help/PageView.h"

#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

namespace veltrix::test {

namespace {

struct QtMainWindowHelpTest : testing::Test {
    QtMainWindowHelpTest() { real.Start(); }

    [[nodiscard]] static QWidget* helpWindow() {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == "frmHelp" && widget->isVisible())
                return widget;
        return nullptr;
    }

    RealWindow real;
};

TEST_F(QtMainWindowHelpTest, UitlegShowsTheDutchPageWhileTheBoardGoesOn) {
    real.Choose("mnuUitleg");
    ASSERT_NE(helpWindow(), nullptr);
    EXPECT_FALSE(helpWindow()->windowIcon().isNull());
    const QString text = helpWindow()->findChild<PageView*>()->toPlainText();
    EXPECT_TRUE(text.contains("Veltrix")) << text.left(200).toStdString();
    EXPECT_FALSE(text.contains("Deze bladzijde is er niet"));

    real.DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    real.Click("Drukknop 1");
    real.RunTicks(2);
    EXPECT_TRUE(real.form.TheBoard().LEDs[0].Value());
}

TEST_F(QtMainWindowHelpTest, ClosingTheHelpLeavesTheProgramRunning) {
    real.Choose("mnuUitleg");
    helpWindow()->close();
    EXPECT_EQ(helpWindow(), nullptr);
    EXPECT_TRUE(real.window.isVisible());
    EXPECT_FALSE(real.form.Ended());
    real.Choose("mnuUitleg");
    EXPECT_NE(helpWindow(), nullptr);
}

TEST_F(QtMainWindowHelpTest, OpInternetShowsItsBoxAndThenOpensThePage) {
    real.answers.Press("OK");
    real.Choose("mnuHelpAbout");
    ASSERT_EQ(real.answers.boxes.size(), 1U);
    const BoxAnswers::Seen& box = real.answers.boxes[0];
    EXPECT_EQ(box.title, "Veltrix Simulator");
    EXPECT_EQ(box.text, "Op internet staat hulp en meer informatie.\n"
                        "De computer probeert naar de volgende website gaan:\n"
                        "https://veltrix.example/\n");
    EXPECT_EQ(box.icon, QMessageBox::Information);
    EXPECT_EQ(box.buttons, QStringList("OK"));
    ASSERT_EQ(real.shell.opened.size(), 1U);
    EXPECT_EQ(real.shell.opened[0].address, "https://veltrix.example/");
}

TEST_F(QtMainWindowHelpTest, AnInternetThatCannotBeReachedIsTold) {
    real.shell.unreachable = true;
    real.answers.Press("OK");
    real.answers.Press("OK");
    real.Choose("mnuHelpAbout");
    ASSERT_EQ(real.answers.boxes.size(), 2U);
    EXPECT_EQ(real.answers.boxes[1].title, "Veltrix");
    EXPECT_EQ(real.answers.boxes[1].text,
              "Ik probeerde een internet-pagina te laten zien, alleen gaf dat een foutmelding. "
              "Misschien heeft u geen internet op uw computer staan?");
    EXPECT_EQ(real.answers.boxes[1].buttons, QStringList("OK"));
}

TEST_F(QtMainWindowHelpTest, AFatalErrorIsShownAndEndsTheProgram) {
    real.answers.Press("OK");
    real.form.FatalError("Can't load Pictor");
    ASSERT_EQ(real.answers.boxes.size(), 1U);
    EXPECT_EQ(real.answers.boxes[0].text, "Can't load Pictor");
    EXPECT_EQ(real.answers.boxes[0].title, "Error");
    EXPECT_EQ(real.answers.boxes[0].buttons, QStringList("OK"));
    EXPECT_EQ(real.program.ended, 1);
}

TEST_F(QtMainWindowHelpTest, TheDocumentTypeIsRegisteredOnce) {
    EXPECT_EQ(real.fileTypes.times, 1);
}

} // namespace

} // namespace veltrix::test
