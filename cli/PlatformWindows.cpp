#include "cli/Platform.h"

#include "board/AppPath.h"

#include <windows.h>

#include <shellapi.h> // needs the one above

namespace veltrix::cli {

std::filesystem::path ApplicationFolder() {
    constexpr DWORD longestPath = 32767;
    std::wstring program(longestPath, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), longestPath));
    return std::filesystem::path(program).parent_path();
}

std::vector<std::string> Arguments(int /*count*/, const char* const* /*values*/) {
    // What main is given has lost the letters that the system's code page lacks.
    int count = 0;
    wchar_t** const values = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(Utf8FromPath(values[i]));
    LocalFree(values);
    return arguments;
}

} // namespace veltrix::cli
