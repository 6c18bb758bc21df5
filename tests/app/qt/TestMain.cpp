#include "tests/support/TempFolder.h"

#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

namespace {

/// A home folder of the tests' own, so that neither the settings of whoever runs them nor what
/// another test left behind shows in a window.
void liveIn(const std::filesystem::path& home) {
    qputenv("HOME", home.c_str());
    for (const char* name :
         {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
        std::filesystem::create_directory(home / name);
        std::filesystem::permissions(home / name, std::filesystem::perms::owner_all);
        qputenv(name, (home / name).c_str());
    }
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
}

/// The platform without a screen tells of every window that it knows no hints of sizes.
void pass(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (!message.contains("propagateSizeHints"))
        qt_message_output(type, context, message);
}

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(pass);
    const veltrix::test::TempFolder home;
    liveIn(home.Path());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setStyle("Fusion");
    const QApplication application(argc, argv);
    // A test that closes its only window must not end the event loops of all that follow.
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
