#pragma once

#include "tests/app/qt/WaitUntil.h"
#include "tests/support/TempFolder.h"

#include <QFile>
#include <QMap>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <csignal>
#include <stdexcept>
#include <string>

namespace veltrix::test {

/// A sound server of this test's own, with a loudspeaker that nobody hears ("out"), and no input.
/// The program under test finds it by the environment.
class SoundServer {
public:
    /// Throws std::runtime_error when no server can be started here.
    SoundServer() { start(); }

    ~SoundServer() {
        if (server_.state() == QProcess::NotRunning)
            return;
        Continue();
        server_.terminate();
        if (!server_.waitForFinished(10000))
            server_.kill();
        server_.waitForFinished();
    }

    SoundServer(const SoundServer&) = delete;
    SoundServer& operator=(const SoundServer&) = delete;

    /// Plugs in an input, which hears what is played into a sink: by itself one of its own name.
    void AddInput(const QString& name, const QString& sink = {}) {
        if (sink.isEmpty())
            control({"load-module", "module-null-sink", "sink_name=" + name, "norewinds=1"});
        modules_[name] = control({"load-module", "module-remap-source", "source_name=in_" + name,
                                  "master=" + (sink.isEmpty() ? name : sink) + ".monitor",
                                  "source_properties=device.description=" + name});
    }

    /// Pulls an input out.
    void RemoveInput(const QString& name) { control({"unload-module", modules_.take(name)}); }

    /// The server hangs: it takes what it is sent, and answers nothing.
    void Stop() { signal(SIGSTOP); }

    void Continue() { signal(SIGCONT); }

    /// Ends the server and starts another one in its place, without inputs.
    void Restart() {
        server_.kill();
        server_.waitForFinished();
        modules_.clear();
        start();
    }

private:
    /// What a command to the server answers.
    static QString control(const QStringList& command) {
        QProcess pactl;
        pactl.start("pactl", command);
        if (!pactl.waitForFinished(60000) || pactl.exitCode() != 0)
            throw std::runtime_error("pactl " + command.join(' ').toStdString() + ": " +
                                     pactl.readAllStandardError().toStdString());
        return QString::fromUtf8(pactl.readAllStandardOutput()).trimmed();
    }

    [[nodiscard]] static bool answers() {
        QProcess pactl;
        pactl.start("pactl", {"stat"});
        return pactl.waitForFinished(60000) && pactl.exitCode() == 0;
    }

    void start() {
        const QString folder = QString::fromStdString(folder_.Path().string());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name :
             {"HOME", "XDG_RUNTIME_DIR", "PULSE_STATE_PATH", "PULSE_RUNTIME_PATH"})
            environment.insert(name, folder);
        environment.insert("PULSE_COOKIE", folder + "/cookie");
        environment.remove("DISPLAY");
        environment.remove("DBUS_SESSION_BUS_ADDRESS");
        server_.setProcessEnvironment(environment);
        server_.setProcessChannelMode(QProcess::MergedChannels);
        const QString socket = folder + "/server";
        // A test that is killed must not leave its server behind.
        server_.start("setpriv", {"--pdeathsig", "KILL", "pulseaudio", "-n", "--daemonize=no",
                                  "--use-pid-file=no", "--exit-idle-time=-1", "--realtime=no",
                                  "--high-priority=no", "-L",
                                  "module-native-protocol-unix auth-anonymous=1 socket=" + socket,
                                  "-L", "module-null-sink sink_name=out norewinds=1"});
        if (!server_.waitForStarted())
            throw std::runtime_error("no pulseaudio can be started: " +
                                     server_.errorString().toStdString());
        qputenv("PULSE_SERVER", ("unix:" + socket).toUtf8());
        qputenv("PULSE_COOKIE", (folder + "/cookie").toUtf8());
        const bool waited = waitUntil([&] {
            return server_.state() == QProcess::NotRunning || (QFile::exists(socket) && answers());
        });
        if (!waited || server_.state() == QProcess::NotRunning)
            throw std::runtime_error("pulseaudio does not run: " + server_.readAll().toStdString());
    }

    void signal(int number) const { ::kill(static_cast<pid_t>(server_.processId()), number); }

    TempFolder folder_;
    QProcess server_;
    QMap<QString, QString> modules_; // of the inputs
};

} // namespace veltrix::test
