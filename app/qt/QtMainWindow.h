#pragma once

#include "app/Desktop.h"
#include "app/EventEdge.h"
#include "app/qt/BoardWidget.h"

#include <QMainWindow>

#include <filesystem>
#include <memory>

class QAction;
class QMenu;

namespace veltrix {

class SplashWindow;

/// The main window: a menu bar over the board, in a frame that cannot be resized.
class QtMainWindow : public QMainWindow, public MainWindow, public UndoMenu, public EditModeMenu {
    Q_OBJECT

public:
    explicit QtMainWindow(const std::filesystem::path& applicationFolder);
    ~QtMainWindow() override;

    /// Wires the menu and the board to the program. Both must outlive the window's events.
    void Connect(FORM1& form, EventEdge& edge);

    [[nodiscard]] BoardWidget& Surface() noexcept { return *surface_; }

    void ShowSplash() override;
    void UnloadSplash() override;

    [[nodiscard]] double Scale() const override { return devicePixelRatioF(); }

    void Show() override;
    void FillWithSurface() override;
    void SetCaption(const std::string& caption) override;
    void SetSaveEnabled(bool Enabled) override;
    void SetUndoEnabled(bool Enabled) override;
    void SetRedoEnabled(bool Enabled) override;
    void SetCheckedMode(EditMode Mode) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    using Handler = void (FORM1::*)();

    void buildMenu();
    QAction* addItem(QMenu& menu, const char* name, const char* caption, Handler handler,
                     const QKeySequence& shortcut = {});

    std::filesystem::path applicationFolder_;
    std::unique_ptr<SplashWindow> splash_;
    BoardWidget* surface_ = nullptr;
    QAction* save_ = nullptr;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    QAction* operate_ = nullptr;
    QAction* drawWires_ = nullptr;
    QAction* removeWires_ = nullptr;
    FORM1* form_ = nullptr;
    EventEdge* edge_ = nullptr;
};

} // namespace veltrix
