#include "app/modControlPanel.h"

namespace veltrix::modControlPanel {

bool Run(ProgramStart& start, const std::string& commandLine) noexcept {
    try {
        return start.Start(commandLine);
    } catch (...) {
        return false;
    }
}

} // namespace veltrix::modControlPanel
