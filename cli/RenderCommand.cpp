#include "cli/RenderCommand.h"

#include "board/AppPath.h"
#include "board/Log.h"
#include "board/Picture.h"
#include "cli/BoardFile.h"
#include "cli/Fault.h"
#include "cli/Simulation.h"
#include "cli/TickErrors.h"

#include <ostream>
#include <stdexcept>

namespace veltrix::cli {

namespace {

/// Missing pictures leave holes in the result, which is worth a word but no failure.
class StreamLog final : public Log {
public:
    explicit StreamLog(std::ostream& stream) noexcept : stream_(stream) {}

    void Write(const std::string& line) noexcept override {
        try {
            Tell(stream_, Fault(line));
        } catch (...) { // the picture matters more than the word
        }
    }

private:
    std::ostream& stream_;
};

} // namespace

void RenderCommand::Execute(std::ostream& errors) const {
    // First, so that what is wrong with the board does not stand below a list of missing pictures.
    RequireDocument(BoardPath);
    StreamLog log(errors);
    Simulation simulation(ApplicationFolder, Scale, log);
    ReadBoard(BoardPath, simulation.TheBoard());
    TickErrors ticks(BoardPath, errors);
    for (std::int64_t tick = 1; tick <= Ticks; ++tick)
        ticks.Run(simulation);
    try {
        WritePng(simulation.Frame(), PathFromUtf8(OutPath));
    } catch (const std::runtime_error& error) {
        throw Fault(OutPath, error.what());
    }
}

} // namespace veltrix::cli
