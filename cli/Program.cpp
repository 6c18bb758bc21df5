#include "cli/Program.h"

#include "cli/CheckCommand.h"
#include "cli/Control.h"
#include "cli/Fault.h"
#include "cli/InfoCommand.h"
#include "cli/RenderCommand.h"
#include "cli/RunCommand.h"
#include "cli/WholeNumber.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <cstdint>
#include <exception>
#include <optional>
#include <ostream>
#include <string_view>
#include <utility>

namespace veltrix::cli {

namespace {

constexpr const char* exitCodes =
    "Faults are told on the standard error output, one line each: \"veltrix-cli: FILE: reason\".\n"
    "The exit code is 2 then, and 0 when all went well.";

constexpr const char* runNotes =
    "\nTick k happens k times 10 ms after the start; the clock reads 0 before the first tick.\n"
    "\n"
    "A script is a CSV file with the header tick,control,value. A row takes effect just before "
    "its\n"
    "tick; rows of one tick are done in the order of the file. The controls and their values are\n"
    "  Sensor 1, Sensor 2             the mode, 0 dark, 1 lit by the pointer, 2 a slow wave\n"
    "  Drukknop 1, Drukknop 2         1 pressed, 0 not\n"
    "  Comparator Regelaar, Var. Spanning Regelaar, Puls Generator Regelaar\n"
    "                                 the level, 0 to 50 tenths of a volt\n"
    "  Geluids Sensor                 the level of the sound, 0 to 50; 0 at the start\n"
    "  Pulsenteller Reset Drukknop    ignored: the button is pressed\n"
    "  Aanwijzer                      the pointer in board pixels, \"x y\"; 0 0 at the start\n"
    "\n"
    "The columns are tick, every socket of the board with its level, \"LED 1\" to \"LED 4\",\n"
    "\"Zoemer klinkt\" (the buzzer sounds) and \"Teller\" (the digit of the counter). A socket "
    "that\n"
    "the run did not reach is an empty cell in csv, null in json, x in vcd.\n"
    "\n"
    "There is a row after every tick (all), after the first tick and every later one that changed\n"
    "a cell (changes), or after the last tick only (last).\n"
    "\n"
    "In vcd the time is the tick, and a name keeps its letters and digits; whatever stands "
    "between\n"
    "them becomes one underscore: \"Geheugen Set (In)\" is Geheugen_Set_In. Levels are 32 bits "
    "wide,\n"
    "negative ones in two's complement.\n"
    "\n"
    "A tick that fails, as it may when levels are far out of range, is abandoned and the next one\n"
    "runs; the first of a row of equal errors is told, and the exit code stays 0.\n";

constexpr const char* checkNotes =
    "\nPrints a line for every group of outputs that are wired together, for every end of a wire "
    "at\n"
    "an unknown socket, and for every wire that duplicates an earlier one in either direction; "
    "the\n"
    "exit code is 1 then. Prints nothing when there is nothing to report.\n";

constexpr const char* infoNotes =
    "\nPrints one JSON object: \"settings\" holds the controls by their names and \"Teller\", the\n"
    "digit of the counter; \"wires\" lists the wires in their order with their ends naam1 and "
    "naam2.\n";

constexpr const char* commands = "the commands are run, info, check and render";

std::int64_t ticksOf(const std::string& text) {
    const std::optional<std::int64_t> ticks = WholeNumber<std::int64_t>(text);
    if (!ticks.has_value() || *ticks < 0)
        throw Fault("--ticks", Quoted(text) + " is not a whole number from 0 on");
    return *ticks;
}

/// The value that `text` names in a table of names and values.
template <typename Value, std::size_t Count>
Value choice(const char* option, const std::string& text,
             const std::array<std::pair<std::string_view, Value>, Count>& values) {
    std::string names;
    for (const auto& [name, value] : values) {
        if (text == name)
            return value;
        names.append(names.empty() ? "" : ", ").append(name);
    }
    throw Fault(option, Quoted(text) + " is none of " + names);
}

Rows rowsOf(const std::string& text) {
    constexpr std::array<std::pair<std::string_view, Rows>, 3> values{
        {{"all", Rows::All}, {"changes", Rows::Changes}, {"last", Rows::Last}}};
    return choice("--rows", text, values);
}

Format formatOf(const std::string& text) {
    constexpr std::array<std::pair<std::string_view, Format>, 3> values{
        {{"csv", Format::Csv}, {"json", Format::Json}, {"vcd", Format::Vcd}}};
    return choice("--format", text, values);
}

int scaleOf(const std::string& text) {
    constexpr std::array<std::pair<std::string_view, int>, 3> values{
        {{"1", 1}, {"2", 2}, {"3", 3}}};
    return choice("--scale", text, values);
}

/// The options as they were typed, and the commands that they belong to.
class CommandLine {
public:
    CommandLine() {
        // What is left over is told in the program's own words.
        app_.allow_extras();
        app_.require_subcommand(0, 1);
        app_.set_version_flag("--version", "veltrix-cli " VELTRIX_VERSION);
        app_.footer(exitCodes);
        board(run_);
        run_.add_option("--ticks", ticks_, "How many ticks to run; 100 when not given")
            ->type_name("N");
        run_.add_option("--script", script_, "What to do to the board, see below")
            ->type_name("FILE.csv");
        run_.add_option("--format", format_, "The format of the rows; csv when not given")
            ->type_name("csv|json|vcd");
        run_.add_option("--rows", rows_, "Which ticks get a row, see below; all when not given")
            ->type_name("all|changes|last");
        run_.add_option("--out", out_, "Where the rows go instead of the standard output")
            ->type_name("FILE");
        run_.add_option("--save", save_, "Write the board after the run")->type_name("FILE.vtx");
        run_.footer(std::string(runNotes) + "\n" + exitCodes);

        board(info_);
        info_.footer(std::string(infoNotes) + "\n" + exitCodes);

        board(check_);
        check_.footer(std::string(checkNotes) + "\n" + exitCodes);

        board(render_);
        render_.add_option("--ticks", ticks_, "How many ticks to run before; 100 when not given")
            ->type_name("N");
        render_.add_option("--scale", scale_, "Pixels to a board pixel; 1 when not given")
            ->type_name("1|2|3");
        render_.add_option("--out", out_, "Where the picture goes")
            ->type_name("FILE.png")
            ->required();
        render_.footer(std::string("\n") + exitCodes);
    }

    /// Whether there is a command to execute; when there is none, the help that was asked for has
    /// been given.
    bool Parse(const std::vector<std::string>& arguments, std::ostream& output) {
        try {
            app_.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        } catch (const CLI::Success& asked) {
            app_.exit(asked, output, output);
            if (!output.flush())
                throw Fault("standard output", "cannot be written");
            return false;
        } catch (const CLI::ParseError& error) {
            throw Fault(error.what());
        }
        std::vector<std::string> unknown = app_.remaining(true);
        // The mark that ends the options counts as left over.
        unknown.erase(std::remove(unknown.begin(), unknown.end(), "--"), unknown.end());
        if (app_.get_subcommands().empty())
            throw unknown.empty()
                ? Fault(std::string("a command is missing; ") + commands)
                : Fault(unknown.front(), std::string("unknown command; ") + commands);
        if (!unknown.empty())
            throw Fault(unknown.front(), "unexpected argument");
        return true;
    }

    int Execute(const std::filesystem::path& applicationFolder, std::ostream& output,
                std::ostream& errors) const {
        if (run_)
            RunCommand{board_, ticksOf(ticks_), script_, formatOf(format_), rowsOf(rows_), out_,
                       save_}
                .Execute(output, errors);
        else if (info_)
            InfoCommand{board_}.Execute(output);
        else if (render_)
            RenderCommand{board_, ticksOf(ticks_), scaleOf(scale_), *out_, applicationFolder}
                .Execute(errors);
        else
            return CheckCommand{board_}.Execute(output) ? exitCode::Done : exitCode::Found;
        return exitCode::Done;
    }

private:
    void board(CLI::App& command) {
        command.allow_extras();
        command.add_option("BOARD", board_, "The board document")
            ->type_name("BOARD.vtx")
            ->required();
    }

    std::string board_;
    std::string ticks_ = "100";
    std::string scale_ = "1";
    std::string format_ = "csv";
    std::string rows_ = "all";
    std::optional<std::string> script_;
    std::optional<std::string> out_;
    std::optional<std::string> save_;

    CLI::App app_{"Veltrix boards without a window: the same objects and the same tick.",
                  "veltrix-cli"};
    CLI::App& run_ = *app_.add_subcommand("run", "Run a board and write what is on its sockets");
    CLI::App& info_ = *app_.add_subcommand("info", "Write settings and wires as JSON");
    CLI::App& check_ = *app_.add_subcommand("check", "Look for faults in the wiring");
    CLI::App& render_ = *app_.add_subcommand("render", "Run a board and write its picture");
};

} // namespace

int RunProgram(const std::vector<std::string>& arguments,
               const std::filesystem::path& applicationFolder, std::ostream& output,
               std::ostream& errors) noexcept {
    try {
        CommandLine commandLine;
        return commandLine.Parse(arguments, output)
                   ? commandLine.Execute(applicationFolder, output, errors)
                   : exitCode::Done;
    } catch (const std::bad_alloc&) {
        errors << "veltrix-cli: there is not enough memory\n";
    } catch (const std::exception& error) {
        Tell(errors, Fault(error.what()));
    }
    return exitCode::Failed;
}

} // namespace veltrix::cli
