#include "app/EventEdge.h"
#include "app/FORM1.h"
#include "app/qt/QtDialogs.h"
#include "app/qt/QtMainWindow.h"
#include "app/qt/QtPlatform.h"

#include <QApplication>
#include <QMenuBar>

namespace {

/// A board without a microphone and a loudspeaker.
class Silence : public veltrix::SoundSensor, public veltrix::SoundPlayer {
public:
    std::int32_t GetVolume() override { return 0; }

    void Play(const std::string& /*name*/) override {}
};

} // namespace

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
    Silence silence;

    EventEdge* edge = nullptr;
    QtTickTimer timer([&] {
        edge->Tick();
        window.Surface().ShowChanges();
    });
    FORM1 form({window, program, window, window, messages, files, timer, clock, pointer, silence,
                silence, log});
    EventEdge eventEdge(form, messages, notice, log);
    edge = &eventEdge;
    window.Connect(form, eventEdge);

    eventEdge.Command([](FORM1& starting) { starting.Form_Load(); });
    return form.Ended() ? program.Status() : QApplication::exec();
}
