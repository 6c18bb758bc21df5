#include "app/qt/Platform.h"

#include "tests/app/EnvironmentVariable.h"
#include "tests/app/qt/WaitUntil.h"
#include "tests/support/TempFolder.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>

namespace veltrix::test {

namespace {

struct PlatformTest : testing::Test {
    EnvironmentVariable display{"DISPLAY", std::nullopt};
    EnvironmentVariable wayland{"WAYLAND_DISPLAY", std::nullopt};
    EnvironmentVariable platform{"QT_QPA_PLATFORM", std::nullopt};
};

template <typename... Arguments>
std::optional<std::string> reasonWith(Arguments... arguments) {
    const std::array<const char*, sizeof...(arguments) + 1> all{"veltrix", arguments...};
    return NoDisplayReason(static_cast<int>(all.size()), all.data());
}

TEST_F(PlatformTest, WithoutADisplayTheReasonIsOneLine) {
    EXPECT_EQ(reasonWith(), "neither DISPLAY nor WAYLAND_DISPLAY is set");
    EXPECT_TRUE(reasonWith("bord.vtx"));
    const EnvironmentVariable empty("DISPLAY", "");
    EXPECT_TRUE(reasonWith());
}

TEST_F(PlatformTest, ADisplayThatIsNamedIsTried) {
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        const EnvironmentVariable named(name, "x");
        EXPECT_FALSE(reasonWith()) << name;
    }
    EXPECT_FALSE(reasonWith("-platform", "offscreen"));
    EXPECT_FALSE(reasonWith("--platform", "offscreen"));
    EXPECT_FALSE(reasonWith("-display", ":1"));
}

TEST_F(PlatformTest, TheDocumentTypeIsRegisteredForTheUserAfterAWhile) {
    const TempFolder folder;
    const EnvironmentVariable home("XDG_DATA_HOME", folder.Path().string());
    const EnvironmentVariable data("XDG_DATA_DIRS", "/nowhere");
    const auto entry = folder.Path() / "applications/veltrix.desktop";
    MakeFileTypes("/opt/veltrix/veltrix")->RegisterFileType();
    EXPECT_FALSE(std::filesystem::exists(entry)) << "the start does not wait for it";
    EXPECT_TRUE(waitUntil([&] { return std::filesystem::exists(entry); }));
    EXPECT_TRUE(std::filesystem::exists(folder.Path() / "mime/packages/veltrix.xml"));
}

TEST_F(PlatformTest, AScreenlessDesktopOpensNoAddress) {
    if (QGuiApplication::platformName() != "offscreen")
        GTEST_SKIP() << "there is a screen";
    EXPECT_THROW(MakeShell()->Open("https://veltrix.example/", "C:\\"), std::runtime_error);
}

} // namespace

} // namespace veltrix::test
