#pragma once

#include <string>
#include <vector>

namespace veltrix {

/// Starts other programs.
class ProgramStart {
public:
    virtual ~ProgramStart() = default;

    /// Starts the program that a command line names, with its arguments, and does not wait for it.
    /// False when there is no such program.
    virtual bool Start(const std::string& commandLine) = 0;
};

namespace modControlPanel {

/// Runs a command line without waiting for it. Whatever goes wrong is only told by the answer,
/// which is whether the program was started.
bool Run(ProgramStart& start, const std::string& commandLine) noexcept;

/// The command lines that open the sound settings of the platform, those that suit this desktop
/// first. None of the programs need be there.
[[nodiscard]] std::vector<std::string> SoundSettings();

} // namespace modControlPanel

} // namespace veltrix
