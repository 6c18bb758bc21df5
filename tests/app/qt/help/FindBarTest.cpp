#include "app/qt/help/FindBar.h"

#include "tests/app/qt/PrintTo.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace veltrix::test {

namespace {

struct FindBarTest : testing::Test {
    FindBarTest() : bar(page, &window) {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(&page);
        column->addWidget(&bar);
        page.setPlainText("draad bus Draad bus led");
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window, 60000));
        page.setFocus();
    }

    ~FindBarTest() override {
        page.setParent(nullptr);
        bar.setParent(nullptr);
    }

    [[nodiscard]] QLineEdit& Word() const { return *bar.findChild<QLineEdit*>("word"); }

    [[nodiscard]] std::string Result() const {
        return bar.findChild<QLabel*>("result")->text().toStdString();
    }

    /// Where the found word stands, or -1.
    [[nodiscard]] int Found() const {
        return page.textCursor().hasSelection() ? page.textCursor().selectionStart() : -1;
    }

    void Press(const char* button) { bar.findChild<QToolButton*>(button)->click(); }

    QWidget window;
    QTextEdit page;
    FindBar bar;
};

TEST_F(FindBarTest, IsHiddenUntilItIsOpened) {
    EXPECT_FALSE(bar.isVisible());
    bar.Open();
    EXPECT_TRUE(bar.isVisible());
    EXPECT_TRUE(Word().hasFocus());
}

TEST_F(FindBarTest, FindsWhileTheUserTypesInCapitalsOrNot) {
    bar.Open();
    QTest::keyClicks(&Word(), "bu");
    EXPECT_EQ(Found(), 6);
    EXPECT_EQ(page.textCursor().selectedText(), "bu");
    QTest::keyClicks(&Word(), "s");
    EXPECT_EQ(Found(), 6) << "the word that was found grows";
    EXPECT_EQ(page.textCursor().selectedText(), "bus");
    Word().clear();
    EXPECT_EQ(Found(), -1);
    EXPECT_EQ(Result(), "");
}

TEST_F(FindBarTest, GoesOnAndRoundInBothDirections) {
    bar.Open();
    QTest::keyClicks(&Word(), "draad");
    EXPECT_EQ(Found(), 0);
    QTest::keyClick(&Word(), Qt::Key_Return);
    EXPECT_EQ(Found(), 10);
    EXPECT_EQ(Result(), "");
    QTest::keyClick(&Word(), Qt::Key_Return);
    EXPECT_EQ(Found(), 0);
    EXPECT_EQ(Result(), "Verder vanaf het begin");
    QTest::keyClick(&Word(), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(Found(), 10);
    EXPECT_EQ(Result(), "Verder vanaf het einde");
    Press("previous");
    EXPECT_EQ(Found(), 0);
    Press("next");
    EXPECT_EQ(Found(), 10);
    bar.FindPrevious();
    EXPECT_EQ(Found(), 0);
}

TEST_F(FindBarTest, SaysWhenThereIsNoSuchWord) {
    bar.Open();
    const QColor usual = Word().palette().color(QPalette::Base);
    QTest::keyClicks(&Word(), "led");
    EXPECT_EQ(Found(), 20);
    QTest::keyClicks(&Word(), "x");
    EXPECT_EQ(Result(), "Niet gevonden");
    EXPECT_NE(Word().palette().color(QPalette::Base), usual);
    EXPECT_EQ(Found(), 20) << "what was found before stays in sight";
    QTest::keyClick(&Word(), Qt::Key_Backspace);
    EXPECT_EQ(Result(), "");
    EXPECT_EQ(Word().palette().color(QPalette::Base), usual);
}

TEST_F(FindBarTest, EscapeGivesTheKeyboardBackToThePage) {
    bar.Open();
    QTest::keyClicks(&Word(), "bus");
    QTest::keyClick(&Word(), Qt::Key_Escape);
    EXPECT_FALSE(bar.isVisible());
    EXPECT_TRUE(page.hasFocus());
    EXPECT_EQ(Found(), 6);
    bar.Open();
    EXPECT_EQ(Word().selectedText(), "bus") << "typing begins a new word";
    Press("close");
    EXPECT_FALSE(bar.isVisible());
}

TEST_F(FindBarTest, GoingOnWithoutAWordAsksForOne) {
    bar.FindNext();
    EXPECT_TRUE(bar.isVisible());
    EXPECT_TRUE(Word().hasFocus());
    bar.Close();
    bar.FindPrevious();
    EXPECT_TRUE(bar.isVisible());
}

TEST_F(FindBarTest, ItsButtonsSayInDutchWhatTheyDo) {
    QStringList texts;
    for (const auto* button : bar.findChildren<QToolButton*>(Qt::FindDirectChildrenOnly))
        texts << button->text() + ": " + button->toolTip();
    EXPECT_EQ(texts,
              QStringList({"Vorige: Vorige vindplaats (Shift+F3)",
                           "Volgende: Volgende vindplaats (F3)", "✕: Zoekbalk sluiten (Esc)"}));
}

} // namespace

} // namespace veltrix::test
