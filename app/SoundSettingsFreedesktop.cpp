#include "app/modControlPanel.h"

#include <cstdlib>
#include <iterator>
#include <string_view>

namespace veltrix::modControlPanel {

namespace {

struct DesktopSettings {
    std::string_view desktop; // as XDG_CURRENT_DESKTOP names it
    const char* commandLine;
};

constexpr DesktopSettings ofDesktops[] = {
    {"GNOME", "gnome-control-center sound"},   {"Unity", "gnome-control-center sound"},
    {"KDE", "systemsettings kcm_pulseaudio"},  {"KDE", "systemsettings5 kcm_pulseaudio"},
    {"X-Cinnamon", "cinnamon-settings sound"}, {"MATE", "mate-volume-control"},
    {"Budgie", "budgie-control-center sound"}, {"LXQt", "pavucontrol-qt"},
};

// These serve every desktop. The settings of a desktop that is not running refuse to open, so they
// are not tried.
constexpr const char* ofAnyDesktop[] = {"pavucontrol", "pavucontrol-qt"};

/// Whether a list with colons between its words ("ubuntu:GNOME") has this one.
bool lists(std::string_view words, std::string_view word) {
    while (!words.empty()) {
        const std::size_t end = words.find(':');
        if (words.substr(0, end) == word)
            return true;
        words.remove_prefix(end == std::string_view::npos ? words.size() : end + 1);
    }
    return false;
}

} // namespace

std::vector<std::string> SoundSettings() {
    const char* desktop = std::getenv("XDG_CURRENT_DESKTOP");
    std::vector<std::string> commandLines;
    for (const DesktopSettings& settings : ofDesktops)
        if (desktop != nullptr && lists(desktop, settings.desktop))
            commandLines.emplace_back(settings.commandLine);
    commandLines.insert(commandLines.end(), std::begin(ofAnyDesktop), std::end(ofAnyDesktop));
    return commandLines;
}

} // namespace veltrix::modControlPanel
