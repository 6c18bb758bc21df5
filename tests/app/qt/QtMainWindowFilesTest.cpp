#include "tests/app/qt/RealWindow.h"
#include "tests/document/Files.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veltrix::test {

namespace {

using testing::ElementsAre;

struct QtMainWindowFiles : testing::Test, RealWindow {
    QtMainWindowFiles() { Start(); }

    std::filesystem::path Path(const char* name) const {
        return folder.Path() / PathFromUtf8(name);
    }

    QString Chosen(const char* name) const {
        return QString::fromStdString(Utf8FromPath(Path(name)));
    }

    /// Draws a wire and saves the board in a file of the folder.
    void SaveOneWireAs(const char* name) {
        DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
        answers.Choose(Chosen(name));
        Choose("mnuBewarenAls");
    }

    /// Lets go of files over the window. Answers whether it takes them.
    bool Drop(const QList<QUrl>& urls) {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QCoreApplication::sendEvent(&window, &enter);
        QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &data, Qt::LeftButton, {});
        drop.ignore();
        QCoreApplication::sendEvent(&window, &drop);
        EXPECT_EQ(enter.isAccepted(), drop.isAccepted());
        return drop.isAccepted();
    }

    TempFolder folder;
};

TEST_F(QtMainWindowFiles, SaveAsAddsTheExtensionAndNamesTheDocument) {
    SaveOneWireAs("één bord");
    EXPECT_TRUE(exists(Path("één bord.vtx")));
    EXPECT_EQ(window.windowTitle(), "Veltrix versie 2.0 - één bord.vtx");
    EXPECT_TRUE(Item("mnuBewaren").isEnabled());
    EXPECT_TRUE(Item("mnuUndo").isEnabled()) << "saving is no edit and takes none back";
}

TEST_F(QtMainWindowFiles, SaveAsAsksBeforeItOverwrites) {
    SaveOneWireAs("bel");
    const auto first = bytesOf(Path("bel.vtx"));
    Click("Drukknop 1");

    answers.Choose(Chosen("bel"));
    answers.Press("Nee");
    Choose("mnuBewarenAls");
    EXPECT_EQ(bytesOf(Path("bel.vtx")), first);

    answers.Choose(Chosen("bel.vtx"));
    answers.Press("Ja");
    Choose("mnuBewarenAls");
    EXPECT_NE(bytesOf(Path("bel.vtx")), first);

    ASSERT_EQ(answers.boxes.size(), 2U) << "asked by the program, and not by the dialog as well";
    EXPECT_EQ(answers.boxes[0].text, "Weet u zeker dat u bel.vtx wilt overschrijven?");
    EXPECT_EQ(answers.boxes[0].buttons, (QStringList{"Ja", "Nee"}));
}

TEST_F(QtMainWindowFiles, WhatIsSavedOpensAsTheSameBoard) {
    SaveOneWireAs("bel");
    Click("Drukknop 1");
    Key(Qt::Key_S, Qt::ControlModifier);
    const auto saved = bytesOf(Path("bel.vtx"));
    Choose("mnuNieuw");
    EXPECT_FALSE(Item("mnuBewaren").isEnabled());

    answers.Choose(Chosen("bel.vtx"));
    Key(Qt::Key_O, Qt::ControlModifier);
    ASSERT_EQ(Wires(), 1);
    EXPECT_TRUE(PushButtons()[0].Value());
    EXPECT_FALSE(Item("mnuUndo").isEnabled());
    answers.Choose(Chosen("tweede"));
    Choose("mnuBewarenAls");
    EXPECT_EQ(bytesOf(Path("tweede.vtx")), saved);
}

TEST_F(QtMainWindowFiles, ASaveThatFailsIsToldAndKeepsTheBoardUnsaved) {
    create_directory(Path("stick"));
    SaveOneWireAs("stick/bel");
    Click("Drukknop 1");
    remove_all(Path("stick"));
    answers.Press("OK");
    Choose("mnuBewaren");
    ASSERT_EQ(answers.boxes.size(), 1U);
    EXPECT_EQ(answers.boxes[0].title, "Veltrix versie 2.0");
    EXPECT_TRUE(answers.boxes[0].text.contains("bestaat niet (meer)"))
        << answers.boxes[0].text.toStdString();
    EXPECT_EQ(Wires(), 1);
    EXPECT_TRUE(PushButtons()[0].Value());
    EXPECT_TRUE(Item("mnuUndo").isEnabled());
    EXPECT_EQ(window.windowTitle(), "Veltrix versie 2.0 - bel.vtx");

    answers.Press("Annuleren"); // it still counts as changed
    EXPECT_FALSE(window.close());
}

TEST_F(QtMainWindowFiles, ABoardThatIsDroppedIsOpened) {
    SaveOneWireAs("bel.VTX");
    Choose("mnuNieuw");
    EXPECT_TRUE(Drop({QUrl::fromLocalFile(Chosen("bel.VTX"))}));
    EXPECT_EQ(Wires(), 1);
    EXPECT_EQ(window.windowTitle(), "Veltrix versie 2.0 - bel.VTX");
}

TEST_F(QtMainWindowFiles, OtherThingsThatAreDroppedAreRefused) {
    SaveOneWireAs("bel");
    const QUrl board = QUrl::fromLocalFile(Chosen("bel.vtx"));
    Choose("mnuNieuw");
    EXPECT_FALSE(Drop({}));
    EXPECT_FALSE(Drop({board, board})) << "which of them?";
    EXPECT_FALSE(Drop({QUrl::fromLocalFile(Chosen("bel.txt"))}));
    EXPECT_FALSE(Drop({QUrl("ftp://school/bel.vtx")}));
    EXPECT_EQ(Wires(), 0);
}

TEST_F(QtMainWindowFiles, ADropThatCannotBeReadIsToldOfAndChangesNothing) {
    DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    answers.Press("OK");
    EXPECT_TRUE(Drop({QUrl::fromLocalFile(Chosen("weg.vtx"))}));
    create_directory(Path("map.vtx"));
    answers.Press("OK");
    EXPECT_TRUE(Drop({QUrl::fromLocalFile(Chosen("map.vtx"))}));
    ASSERT_EQ(answers.boxes.size(), 2U);
    EXPECT_TRUE(answers.boxes[0].text.contains("bestaat niet (meer)"));
    EXPECT_TRUE(answers.boxes[1].text.contains("dit is een map"));
    EXPECT_EQ(Wires(), 1);
    EXPECT_EQ(window.windowTitle(), "Veltrix versie 2.0");
}

TEST_F(QtMainWindowFiles, AnUnchangedBoardClosesWithoutAQuestion) {
    EXPECT_TRUE(window.close());
    EXPECT_EQ(program.ended, 0);
}

TEST_F(QtMainWindowFiles, AChangedBoardAsksWhatToDoWithIt) {
    Click("Drukknop 1");
    answers.Press("Annuleren");
    EXPECT_FALSE(window.close());
    ASSERT_EQ(answers.boxes.size(), 1U);
    EXPECT_EQ(answers.boxes[0].text, "Dit veltrix bewaren?");
    EXPECT_EQ(answers.boxes[0].title, "Veltrix versie 2.0");
    EXPECT_EQ(answers.boxes[0].buttons, (QStringList{"Annuleren", "Ja", "Nee"}));
    EXPECT_EQ(answers.boxes[0].standard, "Ja");
    answers.Close();
    EXPECT_FALSE(window.close()) << "closing the box is no answer";
    EXPECT_FALSE(program.ended);
    EXPECT_TRUE(window.isVisible());

    answers.Press("Nee");
    EXPECT_TRUE(window.close());
    EXPECT_EQ(program.ended, 0);
}

TEST_F(QtMainWindowFiles, SavingOnTheWayOutKeepsTheWindowOpen) {
    Click("Drukknop 1");
    answers.Press("Ja");
    answers.ChooseNothing();
    EXPECT_FALSE(window.close());
    answers.Press("Ja");
    answers.Choose(Chosen("bel"));
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(exists(Path("bel.vtx")));
    EXPECT_EQ(window.windowTitle(), "Veltrix versie 2.0 - bel.vtx");
    EXPECT_FALSE(program.ended);
}

TEST_F(QtMainWindowFiles, ASaveThatFailsOnTheWayOutKeepsTheWindowOpen) {
    Click("Drukknop 1");
    answers.Press("Ja");
    answers.Choose(Chosen("weg/bel.vtx"));
    answers.Press("OK");
    EXPECT_FALSE(window.close());
    EXPECT_FALSE(program.ended);
}

TEST_F(QtMainWindowFiles, TheMenuClosesAsTheFrameDoes) {
    Click("Drukknop 1");
    answers.Press("Annuleren");
    Choose("mnuSluiten");
    EXPECT_FALSE(program.ended);
    answers.Press("Ja");
    answers.ChooseNothing();
    Choose("mnuSluiten");
    EXPECT_FALSE(program.ended);
    answers.Press("Nee");
    Choose("mnuSluiten");
    EXPECT_EQ(program.ended, 0);
    EXPECT_THAT(answers.dialogs, testing::SizeIs(1));
}

TEST_F(QtMainWindowFiles, AfterTheEndNothingHappensAnyMore) {
    EXPECT_TRUE(window.close());
    Click("Drukknop 1");
    Choose("mnuVerwijderVerbindingen");
    QTest::keyClick(&window, Qt::Key_Escape);
    RunTicks(2);
    EXPECT_TRUE(window.close());
    EXPECT_FALSE(PushButtons()[0].Value());
    EXPECT_TRUE(answers.boxes.empty());
}

} // namespace

} // namespace veltrix::test
