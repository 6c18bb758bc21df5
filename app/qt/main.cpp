#include "app/EventEdge.h"
#include "app/FORM1.h"
#include "app/qt/DutchTexts.h"
#include "app/qt/Platform.h"
#include "app/qt/QtAboutWindow.h"
#include "app/qt/QtDialogs.h"
#include "app/qt/QtMainWindow.h"
#include "app/qt/QtPictures.h"
#include "app/qt/QtPlatform.h"
#include "app/qt/QtProgramStart.h"
#include "app/qt/QtSettings.h"
#include "app/qt/QtWaveInputsDialog.h"
#include "app/qt/StartUpFailure.h"
#include "app/qt/help/QtHelpWindow.h"
#include "app/qt/sound/Sound.h"
#include "board/AppPath.h"

#include <QApplication>
#include <QLocale>
#include <QMenuBar>

#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

int main(int argc, char** argv) {
    using namespace veltrix;

    if (const auto reason = NoDisplayReason(argc, argv))
        LeaveWithoutWindow(reason->c_str());
    std::optional<StartUpFailure> failure(std::in_place);
    QApplication application(argc, argv);
    failure.reset();
    // What the desktop calls a type of file, and how it writes a date, is Dutch as all the rest.
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    DutchTexts dutch;
    QApplication::installTranslator(&dutch);
    QtProgram program;
    QApplication::setWindowIcon(
        LoadIcon(program.Folder(), "\\images2\\veltrix", {16, 24, 32, 48, 64, 128, 256}));
    QGuiApplication::setDesktopFileName("veltrix");
    QtMainWindow window(program.Folder());
    QtMessageBox messages(window);
    QtFileDialog files(window);
    QtFaultNotice notice(window);
    QtPointer pointer(window.Surface(), *window.menuBar());
    SystemClock clock;
    StandardErrorLog log;
    QtSettings settings;
    QtWaveInputsDialogs waveInputs(window);
    QtProgramStart programs;
    QtAboutWindows aboutWindows(window, program.Folder());
    QtHelpWindows helpWindows(program.Folder());
    const std::unique_ptr<Shell> shell = MakeShell();
    const std::unique_ptr<FileTypes> fileTypes =
        MakeFileTypes(PathFromUtf8(QApplication::applicationFilePath().toStdString()));
    const std::unique_ptr<Sound> sound = MakeSound(program.Folder(), log);

    EventEdge* edge = nullptr;
    QtTickTimer timer(Tick::Interval, [&] {
        edge->Tick();
        window.Surface().ShowChanges();
    });
    FORM1 form({window, program, window, window, messages, files, timer, clock, pointer,
                sound->Captures(), settings, waveInputs, programs, aboutWindows, helpWindows,
                *shell, *fileTypes, sound->Player(), log});
    EventEdge eventEdge(form, messages, notice, log);
    edge = &eventEdge;
    window.Connect(form, eventEdge);

    QtTickTimer waveTimer(UCWaveIn::Interval, [&] {
        eventEdge.Quietly([](FORM1& running) { running.UCWaveIn1.Timer1_Timer(); });
    });
    waveTimer.SetEnabled(true);

    eventEdge.Command([](FORM1& starting) { starting.Form_Load(); });
    // A start that failed has told why; without a window nobody could end the program.
    if (!form.Ended() && !window.isVisible())
        form.FatalError("Het programma kon niet starten.");
    const int status = form.Ended() ? program.Status() : QApplication::exec();
    if (!sound->Close())
        std::_Exit(status);
    return status;
}
