#include "document/Dialogs.h"

#include <gtest/gtest.h>

namespace veltrix {
namespace {

class NoDialog : public FileDialog {
public:
    std::optional<std::string> ShowOpen(const std::string& /*filter*/) override { return {}; }

    std::optional<std::string> ShowSave(const std::string& /*filter*/) override { return {}; }
};

TEST(FileDialog, KeepsTheFileThatWasUsedLast) {
    NoDialog dialog;
    EXPECT_EQ(dialog.FileName(), "");
    dialog.SetFileName("C:\\caf\u00E9.vtx");
    EXPECT_EQ(dialog.FileName(), "C:\\caf\u00E9.vtx");
}

} // namespace
} // namespace veltrix
