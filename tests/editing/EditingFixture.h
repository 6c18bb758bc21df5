#pragma once

#include "tests/support/MemoryDesktop.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>

namespace veltrix::test {

/// The started program, of which a test is the user.
struct EditingFixture : testing::Test {
    EditingFixture() { desktop.Start(); }

    /// The same with pictures: the knob can be hit, and what is drawn is seen in the frame.
    explicit EditingFixture(const std::filesystem::path& pictures) : desktop(pictures) {
        desktop.Start();
    }

    [[nodiscard]] const Board& board() const { return desktop.form.TheBoard(); }

    [[nodiscard]] const clsLine& lineAt(std::int32_t index) const {
        return *board().Lines.Item(index);
    }

    [[nodiscard]] const UndoList& undo() const { return desktop.form.TheUndoList(); }

    MemoryDesktop desktop;
};

} // namespace veltrix::test
