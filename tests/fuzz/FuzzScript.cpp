// Any text for a script of inputs.

#include "cli/Fault.h"
#include "cli/Script.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        (void)veltrix::cli::Script::Parse({reinterpret_cast<const char*>(data), size},
                                          "script.csv");
    } catch (const veltrix::cli::Fault&) {
        // What is no script is told in one line.
    }
    return 0;
}
