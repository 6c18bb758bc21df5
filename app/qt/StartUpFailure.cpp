#include "app/qt/StartUpFailure.h"

#include <QString>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>

namespace veltrix {

namespace {

QtMessageHandler usual = nullptr;
QString firstComplaint;

void take(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtFatalMsg) {
        // The first complaint names the cause; the last one only guesses.
        const QString& reason = firstComplaint.isEmpty() ? message : firstComplaint;
        LeaveWithoutWindow(reason.section('\n', 0, 0).toUtf8().constData());
    }
    if (type == QtWarningMsg && firstComplaint.isEmpty())
        firstComplaint = message;
    else if (type != QtInfoMsg)
        usual(type, context, message);
}

} // namespace

StartUpFailure::StartUpFailure() {
    usual = qInstallMessageHandler(take);
}

StartUpFailure::~StartUpFailure() {
    qInstallMessageHandler(usual);
    if (!firstComplaint.isEmpty())
        qWarning("%s", qUtf8Printable(firstComplaint)); // it was not the end after all
}

void LeaveWithoutWindow(const char* reason) {
    std::fprintf(stderr, "veltrix: no window can be shown: %s\n", reason);
    std::_Exit(1);
}

} // namespace veltrix
