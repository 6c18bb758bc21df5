#include "app/EventEdge.h"
#include "app/FORM1.h"
#include "app/qt/QtDialogs.h"
#include "app/qt/QtMainWindow.h"
#include "app/qt/QtPlatform.h"
#include "app/qt/QtProgramStart.h"
#include "app/qt/QtSettings.h"
#include "app/qt/QtWaveInputsDialog.h"
#include "app/qt/Sound.h"

#include <QApplication>
#include <QMenuBar>

#include <cstdlib>
#include <memory>

int main(int argc, char** argv) {
    using namespace veltrix;

    QApplication application(argc, argv);
    QtProgram program;
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
    const std::unique_ptr<Sound> sound = MakeSound(program.Folder(), log);

    EventEdge* edge = nullptr;
    QtTickTimer timer([&] {
        edge->Tick();
        window.Surface().ShowChanges();
    });
    FORM1 form({window, program, window, window, messages, files, timer, clock, pointer,
                sound->Captures(), settings, waveInputs, programs, sound->Player(), log});
    EventEdge eventEdge(form, messages, notice, log);
    edge = &eventEdge;
    window.Connect(form, eventEdge);

    QtTickTimer waveTimer(
        [&] { eventEdge.Mouse([](FORM1& running) { running.UCWaveIn1.Timer1_Timer(); }); });
    waveTimer.SetEnabled(true);

    eventEdge.Command([](FORM1& starting) { starting.Form_Load(); });
    const int status = form.Ended() ? program.Status() : QApplication::exec();
    if (!sound->Close())
        std::_Exit(status);
    return status;
}
