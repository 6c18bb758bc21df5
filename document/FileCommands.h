#pragma once

#include "document/Dialogs.h"
#include "instruments/Board.h"

#include <cstdint>
#include <string>

namespace veltrix {

/// The undo states, as far as the file commands know them.
class History {
public:
    virtual ~History() = default;

    /// Forgets every state and records the board as it is now as the first one.
    virtual void Reset() = 0;

    /// Records the board as it is now as one more state.
    virtual void Undo_AddThisState() = 0;

    /// Whether the board is at any state but the first.
    [[nodiscard]] virtual bool Changed() const = 0;
};

/// What shows which document is on the board.
class DocumentWindow {
public:
    virtual ~DocumentWindow() = default;
    virtual void SetCaption(const std::string& text) = 0;
    virtual void SetSaveEnabled(bool Enabled) = 0;
};

/// What can end the program.
class ProgramEnd {
public:
    virtual ~ProgramEnd() = default;

    /// Releases the board's objects and ends the program; no question is asked and no event comes
    /// any more. The caller returns at once.
    virtual void ClearObjects() = 0;
};

/// The text after the last backslash of a path; the whole path when there is none.
[[nodiscard]] std::string FileNameOnly(const std::string& path);

/// Whether there is a file (UTF-8 path) that can be opened and read.
[[nodiscard]] bool FileExists(const std::string& path);

/// The commands of the file menu, the closing of the window, and the document named on the command
/// line. Paths are UTF-8. What the streams and the board throw comes through, unless it says
/// otherwise; a save that fails leaves document, caption and menu as they were.
class FileCommands {
public:
    /// All of it must outlive the commands.
    FileCommands(Board& board, History& history, DocumentWindow& window, FileDialog& dialog,
                 MessageBox& messages, ProgramEnd& program) noexcept
        : board_(board),
          history_(history),
          window_(window),
          dialog_(dialog),
          messages_(messages),
          program_(program) {}

    /// A new board, unasked. The counter keeps its reading and the window its caption.
    void mnuNieuw_Click();

    /// Opens the document that the user chooses. An error ends the command without a word; the
    /// board stays as far as it was read.
    void mnuOpenen_Click();

    /// Saves to the current document; asks for one when there is none.
    void mnuBewaren_Click();

    /// Saves to the file that the user chooses, which becomes the current document. A name without
    /// an extension gets ".vtx"; a file that exists is overwritten only after asking.
    void mnuBewarenAls_Click();

    /// Ends the program, or asks first what to do with a board that was changed. Saving asks for a
    /// file, and the program stays open after it.
    void mnuSluiten_Click();

    /// The same for the window's own way of closing. `Cancel` is increased where the window must
    /// stay open, also when saving throws.
    void Form_Unload(std::int32_t& Cancel);

    /// Puts the document in a file on the board and makes it the current one. A file that holds no
    /// document is one without wires.
    void OpenDocument(const std::string& path);

    /// Opens the document that the command line names, in double quotes or not, and records the
    /// board as an undo state, whether there is a document or not. A file that is not there is
    /// reported to the user. When the file cannot be read, no state was recorded.
    void OpenFromCommandLine(const std::string& text);

    /// The path of the current document; empty for a board that has no file.
    [[nodiscard]] const std::string& Path() const noexcept { return path_; }

private:
    enum class Closing { Ends, Saves, Stays };

    [[nodiscard]] Closing askHowToClose();
    void save(const std::string& path);
    void setDocument(const std::string& path);

    Board& board_;
    History& history_;
    DocumentWindow& window_;
    FileDialog& dialog_;
    MessageBox& messages_;
    ProgramEnd& program_;
    std::string path_;
};

} // namespace veltrix
