#include "app/qt/Platform.h"
#include "app/qt/WindowsRegistry.h"
#include "board/AppPath.h"
#include "document/modFileAssoc.h"

#include <windows.h>

#include <shellapi.h> // needs what the one before declares

namespace veltrix {

namespace {

class WindowsShell : public Shell {
public:
    std::int32_t Open(const std::string& address, const std::string& folder) override {
        HINSTANCE const answer =
            ::ShellExecuteW(nullptr, nullptr, PathFromUtf8(address).c_str(), nullptr,
                            PathFromUtf8(folder).c_str(), SW_SHOWNORMAL);
        return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(answer));
    }
};

class WindowsFileTypes : public FileTypes {
public:
    explicit WindowsFileTypes(const std::filesystem::path& program) : program_(program) {}

    void RegisterFileType() noexcept override {
        try {
            WindowsRegistry registry;
            modFileAssoc(registry, Utf8FromPath(program_.parent_path().make_preferred()),
                         Utf8FromPath(program_.stem()))
                .RegisterFileType();
        } catch (const std::exception&) {
            // Double clicks go where they went before.
        }
    }

private:
    std::filesystem::path program_;
};

} // namespace

std::unique_ptr<Shell> MakeShell() {
    return std::make_unique<WindowsShell>();
}

std::unique_ptr<FileTypes> MakeFileTypes(const std::filesystem::path& program) {
    return std::make_unique<WindowsFileTypes>(program);
}

std::optional<std::string> NoDisplayReason(int /*argumentCount*/,
                                           const char* const* /*arguments*/) {
    return std::nullopt;
}

} // namespace veltrix
