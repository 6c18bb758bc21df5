#include "app/qt/help/PageView.h"

#include "tests/app/qt/ContextMenu.h"
#include "tests/app/qt/PrintTo.h"
#include "tests/support/Pictures.h"
#include "tests/support/TempFolder.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QUrl>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <fstream>

namespace veltrix::test {

namespace {

struct PageViewTest : testing::Test {
    PageViewTest() {
        page.resize(400, 300);
        page.show();
    }

    QUrl Write(const std::string& name, const std::string& html) {
        std::ofstream(folder.Path() / name) << html;
        return Url(name);
    }

    [[nodiscard]] QUrl Url(const std::string& name) const {
        return QUrl::fromLocalFile(QString::fromStdString((folder.Path() / name).string()));
    }

    /// A page that is longer than the window.
    QUrl Long() {
        std::string html = "<h1>Begin</h1>";
        for (int i = 0; i < 200; ++i)
            html += "<p>Regel " + std::to_string(i) + "</p>";
        return Write("long.htm", html);
    }

    void Click(const char* link) { emit page.anchorClicked(QUrl(link)); }

    [[nodiscard]] std::string Text() const { return page.toPlainText().toStdString(); }

    TempFolder folder;
    PageView page;
};

TEST_F(PageViewTest, ShowsAPageOfThisComputerInItsOwnEncoding) {
    page.Open(Write("een.htm", "<meta charset=\"utf-8\"><h1>Één bus</h1>"));
    EXPECT_EQ(Text(), "Één bus");
}

TEST_F(PageViewTest, AStyleSheetBesideThePageIsUsed) {
    Write("stijl.css", "h1 { color: #ff0000; }");
    page.Open(Write("een.htm", "<html><head><link rel=\"stylesheet\" type=\"text/css\" "
                               "href=\"stijl.css\"></head><body><h1>Rood</h1></body></html>"));
    EXPECT_EQ(page.document()->find("Rood").charFormat().foreground().color().name(), "#ff0000");
}

TEST_F(PageViewTest, APictureBesideThePageIsShown) {
    std::filesystem::create_directory(folder.Path() / "images");
    WritePng(plain(3, 2, 0xFF00FF00), folder.Path() / "images/bus.png");
    page.Open(Write("een.htm", "<img src=\"images/bus.png\">"));
    const auto picture =
        page.document()->resource(QTextDocument::ImageResource, QUrl("images/bus.png"));
    EXPECT_FALSE(picture.isNull());
    EXPECT_TRUE(picture.isValid());
}

TEST_F(PageViewTest, NothingIsLoadedFromTheNetwork) {
    page.Open(Write("een.htm", "<link rel=\"stylesheet\" type=\"text/css\" "
                               "href=\"http://localhost/stijl.css\">"
                               "<img src=\"http://localhost/x.png\"><p>tekst</p>"));
    for (const char* address :
         {"http://localhost/x.png", "https://localhost/x.png", "ftp://localhost/x.png"})
        for (const auto type : {QTextDocument::ImageResource, QTextDocument::StyleSheetResource})
            EXPECT_FALSE(page.document()->resource(type, QUrl(address)).isValid()) << address;
}

TEST_F(PageViewTest, AnAddressOfTheNetworkIsNoPage) {
    page.Open(QUrl("http://localhost/een.htm"));
    EXPECT_NE(Text().find("Deze bladzijde is er niet"), std::string::npos);
}

TEST_F(PageViewTest, APageThatIsMissingSaysSo) {
    page.Open(Url("HelpENG & co.htm"));
    EXPECT_NE(Text().find("Deze bladzijde is er niet"), std::string::npos);
    EXPECT_NE(Text().find("HelpENG & co.htm"), std::string::npos);
    EXPECT_NE(Text().find(folder.Path().string()), std::string::npos);
}

TEST_F(PageViewTest, APageThatAppearedInTheMeantimeIsShownWhenItIsOpenedAgain) {
    page.Open(Url("een.htm"));
    page.Open(Write("een.htm", "<p>Daar is ze</p>"));
    EXPECT_EQ(Text(), "Daar is ze");
}

TEST_F(PageViewTest, OpeningBeginsAtTheTop) {
    const QUrl pageOf = Long();
    page.Open(pageOf);
    page.verticalScrollBar()->setValue(500);
    page.Open(pageOf);
    EXPECT_EQ(page.verticalScrollBar()->value(), 0);
}

TEST_F(PageViewTest, ALinkToAnotherPageIsFollowedAndLeadsBack) {
    Write("twee.htm", "<p>Twee</p>");
    page.Open(Write("een.htm", "<a href=\"twee.htm\">verder</a>"));
    QSignalSpy web(&page, &PageView::WebLinkClicked);
    Click("twee.htm");
    EXPECT_EQ(Text(), "Twee");
    QTest::keyClick(&page, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Text(), "verder");
    EXPECT_TRUE(web.isEmpty());
}

TEST_F(PageViewTest, TheEnterKeyFollowsALink) {
    Write("twee.htm", "<p>Twee</p>");
    page.Open(Write("een.htm", "<a href=\"twee.htm\">verder</a>"));
    page.setFocus();
    QTest::keyClick(&page, Qt::Key_Tab);
    QTest::keyClick(&page, Qt::Key_Return);
    EXPECT_EQ(Text(), "Twee");
}

TEST_F(PageViewTest, ALinkToTheInternetIsOnlyToldOf) {
    page.Open(Write("een.htm", "<p>Een</p>"));
    QSignalSpy web(&page, &PageView::WebLinkClicked);
    for (const char* address :
         {"http://school.example/a", "https://school.example/b", "mailto:leraar@school.example"}) {
        Click(address);
        ASSERT_EQ(web.size(), 1) << address;
        EXPECT_EQ(web.takeFirst().first().toUrl(), QUrl(address));
    }
    for (const char* address : {"javascript:alert(1)", "ftp://school.example/", "data:text/html,x"})
        Click(address);
    EXPECT_TRUE(web.isEmpty());
    EXPECT_EQ(Text(), "Een");
}

TEST_F(PageViewTest, IsReadOnly) {
    page.Open(Write("een.htm", "<p>Een</p>"));
    QTest::keyClicks(&page, "x");
    EXPECT_EQ(Text(), "Een");
}

TEST_F(PageViewTest, ScrollsByTheKeyboard) {
    page.Open(Long());
    const QScrollBar& bar = *page.verticalScrollBar();
    const auto after = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&page, key, modifiers);
        return bar.value();
    };
    const int line = after(Qt::Key_Down);
    EXPECT_GT(line, 0);
    EXPECT_EQ(after(Qt::Key_Up), 0);
    const int screen = after(Qt::Key_PageDown);
    EXPECT_GT(screen, line);
    EXPECT_EQ(after(Qt::Key_PageUp), 0);
    EXPECT_EQ(after(Qt::Key_Space), screen);
    EXPECT_EQ(after(Qt::Key_Space, Qt::ShiftModifier), 0);
    EXPECT_EQ(after(Qt::Key_End), bar.maximum());
    EXPECT_EQ(after(Qt::Key_Home), 0);
}

TEST_F(PageViewTest, ZoomsInStepsWithinLimits) {
    const double usual = page.font().pointSizeF();
    page.ZoomIn();
    EXPECT_EQ(page.Zoom(), 110);
    EXPECT_NEAR(page.font().pointSizeF(), usual * 1.1, 0.1);
    page.ZoomOut();
    page.ZoomOut();
    EXPECT_EQ(page.Zoom(), 90);
    for (int i = 0; i < 30; ++i)
        page.ZoomIn();
    EXPECT_EQ(page.Zoom(), 300);
    for (int i = 0; i < 30; ++i)
        page.ZoomOut();
    EXPECT_EQ(page.Zoom(), 60);
    page.ZoomReset();
    EXPECT_EQ(page.Zoom(), 100);
    EXPECT_EQ(page.font().pointSizeF(), usual);
}

TEST_F(PageViewTest, TheTextAtTheTopStaysThereWhenItGrows) {
    page.Open(Long());
    page.verticalScrollBar()->setValue(page.verticalScrollBar()->maximum() / 2);
    const int block = page.cursorForPosition(QPoint(0, 0)).blockNumber();
    ASSERT_GT(block, 10);
    page.ZoomIn();
    page.ZoomIn();
    EXPECT_NEAR(page.cursorForPosition(QPoint(0, 0)).blockNumber(), block, 1);
}

TEST_F(PageViewTest, TheWheelZoomsWithCtrlAndScrollsWithout) {
    page.Open(Long());
    const auto turn = [&](int angle, Qt::KeyboardModifiers modifiers) {
        const QPointF at = page.viewport()->rect().center();
        QWheelEvent event(at, page.viewport()->mapToGlobal(at), {}, {0, angle}, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(page.viewport(), &event);
    };
    turn(120, Qt::ControlModifier);
    EXPECT_EQ(page.Zoom(), 110);
    turn(-240, Qt::ControlModifier);
    EXPECT_EQ(page.Zoom(), 90);
    for (int part = 0; part < 3; ++part) {
        turn(40, Qt::ControlModifier);
        EXPECT_EQ(page.Zoom(), part < 2 ? 90 : 100) << "a fine wheel turns in parts of a step";
    }
    EXPECT_EQ(page.verticalScrollBar()->value(), 0);
    turn(-120, Qt::NoModifier);
    EXPECT_GT(page.verticalScrollBar()->value(), 0);
    EXPECT_EQ(page.Zoom(), 100);
}

TEST_F(PageViewTest, IsDarkOnWhiteOnADarkDesktopToo) {
    const QPalette before = QApplication::palette();
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    QApplication::setPalette(dark);
    PageView onDark;
    EXPECT_EQ(onDark.palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_LT(onDark.palette().color(QPalette::Text).lightness(), 80);
    QApplication::setPalette(before);
}

TEST_F(PageViewTest, ItsMenuIsDutchAndWorks) {
    page.Open(Write("een.htm", "<p>Een</p>"));
    QSignalSpy find(&page, &PageView::FindWanted);
    QStringList items;
    withContextMenu(*page.viewport(), [&](const QMenu& menu) {
        for (QAction* action : menu.actions()) {
            if (!action->isSeparator())
                items << action->text();
            if (action->text() == "Zoeken..." || action->text() == "Groter")
                action->trigger();
        }
    });
    EXPECT_EQ(items, QStringList({"Terug", "Vooruit", "Kopiëren", "Alles selecteren", "Zoeken...",
                                  "Groter", "Kleiner", "Normale grootte"}));
    EXPECT_EQ(find.size(), 1);
    EXPECT_EQ(page.Zoom(), 110);
}

} // namespace

} // namespace veltrix::test
