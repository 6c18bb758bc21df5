#include "app/qt/QtSettings.h"
#include "tests/document/Files.h"

#include <QSettings>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace veltrix::test {
namespace {

/// Settings that a user wrote into the file where this desktop keeps them.
class QtSettingsTest : public testing::Test {
protected:
    QtSettingsTest() {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home.Path().c_str());
    }

    [[nodiscard]] std::filesystem::path file() const { return home.Path() / "VELTRIX2.conf"; }

    void write(const std::string& text) const { putBytes(file(), text); }

    [[nodiscard]] static std::string value() {
        return QtSettings().Get("VELTRIX2", "Sound", "Value", "On");
    }

    TempFolder home;
};

TEST_F(QtSettingsTest, WhatNobodyWroteIsTheStandard) {
    EXPECT_EQ(value(), "On");
    write("[Other]\nValue=Off\n[Sound]\nOther=Off\n");
    EXPECT_EQ(value(), "On");
}

TEST_F(QtSettingsTest, WhatTheUserWroteCounts) {
    write("[Sound]\nValue=Off\n");
    EXPECT_EQ(value(), "Off");
}

TEST_F(QtSettingsTest, ADamagedFileIsTheStandard) {
    write(std::string("\0\xFF[[[Sound\nValue==", 18));
    EXPECT_EQ(value(), "On");
}

TEST_F(QtSettingsTest, TheFileOfTheUserIsNeverWritten) {
    (void)value();
    EXPECT_TRUE(std::filesystem::is_empty(home.Path()));
    const std::string text = "; mine\n[Sound]\nValue = off\n";
    write(text);
    EXPECT_EQ(value(), "off");
    EXPECT_EQ(bytesOf(file()), text);
}

} // namespace
} // namespace veltrix::test
