#include "app/qt/QtMainWindow.h"

#include "app/qt/QtPictures.h"
#include "app/qt/SplashWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QUrl>

namespace veltrix {

namespace {

/// The one board document that a drag brings, or nothing.
QString documentIn(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.first().isLocalFile())
        return {};
    const QString file = urls.first().toLocalFile();
    return file.endsWith(".vtx", Qt::CaseInsensitive) ? file : QString();
}

} // namespace

QtMainWindow::QtMainWindow(const std::filesystem::path& applicationFolder)
    : QMainWindow(nullptr, Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                               Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                               Qt::MSWindowsFixedSizeDialogHint),
      applicationFolder_(applicationFolder),
      surface_(new BoardWidget) {
    setObjectName("FORM1");
    setAcceptDrops(true);
    setContextMenuPolicy(Qt::NoContextMenu); // the right button belongs to the board
    buildMenu();
    setCentralWidget(surface_);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

QtMainWindow::~QtMainWindow() = default;

void QtMainWindow::Connect(FORM1& form, EventEdge& edge) {
    form_ = &form;
    edge_ = &edge;
    surface_->Connect(form, edge);
}

void QtMainWindow::ShowSplash() {
    splash_ = std::make_unique<SplashWindow>(applicationFolder_);
    splash_->ShowPainted();
}

void QtMainWindow::UnloadSplash() {
    splash_.reset();
}

void QtMainWindow::Show() {
    adjustSize();
    CentreOnScreen(*this);
    show();
}

void QtMainWindow::FillWithSurface() {
    surface_->move(0, menuBar()->height());
}

void QtMainWindow::SetCaption(const std::string& caption) {
    setWindowTitle(QString::fromStdString(caption));
}

void QtMainWindow::SetSaveEnabled(bool Enabled) {
    save_->setEnabled(Enabled);
}

void QtMainWindow::SetUndoEnabled(bool Enabled) {
    undo_->setEnabled(Enabled);
}

void QtMainWindow::SetRedoEnabled(bool Enabled) {
    redo_->setEnabled(Enabled);
}

void QtMainWindow::SetCheckedMode(EditMode Mode) {
    operate_->setChecked(Mode == EditMode::Operate);
    drawWires_->setChecked(Mode == EditMode::DrawWires);
    removeWires_->setChecked(Mode == EditMode::RemoveWires);
}

void QtMainWindow::buildMenu() {
    QMenu& bestand = *menuBar()->addMenu("&Bestand");
    bestand.setObjectName("mnuBestand");
    addItem(bestand, "mnuNieuw", "Nieuw", &FORM1::mnuNieuw_Click, QKeySequence("Ctrl+N"));
    addItem(bestand, "mnuOpenen", "Openen", &FORM1::mnuOpenen_Click, QKeySequence("Ctrl+O"));
    save_ =
        addItem(bestand, "mnuBewaren", "Bewaren", &FORM1::mnuBewaren_Click, QKeySequence("Ctrl+S"));
    addItem(bestand, "mnuBewarenAls", "Bewaren als..", &FORM1::mnuBewarenAls_Click);
    bestand.addSeparator()->setObjectName("mnuSep1");
    addItem(bestand, "mnuSluiten", "Sluiten", &FORM1::mnuSluiten_Click);

    QMenu& bewerken = *menuBar()->addMenu("Be&werken");
    bewerken.setObjectName("mnuBewerken");
    undo_ = addItem(bewerken, "mnuUndo", "&Ongedaan maken", &FORM1::mnuUndo_Click,
                    QKeySequence("Ctrl+Z"));
    redo_ =
        addItem(bewerken, "mnuRedo", "&Herhalen", &FORM1::mnuRedo_Click, QKeySequence("Ctrl+Y"));
    bewerken.addSeparator()->setObjectName("mnuSep2");
    addItem(bewerken, "mnuGeluidSensor", "GeluidSensor", &FORM1::mnuGeluidSensor_Click);

    QMenu& cursor = *menuBar()->addMenu("Cursor");
    cursor.setObjectName("mnuCursor");
    operate_ = addItem(cursor, "mnuRegelen", "Regelen", &FORM1::mnuRegelen_Click);
    drawWires_ = addItem(cursor, "mnuNieuweVerbindingen", "Nieuwe verbindingen",
                         &FORM1::mnuNieuweVerbindingen_Click);
    removeWires_ = addItem(cursor, "mnuVerwijderVerbindingen", "Verwijder verbindingen",
                           &FORM1::mnuVerwijderVerbindingen_Click);
    // Each a check mark of its own: a group would show them as radio buttons.
    for (QAction* mode : {operate_, drawWires_, removeWires_})
        mode->setCheckable(true);

    QMenu& help = *menuBar()->addMenu("&Help");
    help.setObjectName("mnuHelp");
    addItem(help, "mnuHelpInfo", "Info", &FORM1::mnuHelpInfo_Click);
    addItem(help, "mnuUitleg", "Uitleg", &FORM1::mnuUitleg_Click);
    addItem(help, "mnuHelpAbout", "Op internet: Over Veltrix", &FORM1::mnuHelpAbout_Click);
}

QAction* QtMainWindow::addItem(QMenu& menu, const char* name, const char* caption, Handler handler,
                               const QKeySequence& shortcut) {
    QAction* item = menu.addAction(caption);
    item->setObjectName(name);
    item->setShortcut(shortcut);
    connect(item, &QAction::triggered, this,
            [this, handler] { edge_->Command([handler](FORM1& form) { (form.*handler)(); }); });
    return item;
}

void QtMainWindow::closeEvent(QCloseEvent* event) {
    std::int32_t Cancel = 0;
    edge_->Command([&](FORM1& form) { form.Form_Unload(Cancel); });
    event->setAccepted(form_->Ended());
}

void QtMainWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        edge_->Quietly([](FORM1& form) { form.Escape_Press(); });
    else
        QMainWindow::keyPressEvent(event);
}

void QtMainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (form_ != nullptr)
        form_->Form_Resize();
}

void QtMainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!documentIn(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void QtMainWindow::dropEvent(QDropEvent* event) {
    const std::string document = documentIn(*event->mimeData()).toStdString();
    if (document.empty())
        return;
    event->acceptProposedAction();
    edge_->Command([&](FORM1& form) { form.Document_Drop(document); });
}

} // namespace veltrix
