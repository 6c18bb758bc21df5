#pragma once

#include <optional>
#include <string>
#include <utility>

namespace veltrix {

/// What the title bar, and every question that has no title of its own, calls the program.
inline constexpr const char* ProgramTitle = "Veltrix versie 2.0";

enum class Buttons { Ok, YesNo, YesNoCancel };

enum class Icon { None, Information };

/// The button that ended a message box. Closing the box otherwise is Cancel, No where there is no
/// Cancel, Ok where there is neither.
enum class Answer { Ok, Yes, No, Cancel };

/// Shows a text in a window and waits until the user answers. All texts are UTF-8.
class MessageBox {
public:
    virtual ~MessageBox() = default;
    virtual Answer Show(const std::string& text, const std::string& title, Buttons buttons,
                        Icon icon = Icon::None) = 0;
};

/// Asks the user for a file. Paths are UTF-8, in the platform's form.
class FileDialog {
public:
    virtual ~FileDialog() = default;

    /// Asks for a file to open, or for one to save to; nothing when the user chooses none. The
    /// filter is a description and a pattern with a bar between them. What it means to save over a
    /// file that exists is for the caller to ask, not for the dialog.
    virtual std::optional<std::string> ShowOpen(const std::string& filter) = 0;
    virtual std::optional<std::string> ShowSave(const std::string& filter) = 0;

    /// The file that was used last: where the next dialog begins.
    [[nodiscard]] const std::string& FileName() const noexcept { return fileName_; }

    void SetFileName(std::string path) { fileName_ = std::move(path); }

private:
    std::string fileName_;
};

} // namespace veltrix
