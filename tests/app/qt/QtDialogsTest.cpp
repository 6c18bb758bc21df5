#include "app/qt/QtDialogs.h"
#include "board/AppPath.h"
#include "tests/app/qt/BoxAnswers.h"
#include "tests/app/qt/WaitUntil.h"
#include "tests/document/Files.h"

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace veltrix::test {

namespace {

struct QtDialogs : testing::Test {
    QWidget parent;
    BoxAnswers answers;
    QtMessageBox messages{parent};
    QtFileDialog files{parent};
};

TEST_F(QtDialogs, AMessageHasOneButton) {
    answers.Press("OK");
    EXPECT_EQ(messages.Show("Regel één\r\nRegel twee", "Fout", Buttons::Ok), Answer::Ok);
    ASSERT_EQ(answers.boxes.size(), 1U);
    EXPECT_EQ(answers.boxes[0].title, "Fout");
    EXPECT_EQ(answers.boxes[0].text, QString::fromUtf8("Regel één\nRegel twee"));
    EXPECT_EQ(answers.boxes[0].buttons, QStringList{"OK"});
    EXPECT_EQ(answers.boxes[0].icon, QMessageBox::NoIcon);
}

TEST_F(QtDialogs, AMessageMayCarryTheSignOfInformation) {
    answers.Press("OK");
    messages.Show("Klaar", "Veltrix", Buttons::Ok, Icon::Information);
    EXPECT_EQ(answers.boxes.at(0).icon, QMessageBox::Information);
}

TEST_F(QtDialogs, ATextIsShownAsItIsWrittenWhateverItLooksLike) {
    answers.Press("OK");
    messages.Show("<b>LED</b> & <img src=x>", "Fout", Buttons::Ok);
    EXPECT_EQ(answers.boxes.at(0).text, "<b>LED</b> & <img src=x>");
    EXPECT_EQ(answers.boxes.at(0).format, Qt::PlainText);
}

TEST_F(QtDialogs, EveryButtonOfAQuestionIsItsAnswer) {
    const auto ask = [this](const char* button, Buttons buttons) {
        answers.Press(button);
        return messages.Show("Zeker?", "Veltrix", buttons);
    };
    EXPECT_EQ(ask("Ja", Buttons::YesNo), Answer::Yes);
    EXPECT_EQ(ask("Nee", Buttons::YesNo), Answer::No);
    EXPECT_EQ(ask("Ja", Buttons::YesNoCancel), Answer::Yes);
    EXPECT_EQ(ask("Nee", Buttons::YesNoCancel), Answer::No);
    EXPECT_EQ(ask("Annuleren", Buttons::YesNoCancel), Answer::Cancel);
    EXPECT_EQ(answers.boxes[0].buttons, (QStringList{"Ja", "Nee"}));
    EXPECT_EQ(answers.boxes[2].buttons, (QStringList{"Annuleren", "Ja", "Nee"}));
    for (const auto& box : answers.boxes)
        EXPECT_EQ(box.standard, "Ja");
}

TEST_F(QtDialogs, ClosingABoxIsTheAnswerThatChangesLeast) {
    const auto close = [this](Buttons buttons) {
        answers.Close();
        return messages.Show("Zeker?", "Veltrix", buttons);
    };
    EXPECT_EQ(close(Buttons::Ok), Answer::Ok);
    EXPECT_EQ(close(Buttons::YesNo), Answer::No);
    EXPECT_EQ(close(Buttons::YesNoCancel), Answer::Cancel);
}

TEST_F(QtDialogs, EscapeClosesABox) {
    answers.PressKey(Qt::Key_Escape);
    EXPECT_EQ(messages.Show("Zeker?", "Veltrix", Buttons::YesNoCancel), Answer::Cancel);
    answers.PressKey(Qt::Key_Escape);
    EXPECT_EQ(messages.Show("Zeker?", "Veltrix", Buttons::YesNo), Answer::No);
    answers.PressKey(Qt::Key_Return);
    EXPECT_EQ(messages.Show("Zeker?", "Veltrix", Buttons::YesNoCancel), Answer::Yes);
}

TEST_F(QtDialogs, TheFileDialogsSayWhatTheyAreForAndShowBoardsOnly) {
    answers.ChooseNothing();
    EXPECT_EQ(files.ShowOpen("Veltrix bestanden *.vtx|*.vtx"), std::nullopt);
    answers.ChooseNothing();
    EXPECT_EQ(files.ShowSave("Veltrix bestanden *.vtx|*.vtx"), std::nullopt);
    ASSERT_EQ(answers.dialogs.size(), 2U);
    for (const auto& dialog : answers.dialogs)
        EXPECT_EQ(dialog.filters, QStringList{"Veltrix bestanden *.vtx (*.vtx)"});
    EXPECT_EQ(answers.dialogs[0].title, "Openen");
    EXPECT_FALSE(answers.dialogs[0].saves);
    EXPECT_EQ(answers.dialogs[1].title, "Bewaren als");
    EXPECT_TRUE(answers.dialogs[1].saves);
}

TEST_F(QtDialogs, AFileIsGivenByItsWholePath) {
    const OneFile file("bord één.vtx");
    putBytes(file.path, "iets");
    answers.Choose(QString::fromStdString(file.text));
    EXPECT_EQ(files.ShowOpen("Borden|*.vtx"), file.text);
}

TEST_F(QtDialogs, AFileThatIsSavedToNeedNotExistAndIsNotAskedAboutWhenItDoes) {
    const OneFile file("bord.vtx");
    answers.Choose(QString::fromStdString(file.text));
    EXPECT_EQ(files.ShowSave("Borden|*.vtx"), file.text);
    putBytes(file.path, "iets");
    answers.Choose(QString::fromStdString(file.text));
    EXPECT_EQ(files.ShowSave("Borden|*.vtx"), file.text);
    EXPECT_TRUE(answers.boxes.empty());
}

TEST_F(QtDialogs, ADialogBeginsAtTheFileThatWasUsedLast) {
    const OneFile file("bord.vtx");
    putBytes(file.path, "iets");
    files.SetFileName(file.text);
    answers.ChooseNothing();
    EXPECT_EQ(files.ShowSave("Borden|*.vtx"), std::nullopt);
    EXPECT_EQ(answers.dialogs.at(0).folder.toStdString(), Utf8FromPath(file.folder.Path()));
    EXPECT_EQ(answers.dialogs.at(0).name, "bord.vtx");
}

struct QtFaultNoticeTest : testing::Test {
    QList<QMessageBox*> Shown() const { return visibleBoxes(parent); }

    QWidget parent;
    QtFaultNotice notice{parent};
};

TEST_F(QtFaultNoticeTest, ReturnsAtOnceAndBlocksNothing) {
    notice.Show("De knop is te heet.");
    ASSERT_EQ(Shown().size(), 1);
    EXPECT_EQ(Shown()[0]->text(), "De knop is te heet.");
    EXPECT_EQ(Shown()[0]->windowTitle(), "Veltrix versie 2.0");
    EXPECT_EQ(Shown()[0]->windowModality(), Qt::NonModal);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(QtFaultNoticeTest, ANewFaultTakesThePlaceOfTheOld) {
    notice.Show("Eerst dit.");
    notice.Show("<i>Toen</i> dat.");
    ASSERT_EQ(Shown().size(), 1);
    EXPECT_EQ(Shown()[0]->text(), "<i>Toen</i> dat.");
    EXPECT_EQ(Shown()[0]->textFormat(), Qt::PlainText);
}

TEST_F(QtFaultNoticeTest, IsGoneWhenItWasReadAndCanComeBack) {
    notice.Show("Eerst dit.");
    ASSERT_EQ(Shown().size(), 1);
    QTest::mouseClick(Shown()[0]->buttons().first(), Qt::LeftButton);
    EXPECT_TRUE(waitUntil([this] { return parent.findChildren<QMessageBox*>().isEmpty(); }));
    notice.Show("Toen dat.");
    EXPECT_EQ(Shown().size(), 1);
}

} // namespace

} // namespace veltrix::test
