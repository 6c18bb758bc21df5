#include "app/modControlPanel.h"
#include "tests/support/MemoryDesktop.h"
#ifndef _WIN32
#include "tests/app/EnvironmentVariable.h"
#endif

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace veltrix::test {
namespace {

using testing::ElementsAre;

TEST(modControlPanel, WhetherTheProgramStartedIsTheAnswer) {
    FakeProgramStart start;
    start.installed = "here";
    EXPECT_TRUE(modControlPanel::Run(start, "here with arguments"));
    EXPECT_FALSE(modControlPanel::Run(start, "gone"));
    EXPECT_THAT(start.asked, ElementsAre("here with arguments", "gone"));
}

TEST(modControlPanel, AnErrorIsOnlyAnAnswer) {
    struct Failing : ProgramStart {
        bool Start(const std::string& /*commandLine*/) override {
            throw std::runtime_error("no more processes");
        }
    } start;

    EXPECT_FALSE(modControlPanel::Run(start, "anything"));
}

#ifdef _WIN32
TEST(modControlPanel, TheSoundSettingsAreASheetOfTheControlPanel) {
    EXPECT_THAT(modControlPanel::SoundSettings(),
                ElementsAre("rundll32.exe shell32.dll,Control_RunDLL mmsys.cpl @1"));
}
#else
std::vector<std::string> settingsOn(const std::optional<std::string>& desktop) {
    const EnvironmentVariable variable("XDG_CURRENT_DESKTOP", desktop);
    return modControlPanel::SoundSettings();
}

TEST(modControlPanel, TheDesktopsOwnSoundSettingsComeFirst) {
    EXPECT_EQ(settingsOn("GNOME").front(), "gnome-control-center sound");
    EXPECT_EQ(settingsOn("ubuntu:GNOME").front(), "gnome-control-center sound");
    EXPECT_EQ(settingsOn("GNOME-Flashback:GNOME").front(), "gnome-control-center sound");
    EXPECT_EQ(settingsOn("KDE").front(), "systemsettings kcm_pulseaudio");
    EXPECT_EQ(settingsOn("X-Cinnamon").front(), "cinnamon-settings sound");
    EXPECT_EQ(settingsOn("MATE").front(), "mate-volume-control");
    EXPECT_EQ(settingsOn("LXQt").front(), "pavucontrol-qt");
}

TEST(modControlPanel, AnyOtherDesktopHasThoseThatServeAll) {
    for (const char* desktop : {"XFCE", "", ":", "GNOMEX", "gnome"})
        EXPECT_EQ(settingsOn(desktop).front(), "pavucontrol") << desktop;
    EXPECT_THAT(settingsOn(std::nullopt), ElementsAre("pavucontrol", "pavucontrol-qt"));
}

TEST(modControlPanel, ADesktopFallsBackOnThoseThatServeAll) {
    EXPECT_THAT(settingsOn("MATE"),
                ElementsAre("mate-volume-control", "pavucontrol", "pavucontrol-qt"));
}
#endif

} // namespace
} // namespace veltrix::test
