// Any bytes for a document: they are looked through, put on a board, run for a few ticks and
// written again. What the program throws is fine; what a sanitizer sees is not.

#include "board/AppPath.h"
#include "document/BoardDocument.h"
#include "document/DocumentFault.h"
#include "document/clsKorvelRFile.h"
#include "document/clsKorvelRWRam.h"
#include "sim/clsGraph2.h"
#include "tests/support/TestSimulation.h"

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

/// The streams read files, so the bytes are put into one; every process has its own.
const std::string& inputFile() {
    static const std::string path = veltrix::Utf8FromPath(
        std::filesystem::temp_directory_path() / ("veltrix-fuzz-" + std::to_string(::getpid())));
    return path;
}

template <typename Action>
void contain(Action action) {
    try {
        action();
    } catch (const std::exception&) {
        // The edge of the program tells the user.
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace veltrix;
    std::ofstream(PathFromUtf8(inputFile()), std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));

    test::TestSimulation simulation(std::filesystem::path{});
    contain([] { (void)FindDocumentFault(inputFile()); });
    contain([&] {
        clsKorvelRFile file;
        file.OpenFile(inputFile());
        ReadFrom(simulation.board, file);
    });
    for (int i = 0; i < 5; ++i)
        contain([&] { simulation.runTicks(1); });
    contain([&] { (void)clsGraph2().Check(simulation.board.Lines, simulation.board.Snaps); });
    contain([&] {
        clsKorvelRWRam state;
        WriteTo(simulation.board, state);
        state.ResetToStart();
        ReadFrom(simulation.board, state);
    });
    return 0;
}
