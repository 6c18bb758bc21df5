#include "document/FileCommands.h"

#include "tests/document/Documents.h"
#include "tests/support/TestBoard.h"

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

namespace veltrix {
namespace {

using test::bytesOf;
using test::documentOf;
using test::putBytes;

struct Asked {
    std::string text;
    std::string title;
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;

    friend bool operator==(const Asked&, const Asked&) = default;
};

const Asked saveQuestion{"Dit veltrix bewaren?", "Veltrix versie 2.0", Buttons::YesNoCancel,
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
        AddThisState();
    }

    void AddThisState() override { steps.push_back(documentOf(board_)); }

    [[nodiscard]] bool Changed() const override { return steps.size() > 1; }

    std::vector<std::string> steps;
    int resets = 0;

private:
    const Board& board_;
};

class Window : public DocumentWindow {
public:
    void SetCaption(const std::string& text) override { caption = text; }

    void SetSaveEnabled(bool Enabled) override { saveEnabled = Enabled; }

    std::string caption = ProgramTitle;
    bool saveEnabled = false;
};

class End : public ProgramEnd {
public:
    void ClearObjects() override { ended = true; }

    bool ended = false;
};

constexpr const char* openDialog = "open Veltrix bestanden *.vtx|*.vtx";
constexpr const char* saveDialog = "save Veltrix bestanden *.vtx|*.vtx";

class FileCommandsTest : public testing::Test {
protected:
    /// The end of the program's start: the command line, then the first step.
    void start(const std::string& commandLine = {}) { commands.OpenFromCommandLine(commandLine); }

    void edit() {
        test::wire(board, "Sensor 1 Uit Geel", "LED 1 Ingang");
        history.AddThisState();
    }

    [[nodiscard]] std::string path(const std::string& name) const {
        return Utf8FromPath(folder.Path() / PathFromUtf8(name));
    }

    /// A document with one wire and two settings of its own.
    std::string makeDocument(const std::string& name) {
        test::TestBoard other;
        test::wire(other.board, "Drukknop 1 Uit Geel", "Zoemer");
        other.board.Knobs.Comparator = 31;
        other.board.Display.SetValue(4);
        putBytes(folder.Path() / PathFromUtf8(name), documentOf(other.board));
        return path(name);
    }

    test::TestBoard on;
    Board& board = on.board;
    test::TempFolder folder;
    Steps history{board};
    Window window;
    User user;
    End program;
    FileCommands commands{board, history, window, user, user, program};
};

TEST(FileNameOnly, IsWhatFollowsTheLastBackslash) {
    EXPECT_EQ(FileNameOnly("C:\\boards\\test.vtx"), "test.vtx");
    EXPECT_EQ(FileNameOnly("test.vtx"), "test.vtx");
    EXPECT_EQ(FileNameOnly("C:\\boards\\"), "");
    EXPECT_EQ(FileNameOnly("\\"), "");
    EXPECT_EQ(FileNameOnly(""), "");
    EXPECT_EQ(FileNameOnly("/boards/test.vtx"), "/boards/test.vtx");
    EXPECT_EQ(FileNameOnly("\\\\school\\klas 3\\caf\u00E9.vtx"), "caf\u00E9.vtx");
}

TEST(FileExists, IsTrueForWhatCanBeReadOnly) {
    const test::OneFile file("caf\u00E9.vtx");
    EXPECT_FALSE(FileExists(file.text));
    EXPECT_FALSE(FileExists(""));
    EXPECT_FALSE(FileExists("C:\\x.vtx"));
    EXPECT_FALSE(FileExists(Utf8FromPath(file.folder.Path())));
    putBytes(file.path, "");
    EXPECT_TRUE(FileExists(file.text));
    EXPECT_EQ(test::namesIn(file.folder.Path()).size(), 1u);
}

TEST_F(FileCommandsTest, AStartWithoutADocumentChangesNothingAndClosesUnasked) {
    start();
    EXPECT_EQ(window.caption, "Veltrix versie 2.0");
    EXPECT_FALSE(window.saveEnabled);
    EXPECT_EQ(history.steps.size(), 1u);
    EXPECT_EQ(commands.Path(), "");
    commands.mnuSluiten_Click();
    EXPECT_TRUE(program.ended);
    EXPECT_TRUE(user.asked.empty());
}

TEST_F(FileCommandsTest, ADocumentOnTheCommandLineIsOpenedAndCountsAsChanged) {
    const std::string document = makeDocument("test.vtx");
    for (const std::string& commandLine : {document, "\"" + document + "\""}) {
        history.steps.clear();
        start(commandLine);
        EXPECT_EQ(window.caption, "Veltrix versie 2.0 - test.vtx");
        EXPECT_TRUE(window.saveEnabled);
        EXPECT_EQ(commands.Path(), document);
        EXPECT_EQ(user.FileName(), document);
        EXPECT_EQ(board.Lines.Count(), 1);
        ASSERT_EQ(history.steps.size(), 2u);
        EXPECT_EQ(history.steps[0], history.steps[1]);
        user.answers = {Answer::Cancel};
        commands.mnuSluiten_Click();
        EXPECT_EQ(user.asked.back(), saveQuestion);
        EXPECT_FALSE(program.ended);
    }
}

TEST_F(FileCommandsTest, AMissingDocumentOnTheCommandLineIsReported) {
    user.answers = {Answer::Ok};
    start("C:\\x.vtx");
    const std::vector<Asked> expected{
        {"Te openen bestand C:\\x.vtx bestaat niet.", "Fout", Buttons::Ok, Icon::None}};
    EXPECT_EQ(user.asked, expected);
    EXPECT_EQ(window.caption, "Veltrix versie 2.0");
    EXPECT_FALSE(window.saveEnabled);
    EXPECT_EQ(history.steps.size(), 1u);
    EXPECT_EQ(commands.Path(), "");
    EXPECT_EQ(user.FileName(), "");
}

TEST_F(FileCommandsTest, AQuoteAtTheStartDropsTheLastCharacterWhateverItIs) {
    const std::pair<std::string, std::string> lines[] = {
        {"\"C:\\x.vtx\"", "C:\\x.vtx"},
        {"\"C:\\x.vtx", "C:\\x.vt"},
        {"\"C:\\caf\u00E9", "C:\\caf"},
        {"\"C:\\x\u20AC", "C:\\x"},
        {"C:\\x.vtx\"", "C:\\x.vtx\""},
        {"\"", ""},
        {"\"\"", ""},
        {"\"\"C:\\x.vtx\"\"", "\"C:\\x.vtx\""},
        {"\"a\" \"b\"", "a\" \"b"},
    };
    for (const auto& [line, name] : lines) {
        user.answers = {Answer::Ok};
        start(line);
        EXPECT_EQ(user.asked.back().text, "Te openen bestand " + name + " bestaat niet.") << line;
    }
}

TEST_F(FileCommandsTest, AFolderOnTheCommandLineIsReportedAsMissing) {
    user.answers = {Answer::Ok};
    start(Utf8FromPath(folder.Path()));
    EXPECT_EQ(user.asked.size(), 1u);
    EXPECT_EQ(history.steps.size(), 1u);
}

TEST_F(FileCommandsTest, ADocumentOnTheCommandLineThatCannotBeReadThrows) {
    makeDocument("test.vtx");
    putBytes(folder.Path() / "test.vtx",
             test::with(bytesOf(folder.Path() / "test.vtx"), test::field::Counter, 10));
    EXPECT_THROW(start(path("test.vtx")), std::out_of_range);
    EXPECT_EQ(commands.Path(), "");
    EXPECT_TRUE(history.steps.empty());
}

TEST_F(FileCommandsTest, ANewBoardIsCleared) {
    start(makeDocument("test.vtx"));
    for (clsSensor& sensor : board.Sensors)
        sensor.SetValue(2);
    board.Knobs = {10, 20, 30};
    for (clsLED& lamp : board.PushButtons)
        lamp.SetValue(true);
    board.Knob.Move(10, 10);
    commands.mnuNieuw_Click();
    EXPECT_EQ(board.Lines.Count(), 0);
    for (const clsSensor& sensor : board.Sensors)
        EXPECT_EQ(sensor.Value(), 0);
    EXPECT_EQ(board.Knobs.Comparator, 0);
    EXPECT_EQ(board.Knobs.VariableVoltage, 0);
    EXPECT_EQ(board.Knobs.PulseGenerator, 0);
    for (const clsLED& lamp : board.PushButtons)
        EXPECT_FALSE(lamp.Value());
    EXPECT_FALSE(board.Knob.Visible());
    EXPECT_EQ(commands.Path(), "");
    EXPECT_FALSE(window.saveEnabled);
    EXPECT_EQ(history.resets, 2);
    EXPECT_EQ(history.steps, std::vector{documentOf(board)});
}

TEST_F(FileCommandsTest, ANewBoardKeepsTheCounterAndTheCaptionAndAsksNothing) {
    start(makeDocument("test.vtx"));
    edit();
    board.Display.SetValue(6);
    commands.mnuNieuw_Click();
    EXPECT_EQ(board.Display.Value(), 6);
    EXPECT_EQ(window.caption, "Veltrix versie 2.0 - test.vtx");
    EXPECT_TRUE(user.asked.empty());
}

TEST_F(FileCommandsTest, OpeningPutsTheDocumentOnTheBoard) {
    start();
    board.Knob.Move(10, 10);
    edit();
    user.file = makeDocument("caf\u00E9 3.vtx");
    commands.mnuOpenen_Click();
    EXPECT_EQ(user.dialogs, std::vector<std::string>{openDialog});
    EXPECT_EQ(documentOf(board), bytesOf(PathFromUtf8(*user.file)));
    EXPECT_EQ(window.caption, "Veltrix versie 2.0 - caf\u00E9 3.vtx");
    EXPECT_TRUE(window.saveEnabled);
    EXPECT_EQ(commands.Path(), *user.file);
    EXPECT_EQ(user.FileName(), *user.file);
    EXPECT_FALSE(board.Knob.Visible());
    EXPECT_EQ(history.steps, std::vector{documentOf(board)});
    EXPECT_TRUE(user.asked.empty()) << "nothing is asked about the board that was changed";
}

TEST_F(FileCommandsTest, ChoosingNoFileToOpenChangesNothing) {
    start(makeDocument("test.vtx"));
    edit();
    const std::string before = documentOf(board);
    user.file = std::nullopt;
    commands.mnuOpenen_Click();
    EXPECT_EQ(documentOf(board), before);
    EXPECT_EQ(history.steps.size(), 3u);
    EXPECT_EQ(window.caption, "Veltrix versie 2.0 - test.vtx");
}

TEST_F(FileCommandsTest, ADialogThatFailsEndsTheCommandSilently) {
    start();
    edit();
    user.whenChosen = [] { throw std::runtime_error("no dialog today"); };
    EXPECT_NO_THROW(commands.mnuOpenen_Click());
    EXPECT_EQ(board.Lines.Count(), 1);
    EXPECT_EQ(history.steps.size(), 2u);
}

TEST_F(FileCommandsTest, AFileThatVanishesBehindTheDialogEndsTheCommandSilently) {
    start();
    edit();
    const std::string before = documentOf(board);
    user.file = makeDocument("weg.vtx");
    user.whenChosen = [this] { std::filesystem::remove(folder.Path() / "weg.vtx"); };
    EXPECT_NO_THROW(commands.mnuOpenen_Click());
    EXPECT_EQ(documentOf(board), before);
    EXPECT_EQ(commands.Path(), "");
    EXPECT_FALSE(window.saveEnabled);
    EXPECT_EQ(history.steps.size(), 2u);
    EXPECT_TRUE(user.asked.empty());
}

TEST_F(FileCommandsTest, AFolderChosenToOpenEndsTheCommandSilently) {
    start();
    user.file = Utf8FromPath(folder.Path());
    EXPECT_NO_THROW(commands.mnuOpenen_Click());
    EXPECT_EQ(commands.Path(), "");
    EXPECT_EQ(history.steps.size(), 1u);
}

TEST_F(FileCommandsTest, ADamagedFileLeavesTheBoardAsFarAsItWasRead) {
    start(makeDocument("goed.vtx"));
    makeDocument("stuk.vtx");
    putBytes(folder.Path() / "stuk.vtx",
             test::with(bytesOf(folder.Path() / "stuk.vtx"), test::field::Counter, 11));
    board.Sensors[0].SetValue(2);
    user.file = path("stuk.vtx");
    EXPECT_NO_THROW(commands.mnuOpenen_Click());
    EXPECT_EQ(board.Lines.Count(), 0);
    EXPECT_EQ(board.Sensors[0].Value(), 2);
    EXPECT_EQ(commands.Path(), path("goed.vtx"));
    EXPECT_EQ(window.caption, "Veltrix versie 2.0 - goed.vtx");
    EXPECT_EQ(history.resets, 1);
}

TEST_F(FileCommandsTest, AFileThatIsNoDocumentOpensAsABoardWithoutWires) {
    start();
    edit();
    board.Knobs.Comparator = 5;
    putBytes(folder.Path() / "brief.vtx", "Beste ouders,");
    commands.OpenDocument(path("brief.vtx"));
    EXPECT_EQ(board.Lines.Count(), 0);
    EXPECT_EQ(board.Knobs.Comparator, 5);
    EXPECT_EQ(commands.Path(), path("brief.vtx"));
    EXPECT_EQ(window.caption, "Veltrix versie 2.0 - brief.vtx");
    EXPECT_TRUE(window.saveEnabled);
    EXPECT_EQ(history.steps.size(), 1u);
}

TEST_F(FileCommandsTest, ADocumentThatCannotBeOpenedThrowsAndLeavesTheBoard) {
    start();
    edit();
    const std::string before = documentOf(board);
    EXPECT_THROW(commands.OpenDocument(path("missing.vtx")), std::system_error);
    EXPECT_EQ(documentOf(board), before);
    EXPECT_EQ(commands.Path(), "");
    EXPECT_EQ(history.steps.size(), 2u);
}

TEST_F(FileCommandsTest, NoFileStaysOpen) {
    const auto openFiles = [] { return test::namesIn("/proc/self/fd").size(); };
    start();
    user.file = makeDocument("test.vtx");
    const std::size_t before = openFiles();
    commands.mnuOpenen_Click();
    EXPECT_EQ(openFiles(), before);
    commands.mnuBewaren_Click();
    EXPECT_EQ(openFiles(), before);
    putBytes(folder.Path() / "test.vtx",
             test::with(bytesOf(folder.Path() / "test.vtx"), test::field::Counter, 11));
    commands.mnuOpenen_Click();
    EXPECT_EQ(openFiles(), before);
}

TEST_F(FileCommandsTest, SavingWritesTheBoardToItsDocumentUnasked) {
    start(makeDocument("test.vtx"));
    edit();
    commands.mnuBewaren_Click();
    EXPECT_EQ(bytesOf(folder.Path() / "test.vtx"), documentOf(board));
    EXPECT_TRUE(user.asked.empty());
    EXPECT_TRUE(user.dialogs.empty());
    EXPECT_EQ(history.steps.size(), 3u) << "a saved board still counts as changed";
}

TEST_F(FileCommandsTest, SavingAShorterDocumentKeepsTheTail) {
    const std::string document = makeDocument("test.vtx");
    const std::string before = bytesOf(folder.Path() / "test.vtx");
    start(document);
    board.Lines.Remove(1);
    commands.mnuBewaren_Click();
    EXPECT_EQ(bytesOf(folder.Path() / "test.vtx"), documentOf(board) + before.substr(52));
    commands.OpenDocument(document);
    EXPECT_EQ(board.Lines.Count(), 0);
}

TEST_F(FileCommandsTest, SavingWithoutADocumentAsksForOne) {
    start();
    user.file = path("nieuw.vtx");
    commands.mnuBewaren_Click();
    EXPECT_EQ(user.dialogs, std::vector<std::string>{saveDialog});
    EXPECT_EQ(bytesOf(folder.Path() / "nieuw.vtx"), documentOf(board));
    EXPECT_EQ(commands.Path(), path("nieuw.vtx"));
}

TEST_F(FileCommandsTest, SavingAsMakesTheFileTheDocument) {
    start(makeDocument("oud.vtx"));
    edit();
    user.file = path("caf\u00E9 \u4E2D.vtx");
    commands.mnuBewarenAls_Click();
    EXPECT_EQ(user.dialogs, std::vector<std::string>{saveDialog});
    EXPECT_EQ(bytesOf(PathFromUtf8(*user.file)), documentOf(board));
    EXPECT_NE(bytesOf(folder.Path() / "oud.vtx"), documentOf(board));
    EXPECT_EQ(commands.Path(), *user.file);
    EXPECT_EQ(user.FileName(), *user.file);
    EXPECT_EQ(window.caption, "Veltrix versie 2.0 - caf\u00E9 \u4E2D.vtx");
    EXPECT_TRUE(window.saveEnabled);
    EXPECT_TRUE(user.asked.empty());
}

TEST_F(FileCommandsTest, ANameWithoutAnExtensionGetsOne) {
    start();
    const std::pair<std::string, std::string> names[] = {{"bord", "bord.vtx"},
                                                         {"mijn bord", "mijn bord.vtx"},
                                                         {"bord.bak", "bord.bak"},
                                                         {"bord.VTX", "bord.VTX"}};
    for (const auto& [chosen, made] : names) {
        user.file = path(chosen);
        commands.mnuBewarenAls_Click();
        EXPECT_EQ(commands.Path(), path(made));
        EXPECT_TRUE(std::filesystem::exists(folder.Path() / made)) << made;
    }
    EXPECT_EQ(test::namesIn(folder.Path()).size(), 4u);
}

TEST_F(FileCommandsTest, ADotInAFolderIsNoExtension) {
    start();
    std::filesystem::create_directory(folder.Path() / "klas.3");
    user.file = path("klas.3") + "/bord";
    commands.mnuBewarenAls_Click();
    EXPECT_TRUE(std::filesystem::exists(folder.Path() / "klas.3" / "bord.vtx"));
}

TEST_F(FileCommandsTest, ChoosingNoFileToSaveToChangesNothing) {
    start();
    edit();
    for (const std::optional<std::string>& none :
         {std::optional<std::string>(), std::optional<std::string>("")}) {
        user.file = none;
        commands.mnuBewarenAls_Click();
        EXPECT_EQ(commands.Path(), "");
        EXPECT_FALSE(window.saveEnabled);
        EXPECT_TRUE(test::namesIn(folder.Path()).empty());
    }
}

TEST_F(FileCommandsTest, AFileThatExistsIsOverwrittenAfterAsking) {
    start();
    edit();
    user.file = makeDocument("oud.vtx");
    user.answers = {Answer::Yes};
    commands.mnuBewarenAls_Click();
    const std::vector<Asked> expected{{"Weet u zeker dat u oud.vtx wilt overschrijven?",
                                       "Veltrix versie 2.0", Buttons::YesNo, Icon::None}};
    EXPECT_EQ(user.asked, expected);
    EXPECT_EQ(bytesOf(folder.Path() / "oud.vtx").substr(0, documentOf(board).size()),
              documentOf(board));
    EXPECT_EQ(commands.Path(), path("oud.vtx"));
}

TEST_F(FileCommandsTest, AFileThatExistsStaysWhenTheAnswerIsNo) {
    start();
    edit();
    const std::string old = bytesOf(PathFromUtf8(makeDocument("oud.vtx")));
    user.file = path("oud"); // the question is about the name with its extension
    for (const Answer answer : {Answer::No, Answer::Cancel}) {
        user.answers = {answer};
        commands.mnuBewarenAls_Click();
        EXPECT_EQ(user.asked.back().text, "Weet u zeker dat u oud.vtx wilt overschrijven?");
        EXPECT_EQ(bytesOf(folder.Path() / "oud.vtx"), old);
        EXPECT_EQ(commands.Path(), "");
        EXPECT_EQ(window.caption, "Veltrix versie 2.0");
        EXPECT_FALSE(window.saveEnabled);
    }
}

TEST_F(FileCommandsTest, ASaveThatFailsLeavesDocumentCaptionAndMenu) {
    start();
    edit();
    const std::string before = documentOf(board);
    std::filesystem::create_directory(folder.Path() / "map.vtx");
    for (const std::string& impossible : {path("map.vtx"), path("geen map/bord.vtx")}) {
        user.file = impossible;
        EXPECT_THROW(commands.mnuBewarenAls_Click(), std::system_error) << impossible;
        EXPECT_EQ(commands.Path(), "");
        EXPECT_EQ(user.FileName(), "");
        EXPECT_EQ(window.caption, "Veltrix versie 2.0");
        EXPECT_FALSE(window.saveEnabled);
        EXPECT_EQ(documentOf(board), before);
        EXPECT_TRUE(history.Changed());
    }
    EXPECT_EQ(test::namesIn(folder.Path()).size(), 1u);
    EXPECT_TRUE(user.asked.empty()) << "a folder is not overwritten";
}

TEST_F(FileCommandsTest, ASaveToADocumentWhoseFolderIsGoneThrows) {
    std::filesystem::create_directory(folder.Path() / "stick");
    start(makeDocument("stick/bord.vtx"));
    edit();
    std::filesystem::remove_all(folder.Path() / "stick");
    EXPECT_THROW(commands.mnuBewaren_Click(), std::system_error);
    EXPECT_EQ(commands.Path(), path("stick/bord.vtx"));
    EXPECT_TRUE(window.saveEnabled);
    EXPECT_EQ(board.Lines.Count(), 2);
}

TEST_F(FileCommandsTest, ABoardThatNoFileCanHoldLeavesTheOldFile) {
    const std::string document = makeDocument("oud.vtx");
    const std::string old = bytesOf(folder.Path() / "oud.vtx");
    start(document);
    board.AddLine("\u2603", "Zoemer");
    EXPECT_THROW(commands.mnuBewaren_Click(), std::overflow_error);
    EXPECT_EQ(bytesOf(folder.Path() / "oud.vtx"), old);
    EXPECT_EQ(test::namesIn(folder.Path()).size(), 1u);
}

TEST_F(FileCommandsTest, TheCaptionShowsOnlyTheNameWhateverThePath) {
    start();
    const auto captionAfter = [this](const std::string& name) {
        user.file = path(name);
        commands.mnuBewarenAls_Click();
        return window.caption;
    };
    EXPECT_EQ(captionAfter("bord.vtx"), "Veltrix versie 2.0 - bord.vtx");
    // Where a backslash may stand in a name, the path is that of another system's server.
    EXPECT_EQ(captionAfter("server\\klas\\les.vtx"), "Veltrix versie 2.0 - les.vtx");
}

TEST_F(FileCommandsTest, ClosingAnUnchangedBoardEndsTheProgramUnasked) {
    start();
    commands.mnuSluiten_Click();
    EXPECT_TRUE(program.ended);
    program.ended = false;
    std::int32_t Cancel = 0;
    commands.Form_Unload(Cancel);
    EXPECT_TRUE(program.ended);
    EXPECT_EQ(Cancel, 0);
    EXPECT_TRUE(user.asked.empty());
}

TEST_F(FileCommandsTest, ClosingAndCancellingKeepsTheProgram) {
    start();
    edit();
    user.answers = {Answer::Cancel, Answer::Cancel};
    commands.mnuSluiten_Click();
    std::int32_t Cancel = 0;
    commands.Form_Unload(Cancel);
    EXPECT_EQ(Cancel, 1);
    EXPECT_FALSE(program.ended);
    EXPECT_EQ(user.asked, (std::vector{saveQuestion, saveQuestion}));
    EXPECT_TRUE(user.dialogs.empty());
}

TEST_F(FileCommandsTest, ClosingWithoutSavingEndsTheProgram) {
    start();
    edit();
    user.answers = {Answer::No};
    commands.mnuSluiten_Click();
    EXPECT_TRUE(program.ended);
    program.ended = false;
    user.answers = {Answer::No};
    std::int32_t Cancel = 0;
    commands.Form_Unload(Cancel);
    EXPECT_TRUE(program.ended);
    EXPECT_EQ(Cancel, 0);
    EXPECT_TRUE(user.dialogs.empty());
}

TEST_F(FileCommandsTest, ClosingAndSavingAsksForAFileAndKeepsTheProgram) {
    start(makeDocument("oud.vtx"));
    edit();
    user.answers = {Answer::Yes};
    user.file = path("nieuw.vtx");
    commands.mnuSluiten_Click();
    EXPECT_EQ(user.dialogs, std::vector<std::string>{saveDialog}) << "though there is a document";
    EXPECT_EQ(commands.Path(), path("nieuw.vtx"));
    EXPECT_FALSE(program.ended);

    user.answers = {Answer::Yes};
    user.file = path("nog een.vtx");
    std::int32_t Cancel = 0;
    commands.Form_Unload(Cancel);
    EXPECT_EQ(Cancel, 1);
    EXPECT_EQ(bytesOf(folder.Path() / "nog een.vtx"), documentOf(board));
    EXPECT_FALSE(program.ended);
}

TEST_F(FileCommandsTest, ClosingAndSavingNowhereKeepsTheProgram) {
    start();
    edit();
    user.answers = {Answer::Yes, Answer::Yes};
    commands.mnuSluiten_Click();
    std::int32_t Cancel = 0;
    commands.Form_Unload(Cancel);
    EXPECT_EQ(Cancel, 1);
    EXPECT_FALSE(program.ended);
    EXPECT_EQ(user.dialogs.size(), 2u);
}

TEST_F(FileCommandsTest, ClosingAndFailingToSaveKeepsTheWindow) {
    start();
    edit();
    user.answers = {Answer::Yes, Answer::Yes};
    user.file = path("geen map/bord.vtx");
    EXPECT_THROW(commands.mnuSluiten_Click(), std::system_error);
    std::int32_t Cancel = 0;
    EXPECT_THROW(commands.Form_Unload(Cancel), std::system_error);
    EXPECT_EQ(Cancel, 1);
    EXPECT_FALSE(program.ended);
}

} // namespace
} // namespace veltrix
