#include "tests/app/qt/RealWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace veltrix::test {

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

struct QtMainWindowMenu : testing::Test, RealWindow {
    QtMainWindowMenu() { Start(); }

    /// A line for each item: its name, caption and shortcut, as "name|caption|shortcut".
    static std::vector<std::string> Lines(const QList<QAction*>& items) {
        std::vector<std::string> lines;
        for (const QAction* item : items) {
            const QString name =
                item->menu() != nullptr ? item->menu()->objectName() : item->objectName();
            lines.push_back(name.toStdString() + "|" +
                            (item->isSeparator() ? "-" : item->text().toStdString()) + "|" +
                            item->shortcut().toString().toStdString());
        }
        return lines;
    }

    std::vector<std::string> LinesOf(const char* menu) const {
        const auto* found = window.findChild<QMenu*>(menu);
        return found != nullptr ? Lines(found->actions()) : std::vector<std::string>{"no menu"};
    }

    std::vector<std::string> Checked() const {
        std::vector<std::string> names;
        for (const QAction* item : window.findChildren<QAction*>())
            if (item->isChecked())
                names.push_back(item->objectName().toStdString());
        return names;
    }
};

TEST_F(QtMainWindowMenu, TheMenusStandInTheirOrder) {
    EXPECT_THAT(Lines(window.menuBar()->actions()),
                ElementsAre("mnuBestand|&Bestand|", "mnuBewerken|Be&werken|", "mnuCursor|Cursor|",
                            "mnuHelp|&Help|"));
}

TEST_F(QtMainWindowMenu, TheFileMenuHasItsItems) {
    EXPECT_THAT(LinesOf("mnuBestand"),
                ElementsAre("mnuNieuw|Nieuw|Ctrl+N", "mnuOpenen|Openen|Ctrl+O",
                            "mnuBewaren|Bewaren|Ctrl+S", "mnuBewarenAls|Bewaren als..|",
                            "mnuSep1|-|", "mnuSluiten|Sluiten|"));
}

TEST_F(QtMainWindowMenu, TheEditMenuHasItsItems) {
    EXPECT_THAT(LinesOf("mnuBewerken"),
                ElementsAre("mnuUndo|&Ongedaan maken|Ctrl+Z", "mnuRedo|&Herhalen|Ctrl+Y",
                            "mnuSep2|-|", "mnuGeluidSensor|GeluidSensor|"));
}

TEST_F(QtMainWindowMenu, TheCursorMenuHasItsItems) {
    EXPECT_THAT(LinesOf("mnuCursor"),
                ElementsAre("mnuRegelen|Regelen|", "mnuNieuweVerbindingen|Nieuwe verbindingen|",
                            "mnuVerwijderVerbindingen|Verwijder verbindingen|"));
}

TEST_F(QtMainWindowMenu, TheHelpMenuHasItsItems) {
    EXPECT_THAT(LinesOf("mnuHelp"), ElementsAre("mnuHelpInfo|Info|", "mnuUitleg|Uitleg|",
                                                "mnuHelpAbout|Op internet: Over Veltrix|"));
}

TEST_F(QtMainWindowMenu, AnEmptyBoardCanNeitherBeSavedNorUndone) {
    std::vector<std::string> disabled;
    for (const QAction* item : window.findChildren<QAction*>())
        if (!item->objectName().isEmpty() && !item->isEnabled())
            disabled.push_back(item->objectName().toStdString());
    EXPECT_THAT(disabled, testing::UnorderedElementsAre("mnuBewaren", "mnuUndo", "mnuRedo"));
}

TEST_F(QtMainWindowMenu, ExactlyOneModeHasACheckMark) {
    EXPECT_THAT(Checked(), ElementsAre("mnuNieuweVerbindingen"));
    for (const char* mode : {"mnuRegelen", "mnuVerwijderVerbindingen", "mnuNieuweVerbindingen"}) {
        Choose(mode);
        EXPECT_THAT(Checked(), ElementsAre(mode));
        Choose(mode);
        EXPECT_THAT(Checked(), ElementsAre(mode)) << "chosen again";
        EXPECT_EQ(Item(mode).actionGroup(), nullptr) << "a group shows bullets instead of marks";
    }
}

TEST_F(QtMainWindowMenu, UndoAndRedoAreEnabledWhereThereIsAStep) {
    const auto enabled = [this] {
        return std::pair(Item("mnuUndo").isEnabled(), Item("mnuRedo").isEnabled());
    };
    EXPECT_EQ(enabled(), std::pair(false, false));
    DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    EXPECT_EQ(enabled(), std::pair(true, false));
    Click("Drukknop 1");
    Choose("mnuUndo");
    EXPECT_EQ(enabled(), std::pair(true, true));
    Choose("mnuUndo");
    EXPECT_EQ(enabled(), std::pair(false, true));
    EXPECT_EQ(Wires(), 0);
    Choose("mnuRedo");
    Choose("mnuRedo");
    EXPECT_EQ(enabled(), std::pair(true, false));
    EXPECT_EQ(Wires(), 1);
    EXPECT_TRUE(PushButtons()[0].Value());
    Choose("mnuUndo");
    Click("Sensor 1");
    EXPECT_EQ(enabled(), std::pair(true, false)) << "a new edit takes the redo away";
    Choose("mnuNieuw");
    EXPECT_EQ(enabled(), std::pair(false, false));
}

TEST_F(QtMainWindowMenu, TheKeysUndoAndRedo) {
    DrawWire("Drukknop 1 Uit Geel", "LED 1 Ingang");
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Wires(), 0);
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(answers.boxes.empty()) << "a disabled item has no key";
    Key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Wires(), 1);
    Key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Wires(), 0);
    EXPECT_FALSE(Item("mnuUndo").isEnabled());
}

TEST_F(QtMainWindowMenu, TheAccessKeysOpenTheMenus) {
    struct Access {
        Qt::Key key;
        const char* menu;
    };

    for (const Access access :
         {Access{Qt::Key_B, "mnuBestand"}, {Qt::Key_W, "mnuBewerken"}, {Qt::Key_H, "mnuHelp"}}) {
        Key(access.key, Qt::AltModifier);
        ASSERT_TRUE(waitUntil([] { return QApplication::activePopupWidget() != nullptr; }));
        EXPECT_EQ(QApplication::activePopupWidget()->objectName(), access.menu);
        QApplication::activePopupWidget()->close();
        ASSERT_TRUE(waitUntil([] { return QApplication::activePopupWidget() == nullptr; }));
    }
}

TEST_F(QtMainWindowMenu, TheBoardRestsWhileThePointerIsOnTheMenuBarAndNoLonger) {
    const auto interval = [this] {
        RunTicks(1);
        return timer.interval;
    };
    const auto moveTo = [](QWidget& widget, QPoint place) {
        QCursor::setPos(widget.mapToGlobal(place)); // where the desktop says that it is
        QTest::mouseMove(widget.window()->windowHandle(), place);
    };
    const QRect title = window.menuBar()->actionGeometry(window.menuBar()->actions().at(2));
    moveTo(window, title.center());
    EXPECT_EQ(interval(), Tick::IntervalOverBareWindow);

    // An item is chosen with the mouse; the menu was open over the board.
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, title.center());
    ASSERT_TRUE(waitUntil([] { return QApplication::activePopupWidget() != nullptr; }));
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    const QPoint item = menu->actionGeometry(&Item("mnuRegelen")).center();
    moveTo(*menu, item);
    QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {}, item);
    ASSERT_TRUE(waitUntil([] { return QApplication::activePopupWidget() == nullptr; }));
    ASSERT_TRUE(Item("mnuRegelen").isChecked());
    moveTo(window, InWindow("Zoemer"));
    EXPECT_EQ(interval(), Tick::Interval);
}

TEST_F(QtMainWindowMenu, AnErrorOfACommandIsToldInABoxAndTheProgramGoesOn) {
    waveInputs.whileShown = [](frmWaveInputs&, FakeWaveInputs&) { throw std::bad_alloc(); };
    answers.Press("OK");
    Choose("mnuGeluidSensor");
    ASSERT_EQ(answers.boxes.size(), 1U);
    EXPECT_EQ(answers.boxes[0].title, "Veltrix versie 2.0");
    EXPECT_EQ(answers.boxes[0].text, "De computer heeft te weinig geheugen vrij.");
    Click("Drukknop 1");
    EXPECT_TRUE(PushButtons()[0].Value());
}

} // namespace

} // namespace veltrix::test
