#include "app/qt/QtProgramStart.h"

#include <QProcess>
#include <QStringList>

namespace veltrix {

bool QtProgramStart::Start(const std::string& commandLine) {
    QStringList words = QProcess::splitCommand(QString::fromStdString(commandLine));
    if (words.isEmpty())
        return false;
    QProcess process;
    process.setProgram(words.takeFirst());
    process.setArguments(words);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

} // namespace veltrix
