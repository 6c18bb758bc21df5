#include "app/qt/DutchTexts.h"

#include "tests/app/qt/ContextMenu.h"
#include "tests/app/qt/PrintTo.h"
#include "tests/app/qt/WaitUntil.h"
#include "tests/app/qt/WhenUp.h"
#include "tests/support/TempFolder.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>

#include <gtest/gtest.h>

#include <fstream>

namespace veltrix::test {

namespace {

/// What the toolkit asked for and was not told.
class Unanswered : public QTranslator {
public:
    [[nodiscard]] QString translate(const char* context, const char* sourceText,
                                    const char* /*disambiguation*/, int /*n*/) const override {
        texts << QString(context) + ": " + sourceText;
        return {};
    }

    [[nodiscard]] bool isEmpty() const override { return false; }

    mutable QStringList texts;
};

struct DutchTextsTest : testing::Test {
    DutchTextsTest() {
        QApplication::installTranslator(&unanswered); // asked when the one that comes later is mute
        QApplication::installTranslator(&dutch);
        unanswered.texts.clear(); // nobody could answer yet
    }

    ~DutchTextsTest() override {
        QApplication::removeTranslator(&dutch);
        QApplication::removeTranslator(&unanswered);
    }

    void TearDown() override {
        unanswered.texts.removeDuplicates();
        EXPECT_TRUE(unanswered.texts.isEmpty()) << unanswered.texts.join('\n').toStdString();
    }

    /// Opens a menu by the right mouse button and gives its items, without access keys.
    static QStringList menuOf(QWidget& widget) {
        QStringList items;
        withContextMenu(widget, [&](const QMenu& menu) {
            for (const QAction* action : menu.actions())
                if (!action->isSeparator())
                    items << action->text().remove('&').section('\t', 0, 0);
        });
        return items;
    }

    Unanswered unanswered;
    DutchTexts dutch;
};

TEST_F(DutchTextsTest, StandardButtonsAreDutch) {
    QMessageBox box;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel |
                           QMessageBox::Ok);
    EXPECT_EQ(box.button(QMessageBox::Yes)->text(), "&Ja");
    EXPECT_EQ(box.button(QMessageBox::No)->text(), "&Nee");
    EXPECT_EQ(box.button(QMessageBox::Cancel)->text(), "Annuleren");
    EXPECT_EQ(box.button(QMessageBox::Ok)->text(), "OK");
    QDialogButtonBox all;
    for (int button = QDialogButtonBox::FirstButton; button <= QDialogButtonBox::LastButton;
         button *= 2)
        all.addButton(static_cast<QDialogButtonBox::StandardButton>(button));
    box.setDetailedText("details");
}

TEST_F(DutchTextsTest, FileDialogsAreDutch) {
    for (const auto mode : {QFileDialog::AcceptOpen, QFileDialog::AcceptSave}) {
        QFileDialog dialog;
        dialog.setAcceptMode(mode);
        dialog.setViewMode(QFileDialog::Detail);
        dialog.show();
        EXPECT_EQ(dialog.labelText(QFileDialog::FileType), "Bestandstype:");
        EXPECT_EQ(dialog.labelText(QFileDialog::Reject), "Annuleren");
        EXPECT_EQ(dialog.labelText(QFileDialog::Accept),
                  mode == QFileDialog::AcceptOpen ? "&Openen" : "&Bewaren");
        QStringList tips;
        for (const auto* button : dialog.findChildren<QAbstractButton*>())
            tips << button->toolTip();
        EXPECT_TRUE(tips.contains("Nieuwe map maken")) << tips.join(", ").toStdString();
    }
}

TEST_F(DutchTextsTest, TheFilesOfAFolderAreListedInDutch) {
    const TempFolder folder;
    std::ofstream(folder.Path() / "bord.vtx") << std::string(5000, 'x');
    std::filesystem::create_directory(folder.Path() / "map");
    QFileDialog dialog;
    dialog.setDirectory(QString::fromStdString(folder.Path().string()));
    dialog.setViewMode(QFileDialog::Detail);
    dialog.show();
    auto* list = dialog.findChild<QAbstractItemView*>("treeView");
    const QAbstractItemModel& files = *list->model();
    ASSERT_TRUE(waitUntil([&] { return files.rowCount(list->rootIndex()) == 2; }));
    EXPECT_EQ(files.headerData(0, Qt::Horizontal), "Naam");
    EXPECT_EQ(files.headerData(3, Qt::Horizontal), "Gewijzigd op");
    ASSERT_TRUE(
        waitUntil([&] { return files.index(0, 2, list->rootIndex()).data().toString() == "Map"; }));
    // The other types are named by the desktop, in its language.
}

TEST_F(DutchTextsTest, TheMenuOfAFolderIsDutch) {
    const TempFolder folder;
    QFileDialog dialog;
    dialog.setDirectory(QString::fromStdString(folder.Path().string()));
    dialog.setViewMode(QFileDialog::List);
    dialog.show();
    auto* list = dialog.findChild<QAbstractItemView*>("listView");
    EXPECT_EQ(menuOf(*list->viewport()), QStringList({"Verborgen bestanden tonen", "Nieuwe map"}));
}

TEST_F(DutchTextsTest, TheQuestionsOfFileDialogsAreDutch) {
    const TempFolder folder;
    std::ofstream(folder.Path() / "bord.vtx") << "x";
    QStringList asked;
    const auto answer = [&](const QString& name, QFileDialog::AcceptMode mode,
                            QFileDialog::FileMode files) {
        QFileDialog dialog(nullptr, {}, QString::fromStdString(folder.Path().string()));
        dialog.setAcceptMode(mode);
        dialog.setFileMode(files);
        dialog.show();
        auto* field = dialog.findChild<QLineEdit*>("fileNameEdit");
        field->setText(name);
        const qsizetype before = asked.size();
        const WhenUp<QMessageBox> question([&](QMessageBox& box) {
            asked << box.text().section('\n', 1);
            box.reject();
        });
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_TRUE(waitUntil([&] { return asked.size() > before; }));
    };
    answer("geen.vtx", QFileDialog::AcceptOpen, QFileDialog::ExistingFile);
    answer("geen", QFileDialog::AcceptOpen, QFileDialog::Directory);
    answer("bord.vtx", QFileDialog::AcceptSave, QFileDialog::AnyFile);
    EXPECT_EQ(asked, QStringList({"is niet gevonden.\nKlopt de naam van het bestand?",
                                  "is niet gevonden.\nKlopt de naam van de map?",
                                  "Wilt u het bestand vervangen?"}));
}

TEST_F(DutchTextsTest, RemovingAFileIsAskedInDutch) {
    const TempFolder folder;
    std::ofstream(folder.Path() / "bord.vtx") << "x";
    QFileDialog dialog(nullptr, {}, QString::fromStdString(folder.Path().string()));
    dialog.setViewMode(QFileDialog::List);
    dialog.show();
    auto* list = dialog.findChild<QAbstractItemView*>("listView");
    ASSERT_TRUE(waitUntil([&] { return list->model()->rowCount(list->rootIndex()) == 1; }));
    list->setCurrentIndex(list->model()->index(0, 0, list->rootIndex()));
    QString asked;
    const WhenUp<QMessageBox> question([&](QMessageBox& box) {
        asked = box.text();
        box.reject();
    });
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(asked, "Weet u zeker dat u 'bord.vtx' wilt verwijderen?");
}

TEST_F(DutchTextsTest, MenusOfTextFieldsAreDutch) {
    QLineEdit line;
    line.show();
    EXPECT_EQ(menuOf(line), QStringList({"Ongedaan maken", "Herhalen", "Knippen", "Kopiëren",
                                         "Plakken", "Verwijderen", "Alles selecteren"}));
    QTextBrowser page;
    page.setHtml("<p>tekst</p>");
    page.show();
    EXPECT_EQ(menuOf(*page.viewport()),
              QStringList({"Kopiëren", "Adres van de koppeling kopiëren", "Alles selecteren"}));
}

TEST_F(DutchTextsTest, MenusOfScrollBarsAreDutch) {
    for (const auto direction : {Qt::Horizontal, Qt::Vertical}) {
        QScrollBar bar(direction);
        bar.setRange(0, 100);
        bar.show();
        EXPECT_EQ(menuOf(bar).first(), "Hierheen schuiven");
    }
}

TEST_F(DutchTextsTest, KeysAreNamedAsOnTheKeyboard) {
    const auto named = [](const char* keys) {
        return QKeySequence(keys).toString(QKeySequence::NativeText);
    };
    EXPECT_EQ(named("Ctrl+Z"), "Ctrl+Z");
    EXPECT_EQ(named("Shift+F3"), "Shift+F3");
    EXPECT_EQ(named("Alt+Left"), "Alt+←");
}

TEST_F(DutchTextsTest, WhatIsNotKnownStaysAsItIs) {
    EXPECT_TRUE(dutch.translate("QFileDialog", "No such text").isNull());
    EXPECT_TRUE(dutch.translate(nullptr, "Open").isNull());
    EXPECT_EQ(QCoreApplication::translate("QFileDialog", "No such text"), "No such text");
    unanswered.texts.clear();
}

} // namespace

} // namespace veltrix::test
