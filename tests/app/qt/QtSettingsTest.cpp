#include "app/qt/QtSettings.h"
#include "tests/support/TempFolder.h"

#include <QSettings>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace veltrix {
namespace {

/// Settings that a user wrote into the file where this desktop keeps them.
class SettingsOf : public testing::Test {
protected:
    SettingsOf() {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home.Path().c_str());
    }

    [[nodiscard]] std::filesystem::path file() const { return home.Path() / "VELTRIX2.conf"; }

    void write(const std::string& text) const { std::ofstream(file()) << text; }

    [[nodiscard]] static std::string value() {
        return QtSettings().Get("VELTRIX2", "Sound", "Value", "On");
    }

    test::TempFolder home;
};

TEST_F(SettingsOf, NobodyAreTheStandard) {
    EXPECT_EQ(value(), "On");
    write("[Other]\nValue=Off\n[Sound]\nOther=Off\n");
    EXPECT_EQ(value(), "On");
}

TEST_F(SettingsOf, TheUserAreWhatWasWritten) {
    write("[Sound]\nValue=Off\n");
    EXPECT_EQ(value(), "Off");
}

TEST_F(SettingsOf, AUserWithADamagedFileAreTheStandard) {
    write(std::string("\0\xFF[[[Sound\nValue==", 18));
    EXPECT_EQ(value(), "On");
}

TEST_F(SettingsOf, TheUserAreNeverWritten) {
    (void)value();
    EXPECT_TRUE(std::filesystem::is_empty(home.Path()));
    const std::string text = "; mine\n[Sound]\nValue = off\n";
    write(text);
    EXPECT_EQ(value(), "off");
    std::ifstream in(file());
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), text);
}

} // namespace
} // namespace veltrix
