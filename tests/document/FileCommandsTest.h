#pragma once

#include "document/FileCommands.h"
#include "tests/document/Documents.h"
#include "tests/support/TestBoard.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace veltrix::test {

/// A question that was put to the user.
struct Asked {
    std::string text;
    std::string title;
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;

    friend bool operator==(const Asked&, const Asked&) = default;
};

/// The one before a changed board is lost.
inline const Asked saveQuestion{"Dit veltrix bewaren?", "Veltrix versie 2.0", Buttons::YesNoCancel,
                                Icon::None};

/// The user: answers questions and chooses files, and keeps what was asked.
class User : public MessageBox, public FileDialog {
public:
    Answer Show(const std::string& text, const std::string& title, Buttons buttons,
                Icon icon) override {
        asked.push_back({text, title, buttons, icon});
        if (answers.empty())
            throw std::logic_error("an unexpected question: " + text);
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::optional<std::string> ShowOpen(const std::string& filter) override {
        return choose("open " + filter);
    }

    std::optional<std::string> ShowSave(const std::string& filter) override {
        return choose("save " + filter);
    }

    std::deque<Answer> answers;
    std::optional<std::string> file;
    std::function<void()> whenChosen = [] {};
    std::vector<Asked> asked;
    std::vector<std::string> dialogs;

private:
    std::optional<std::string> choose(const std::string& dialog) {
        dialogs.push_back(dialog);
        whenChosen();
        return file;
    }
};

/// Keeps the steps as documents, so that a test sees which board each of them holds.
class Steps : public History {
public:
    explicit Steps(const Board& board) : board_(board) {}

    void Reset() override {
        resets += 1;
        steps.clear();
        Undo_AddThisState();
    }

    void Undo_AddThisState() override { steps.push_back(documentOf(board_)); }

    [[nodiscard]] bool Changed() const override { return steps.size() > 1; }

    std::vector<std::string> steps;
    int resets = 0;

private:
    const Board& board_;
};

/// Keeps what the window shows.
class Window : public DocumentWindow {
public:
    void SetCaption(const std::string& text) override { caption = text; }

    void SetSaveEnabled(bool Enabled) override { saveEnabled = Enabled; }

    std::string caption = ProgramTitle;
    bool saveEnabled = false;
};

/// Keeps whether the program was ended.
class End : public ProgramEnd {
public:
    void ClearObjects() override { ended = true; }

    bool ended = false;
};

/// What User keeps of the two dialogs.
inline constexpr const char* openDialog = "open Veltrix bestanden *.vtx|*.vtx";
inline constexpr const char* saveDialog = "save Veltrix bestanden *.vtx|*.vtx";

/// The commands on a board, a user and a folder of their own.
class FileCommandsTest : public testing::Test {
protected:
    /// The end of the program's start: the command line, then the first step.
    void start(const std::string& commandLine = {}) { commands.OpenFromCommandLine(commandLine); }

    void edit() {
        wire(board, "Sensor 1 Uit Geel", "LED 1 Ingang");
        history.Undo_AddThisState();
    }

    [[nodiscard]] std::string path(const std::string& name) const {
        return Utf8FromPath(folder.Path() / PathFromUtf8(name));
    }

    /// A document with one wire and two settings of its own.
    std::string makeDocument(const std::string& name) {
        TestBoard other;
        wire(other.board, "Drukknop 1 Uit Geel", "Zoemer");
        other.board.Knobs.Comparator = 31;
        other.board.Display.SetValue(4);
        putBytes(folder.Path() / PathFromUtf8(name), documentOf(other.board));
        return path(name);
    }

    /// A document whose counter's reading is no digit: reading it ends there.
    std::string makeDamagedDocument(const std::string& name) {
        std::string document = makeDocument(name);
        putBytes(PathFromUtf8(document), with(bytesOf(PathFromUtf8(document)), field::Counter, 11));
        return document;
    }

    /// What closing the window makes of a `Cancel` of 0.
    std::int32_t cancelOfUnload() {
        std::int32_t Cancel = 0;
        commands.Form_Unload(Cancel);
        return Cancel;
    }

    TestBoard on;
    Board& board = on.board;
    TempFolder folder;
    Steps history{board};
    Window window;
    User user;
    End program;
    FileCommands commands{board, history, window, user, user, program};
};

} // namespace veltrix::test
