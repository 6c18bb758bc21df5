#include "tests/app/qt/PrintTo.h"
#include "tests/app/qt/RealWindow.h"

#include "app/qt/help/PageView.h"

#include <gtest/gtest.h>

namespace veltrix::test {

namespace {

struct QtMainWindowHelpTest : testing::Test, RealWindow {
    QtMainWindowHelpTest() { Start(); }

    [[nodiscard]] static QWidget* helpWindow() {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == "frmHelp" && widget->isVisible())
                return widget;
        return nullptr;
    }
};

TEST_F(QtMainWindowHelpTest, UitlegShowsTheDutchPageWhileTheBoardGoesOn) {
    Choose("mnuUitleg");
    ASSERT_NE(helpWindow(), nullptr);
    EXPECT_FALSE(helpWindow()->windowIcon().isNull());
    const QString text = helpWindow()->findChild<PageView*>()->toPlainText();
    EXPECT_TRUE(text.contains("Veltrix")) << text.left(200).toStdString();
    EXPECT_FALSE(text.contains("Deze bladzijde is er niet"));

    DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    Click("Drukknop 1");
    RunTicks(2);
    EXPECT_TRUE(form.TheBoard().LEDs[0].Value());
}

TEST_F(QtMainWindowHelpTest, ClosingTheHelpLeavesTheProgramRunning) {
    Choose("mnuUitleg");
    helpWindow()->close();
    EXPECT_EQ(helpWindow(), nullptr);
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(form.Ended());
    Choose("mnuUitleg");
    EXPECT_NE(helpWindow(), nullptr);
}

TEST_F(QtMainWindowHelpTest, OpInternetShowsItsBoxAndThenOpensThePage) {
    answers.Press("OK");
    Choose("mnuHelpAbout");
    ASSERT_EQ(answers.boxes.size(), 1U);
    const BoxAnswers::Seen& box = answers.boxes[0];
    EXPECT_EQ(box.title, "Veltrix Simulator");
    EXPECT_EQ(box.text, "Op internet staat hulp en meer informatie.\n"
                        "De computer probeert naar de volgende website gaan:\n"
                        "https://veltrix.example/\n");
    EXPECT_EQ(box.icon, QMessageBox::Information);
    EXPECT_EQ(box.buttons, QStringList("OK"));
    ASSERT_EQ(shell.opened.size(), 1U);
    EXPECT_EQ(shell.opened[0].address, "https://veltrix.example/");
}

} // namespace

} // namespace veltrix::test
