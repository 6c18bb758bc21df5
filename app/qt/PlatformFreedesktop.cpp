#include "app/FreedesktopFileTypes.h"
#include "app/qt/Platform.h"
#include "board/AppPath.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include <cstdlib>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

namespace veltrix {

namespace {

QString textOf(const std::filesystem::path& path) {
    return QString::fromStdString(Utf8FromPath(path));
}

class FreedesktopShell : public Shell {
public:
    std::int32_t Open(const std::string& address, const std::string& /*folder*/) override {
        constexpr std::int32_t opened = 33;
        if (!QDesktopServices::openUrl(QUrl(QString::fromStdString(address))))
            throw std::runtime_error("there is no program that opens web addresses");
        return opened;
    }
};

void makeIndex(const FreedesktopFileTypes::Index& index) {
    // Looking first is cheaper than finding out by starting it.
    const QString program = QStandardPaths::findExecutable(QString::fromStdString(index.Program));
    if (program.isEmpty())
        return;
    QProcess process;
    process.setProgram(program);
    process.setArguments({textOf(index.Folder)});
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.startDetached();
}

class UserFileTypes : public FileTypes {
public:
    explicit UserFileTypes(std::filesystem::path program) : program_(std::move(program)) {}

    void RegisterFileType() noexcept override {
        // Files can be slow, and nobody double-clicks a document in the first half second.
        constexpr int afterTheStart = 500; // ms
        QTimer::singleShot(afterTheStart, qApp, [program = program_] { write(program); });
    }

private:
    static void write(const std::filesystem::path& program) {
        std::vector<std::filesystem::path> folders;
        for (const QString& folder :
             QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
            folders.push_back(PathFromUtf8(folder.toStdString()));
        if (folders.empty())
            return;
        const std::filesystem::path home = folders.front();
        folders.erase(folders.begin());
        for (const auto& index : FreedesktopFileTypes(program, home, std::move(folders)).Write())
            makeIndex(index);
    }

    std::filesystem::path program_;
};

bool isNamed(const char* variable) {
    const char* value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

} // namespace

std::unique_ptr<Shell> MakeShell() {
    return std::make_unique<FreedesktopShell>();
}

std::unique_ptr<FileTypes> MakeFileTypes(const std::filesystem::path& program) {
    return std::make_unique<UserFileTypes>(program);
}

std::optional<std::string> NoDisplayReason(int argumentCount, const char* const* arguments) {
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (isNamed(variable))
            return std::nullopt;
    for (int i = 1; i < argumentCount; ++i) {
        // Whoever names the platform or the display knows what he does.
        const std::string_view argument = arguments[i];
        for (const std::string_view name : {"platform", "display"})
            if (argument == "-" + std::string(name) || argument == "--" + std::string(name))
                return std::nullopt;
    }
    return "neither DISPLAY nor WAYLAND_DISPLAY is set";
}

} // namespace veltrix
