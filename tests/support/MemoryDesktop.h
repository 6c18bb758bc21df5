#pragma once

#include "app/EventEdge.h"
#include "app/FORM1.h"
#include "tests/support/FakeAboutViews.h"
#include "tests/support/FakeHelpViews.h"
#include "tests/support/FakeShell.h"
#include "tests/support/FakeSound.h"
#include "tests/support/Logs.h"
#include "tests/support/TestSimulation.h"

#include <cstdint>
#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace veltrix::test {

/// Keeps what was shown, and gives the answers that the test put ready (the first button without).
struct FakeMessageBox : MessageBox {
    struct Shown {
        std::string text;
        std::string title;
        Buttons buttons = Buttons::Ok;
        Icon icon = Icon::None;
    };

    Answer Show(const std::string& text, const std::string& title, Buttons buttons,
                Icon icon) override {
        shown.push_back({text, title, buttons, icon});
        if (!answers.empty()) {
            const Answer answer = answers.front();
            answers.pop_front();
            return answer;
        }
        return buttons == Buttons::Ok ? Answer::Ok : Answer::Yes;
    }

    std::vector<Shown> shown;
    std::deque<Answer> answers;
};

/// Keeps the filter it was asked with, and answers with the file that the test chose (none
/// without).
struct FakeFileDialog : FileDialog {
    std::optional<std::string> ShowOpen(const std::string& asked) override { return answer(asked); }

    std::optional<std::string> ShowSave(const std::string& asked) override { return answer(asked); }

    std::optional<std::string> chosen;
    std::string filter;
    int times = 0;

private:
    std::optional<std::string> answer(const std::string& asked) {
        ++times;
        filter = asked;
        return chosen;
    }
};

/// Keeps what was done to it and in which order.
struct FakeWindow : MainWindow {
    void ShowSplash() override { events.emplace_back("splash shown"); }

    void UnloadSplash() override { events.emplace_back("splash gone"); }

    double Scale() const override { return scale; }

    void Show() override { events.emplace_back("window shown"); }

    void FillWithSurface() override { events.emplace_back("surface placed"); }

    void SetCaption(const std::string& text) override { caption = text; }

    void SetSaveEnabled(bool Enabled) override { saveEnabled = Enabled; }

    double scale = 1;
    std::vector<std::string> events;
    std::string caption;
    bool saveEnabled = true;
};

/// Keeps which items are enabled and checked.
struct FakeMenu : UndoMenu, EditModeMenu {
    void SetUndoEnabled(bool Enabled) override { undoEnabled = Enabled; }

    void SetRedoEnabled(bool Enabled) override { redoEnabled = Enabled; }

    void SetCheckedMode(EditMode Mode) override { mode = Mode; }

    bool undoEnabled = true;
    bool redoEnabled = true;
    std::optional<EditMode> mode;
};

/// A program in a folder without pictures, until the test names another one.
struct FakeProgram : Program {
    const std::filesystem::path& Folder() const override { return folder; }

    std::string CommandLine() const override { return commandLine; }

    void End(int status) override { ended = status; }

    std::filesystem::path folder = "no-pictures-here";
    std::string commandLine;
    std::optional<int> ended;
};

/// Keeps what was told without a box.
struct FakeNotice : FaultNotice {
    void Show(const std::string& text) override { shown.push_back(text); }

    std::vector<std::string> shown;
};

/// What a dialog of the sound inputs shows.
struct FakeWaveInputs {
    std::string inputCount;
    std::map<std::int32_t, std::string> names;
    std::map<std::int32_t, float> widths;
    std::map<std::int32_t, bool> visible;
    int shown = 0;
    bool unloaded = false;
};

/// Makes such dialogs. While one is shown the test does `whileShown`.
struct FakeWaveInputsViews : WaveInputsViews {
    using WhileShown = std::function<void(frmWaveInputs&, FakeWaveInputs&)>;

    struct View : WaveInputsView {
        View(FakeWaveInputs& seen, const WhileShown& whileShown)
            : seen_(seen), whileShown_(whileShown) {}

        void SetInputCount(const std::string& caption) override { seen_.inputCount = caption; }

        void SetName(std::int32_t i, const std::string& caption) override {
            seen_.names[i] = caption;
        }

        void SetMeter(std::int32_t i, float width, bool visible) override {
            seen_.widths[i] = width;
            seen_.visible[i] = visible;
        }

        void ShowModal(frmWaveInputs& dialog) override {
            ++seen_.shown;
            if (whileShown_)
                whileShown_(dialog, seen_);
        }

        void Unload() override { seen_.unloaded = true; }

    private:
        FakeWaveInputs& seen_;
        const WhileShown& whileShown_;
    };

    std::unique_ptr<WaveInputsView> Create() override {
        return std::make_unique<View>(dialogs.emplace_back(), whileShown);
    }

    std::deque<FakeWaveInputs> dialogs; ///< every one that was made
    WhileShown whileShown;
};

/// Keeps what it was asked to start, and starts nothing.
struct FakeProgramStart : ProgramStart {
    bool Start(const std::string& commandLine) override {
        asked.push_back(commandLine);
        return commandLine.substr(0, commandLine.find(' ')) == installed;
    }

    std::vector<std::string> asked;
    std::string installed; ///< the one program that is there
};

/// The whole program on a desktop that is only memory. The test is the user: it clicks snaps by
/// name, chooses menu items, answers boxes and turns the clock.
struct MemoryDesktop {
    MemoryDesktop() = default;

    /// With the board's pictures, so that the knob can be hit.
    explicit MemoryDesktop(const std::filesystem::path& pictures) { program.folder = pictures; }

    /// On a computer with sound inputs.
    explicit MemoryDesktop(std::vector<FakeInputs::Input> inputs) : sound(std::move(inputs)) {}

    FakeWindow window;
    FakeProgram program;
    FakeMenu menu;
    FakeMessageBox messages;
    FakeFileDialog files;
    FakeTickTimer timer;
    FakeClock clock;
    FakePointer pointer;
    FakeSoundInputs sound;
    FakeWaveInputsViews waveInputs;
    FakeProgramStart programs;
    FakeAboutViews aboutWindows;
    FakeHelpViews helpWindows;
    FakeShell shell;
    FakeFileTypes fileTypes;
    FakeSoundPlayer player;
    FakeNotice notice;
    KeptLog log;
    FORM1 form{{window, program, menu, menu, messages, files, timer, clock, pointer,
                sound.Captures(), sound.settings, waveInputs, programs, aboutWindows, helpWindows,
                shell, fileTypes, player, log}};
    EventEdge edge{form, messages, notice, log};
    int ticks = 0;

    void Start(const std::string& commandLine = {}) {
        program.commandLine = commandLine;
        form.Form_Load();
    }

    void RunTicks(int count) {
        for (int i = 0; i < count; ++i) {
            ++ticks;
            clock.now = static_cast<float>(ticks * TestSimulation::secondsPerTick);
            edge.Tick();
        }
    }

    void MoveTo(Point to) {
        pointer.position = to;
        form.Pictor1_MouseMove(to.x, to.y);
    }

    void Press(Point to, MouseButton button = MouseButton::Left) {
        MoveTo(to);
        form.Pictor1_MouseDown(button, to.x, to.y);
    }

    void Click(Point to, MouseButton button = MouseButton::Left) {
        Press(to, button);
        form.Pictor1_MouseUp(button, to.x, to.y);
    }

    void Click(const std::string& snap) { Click(at(form.TheBoard(), snap)); }

    void DrawWire(const std::string& from, const std::string& to) {
        Click(from);
        Click(to);
    }

    [[nodiscard]] std::int32_t Wires() const { return form.TheBoard().Lines.Count(); }
};

} // namespace veltrix::test
