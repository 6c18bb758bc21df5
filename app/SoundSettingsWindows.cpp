#include "app/modControlPanel.h"

namespace veltrix::modControlPanel {

std::vector<std::string> SoundSettings() {
    return {"rundll32.exe shell32.dll,Control_RunDLL mmsys.cpl @1"};
}

} // namespace veltrix::modControlPanel
