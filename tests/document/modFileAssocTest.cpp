#include "document/modFileAssoc.h"

#include "tests/support/MemoryRegistry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace veltrix::test {

namespace {

using testing::IsEmpty;
using testing::Key;
using testing::UnorderedElementsAre;

/// Text as it lies in the registry: with its zero byte.
std::string stored(const std::string& text) {
    return text + std::string(1, '\0');
}

struct modFileAssocTest : testing::Test {
    void TearDown() override {
        EXPECT_THAT(registry.open, IsEmpty()) << "every key that is opened is closed";
        EXPECT_EQ(registry.closedWrongly, 0);
    }

    void Register(const std::string& folder, const std::string& name) {
        modFileAssoc(registry, folder, name).RegisterFileType();
    }

    MemoryRegistry registry;
    modFileAssoc association{registry, "C:\\Apps\\Board", "board"};
};

TEST_F(modFileAssocTest, WritesTheFourValues) {
    association.RegisterFileType();
    EXPECT_EQ(registry.Default(".vtx"), stored("Veltrix.Document"));
    EXPECT_EQ(registry.Default("Veltrix.Document"), stored("Veltrix Document"));
    EXPECT_EQ(registry.Default("Veltrix.Document\\shell\\open\\command"),
              stored("C:\\Apps\\Board\\board.exe \"%1\""));
    EXPECT_EQ(registry.Default("Veltrix.Document\\DefaultIcon"),
              stored("C:\\Apps\\Board\\images1\\doc.ico,0"));
}

TEST_F(modFileAssocTest, WritesTextAndNothingElse) {
    association.RegisterFileType();
    EXPECT_THAT(registry.keys, UnorderedElementsAre(Key(".vtx"), Key("Veltrix.Document"),
                                                    Key("Veltrix.Document\\shell"),
                                                    Key("Veltrix.Document\\shell\\open"),
                                                    Key("Veltrix.Document\\shell\\open\\command"),
                                                    Key("Veltrix.Document\\DefaultIcon")));
    int values = 0;
    for (const auto& [key, itsValues] : registry.keys)
        for (const auto& [name, value] : itsValues) {
            ++values;
            EXPECT_EQ(name, "") << key;
            EXPECT_EQ(value.type, Registry::Type::Sz) << key;
        }
    EXPECT_EQ(values, 4);
}

TEST_F(modFileAssocTest, TheRootOfADriveKeepsItsBackslash) {
    Register("D:\\", "veltrix");
    EXPECT_EQ(registry.Default("Veltrix.Document\\shell\\open\\command"),
              stored("D:\\\\veltrix.exe \"%1\""));
    EXPECT_EQ(registry.Default("Veltrix.Document\\DefaultIcon"),
              stored("D:\\\\images1\\doc.ico,0"));
}

TEST_F(modFileAssocTest, RegisteringAgainLeavesTheSameValues) {
    association.RegisterFileType();
    const auto first = registry.keys;
    association.RegisterFileType();
    EXPECT_EQ(registry.keys, first);
}

TEST_F(modFileAssocTest, OverwritesWhateverWasRegistered) {
    registry.keys[".vtx"][""] = {Registry::Type::Dword, "1234"};
    Register("E:\\Old", "older");
    association.RegisterFileType();
    EXPECT_EQ(registry.keys[".vtx"][""].type, Registry::Type::Sz);
    EXPECT_EQ(registry.Default(".vtx"), stored("Veltrix.Document"));
    EXPECT_EQ(registry.Default("Veltrix.Document\\shell\\open\\command"),
              stored("C:\\Apps\\Board\\board.exe \"%1\""));
}

TEST_F(modFileAssocTest, AFolderWithAnAccentIsStoredInTheAnsiCodePage) {
    Register("C:\\Één map", "veltrix");
    EXPECT_EQ(registry.Default("Veltrix.Document\\DefaultIcon"),
              stored("C:\\\xC9\xE9n map\\images1\\doc.ico,0"));
}

TEST_F(modFileAssocTest, WithoutTheRightsNothingHappens) {
    registry.readOnly = true;
    association.RegisterFileType();
    EXPECT_THAT(registry.keys, IsEmpty());
}

TEST_F(modFileAssocTest, AKeyThatCannotBeOpenedGetsNoValue) {
    association.SetRegValue(".vtx", "", Registry::Type::Sz, std::string("Veltrix.Document"));
    EXPECT_THAT(registry.keys, IsEmpty());
}

TEST_F(modFileAssocTest, TextIsStoredWithItsZeroByte) {
    association.CreateRegKey(Registry::ClassesRoot, ".vtx");
    association.SetRegValue(".vtx", "Content Type", Registry::Type::Sz, std::string());
    EXPECT_EQ(registry.keys[".vtx"]["Content Type"].data, stored(""));
}

TEST_F(modFileAssocTest, ANumberIsStoredInFourBytes) {
    association.CreateRegKey(Registry::ClassesRoot, ".vtx");
    const auto stored = [&](std::int32_t number) {
        association.SetRegValue(".vtx", "EditFlags", Registry::Type::Dword, number);
        return registry.keys[".vtx"]["EditFlags"].data;
    };
    EXPECT_EQ(stored(0x01020384), std::string("\x84\x03\x02\x01"));
    EXPECT_EQ(stored(0), std::string(4, '\0'));
    EXPECT_EQ(stored(-2), std::string("\xFE\xFF\xFF\xFF"));
    EXPECT_EQ(stored(std::numeric_limits<std::int32_t>::min()), std::string("\0\0\0\x80", 4));
    EXPECT_EQ(registry.keys[".vtx"]["EditFlags"].type, Registry::Type::Dword);
}

TEST_F(modFileAssocTest, OtherTypesWriteNothing) {
    association.CreateRegKey(Registry::ClassesRoot, ".vtx");
    for (const std::uint32_t type : {0U, 2U, 3U, 5U, 7U, 11U}) {
        association.SetRegValue(".vtx", "", Registry::Type{type}, std::string("text"));
        association.SetRegValue(".vtx", "", Registry::Type{type}, 7);
    }
    association.SetRegValue(".vtx", "", Registry::Type::Dword, std::string("text"));
    association.SetRegValue(".vtx", "", Registry::Type::Sz, 7);
    EXPECT_THAT(registry.keys[".vtx"], IsEmpty());
}

} // namespace

} // namespace veltrix::test
