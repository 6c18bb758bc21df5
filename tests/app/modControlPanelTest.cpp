#include "app/modControlPanel.h"
#include "tests/support/MemoryDesktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

namespace veltrix {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

TEST(modControlPanel, WhetherTheProgramStartedIsTheAnswer) {
    test::FakeProgramStart start;
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
class SoundSettingsOn : public testing::Test {
protected:
    ~SoundSettingsOn() override { unsetenv("XDG_CURRENT_DESKTOP"); }

    static std::string firstOn(const char* desktop) {
        setenv("XDG_CURRENT_DESKTOP", desktop, 1);
        return modControlPanel::SoundSettings().front();
    }
};

TEST_F(SoundSettingsOn, EveryDesktopItsOwnComeFirst) {
    EXPECT_EQ(firstOn("GNOME"), "gnome-control-center sound");
    EXPECT_EQ(firstOn("ubuntu:GNOME"), "gnome-control-center sound");
    EXPECT_EQ(firstOn("GNOME-Flashback:GNOME"), "gnome-control-center sound");
    EXPECT_EQ(firstOn("KDE"), "systemsettings kcm_pulseaudio");
    EXPECT_EQ(firstOn("X-Cinnamon"), "cinnamon-settings sound");
    EXPECT_EQ(firstOn("MATE"), "mate-volume-control");
    EXPECT_EQ(firstOn("LXQt"), "pavucontrol-qt");
}

TEST_F(SoundSettingsOn, AnyOtherDesktopHasThoseThatServeAll) {
    for (const char* desktop : {"XFCE", "", ":", "GNOMEX", "gnome"})
        EXPECT_EQ(firstOn(desktop), "pavucontrol") << desktop;
    unsetenv("XDG_CURRENT_DESKTOP");
    EXPECT_THAT(modControlPanel::SoundSettings(), ElementsAre("pavucontrol", "pavucontrol-qt"));
}

TEST_F(SoundSettingsOn, ADesktopFallsBackOnThoseThatServeAll) {
    setenv("XDG_CURRENT_DESKTOP", "MATE", 1);
    EXPECT_THAT(modControlPanel::SoundSettings(),
                ElementsAre("mate-volume-control", "pavucontrol", "pavucontrol-qt"));
}
#endif

} // namespace
} // namespace veltrix
