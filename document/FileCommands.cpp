#include "document/FileCommands.h"

#include "board/AppPath.h"
#include "document/BoardDocument.h"
#include "document/clsKorvelRFile.h"
#include "document/clsKorvelWFile.h"

#include <exception>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

namespace veltrix {

namespace {

constexpr const char* filter = "Veltrix bestanden *.vtx|*.vtx";
constexpr const char* extension = ".vtx";

std::string afterLast(const std::string& text, char separator) {
    const std::size_t found = text.rfind(separator);
    return found == std::string::npos ? text : text.substr(found + 1);
}

/// The name of a document for the user's eyes. Paths of every platform are met on every platform:
/// a board may lie on a school's server.
std::string documentName(const std::string& path) {
    return afterLast(FileNameOnly(path), '/');
}

std::string withExtension(const std::string& path) {
    return PathFromUtf8(path).has_extension() ? path : path + extension;
}

bool wouldBeOverwritten(const std::string& path) {
    std::error_code ignored; // saving will tell what is wrong with a path that cannot be looked at
    const auto status = std::filesystem::status(PathFromUtf8(path), ignored);
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

void dropLastCharacter(std::string_view& text) {
    const auto isContinued = [](char unit) {
        return (static_cast<unsigned char>(unit) & 0xC0) == 0x80;
    };
    while (!text.empty() && isContinued(text.back()))
        text.remove_suffix(1);
    if (!text.empty())
        text.remove_suffix(1);
}

/// An argument in double quotes is taken for well quoted: its last character goes, whatever it is.
std::string unquoted(std::string_view text) {
    if (!text.empty() && text.front() == '"') {
        text.remove_prefix(1);
        dropLastCharacter(text);
    }
    return std::string(text);
}

} // namespace

std::string FileNameOnly(const std::string& path) {
    return afterLast(path, '\\');
}

bool FileExists(const std::string& path) {
    try {
        clsKorvelRFile file;
        file.OpenFile(path);
        return true;
    } catch (const std::system_error&) {
        return false;
    }
}

void FileCommands::mnuNieuw_Click() {
    board_.Lines = Collection<clsLine>();
    for (clsSensor& sensor : board_.Sensors)
        sensor.SetValue(0);
    board_.Knobs = KnobLevels();
    for (clsLED& lamp : board_.PushButtons)
        lamp.SetValue(false);
    path_.clear();
    board_.Knob.Hide();
    window_.SetSaveEnabled(false);
    history_.Reset();
}

void FileCommands::mnuOpenen_Click() {
    try {
        const std::optional<std::string> chosen = dialog_.ShowOpen(filter);
        if (!chosen)
            return;
        dialog_.SetFileName(*chosen);
        OpenDocument(dialog_.FileName());
    } catch (const std::exception&) {
        // The board shows how far it was read.
    }
}

void FileCommands::mnuBewaren_Click() {
    if (path_.empty())
        mnuBewarenAls_Click();
    else
        save(path_);
}

void FileCommands::mnuBewarenAls_Click() {
    const std::optional<std::string> chosen = dialog_.ShowSave(filter);
    if (!chosen || chosen->empty())
        return;
    const std::string path = withExtension(*chosen);
    if (wouldBeOverwritten(path) &&
        messages_.Show("Weet u zeker dat u " + documentName(path) + " wilt overschrijven?",
                       ProgramTitle, Buttons::YesNo) != Answer::Yes)
        return;
    save(path);
    dialog_.SetFileName(path);
    setDocument(path);
}

void FileCommands::mnuSluiten_Click() {
    switch (askHowToClose()) {
    case Closing::Ends:
        program_.ClearObjects();
        break;
    case Closing::Saves:
        mnuBewarenAls_Click();
        break;
    case Closing::Stays:
        break;
    }
}

void FileCommands::Form_Unload(std::int32_t& Cancel) {
    const Closing closing = askHowToClose();
    if (closing == Closing::Ends) {
        program_.ClearObjects();
        return;
    }
    ++Cancel; // first of all, so that a save that throws does not close the window either
    if (closing == Closing::Saves)
        mnuBewarenAls_Click();
}

void FileCommands::OpenDocument(const std::string& path) {
    board_.Knob.Hide();
    clsKorvelRFile file;
    file.OpenFile(path);
    ReadFrom(board_, file);
    setDocument(path);
    history_.Reset();
}

void FileCommands::OpenFromCommandLine(const std::string& text) {
    if (!text.empty()) {
        const std::string path = unquoted(text);
        if (FileExists(path)) {
            dialog_.SetFileName(path);
            OpenDocument(path);
        } else {
            messages_.Show("Te openen bestand " + path + " bestaat niet.", "Fout", Buttons::Ok);
        }
    }
    // After a document this is a second state, equal to the first: what was opened by its name
    // counts as changed.
    history_.Undo_AddThisState();
}

FileCommands::Closing FileCommands::askHowToClose() {
    if (!history_.Changed())
        return Closing::Ends;
    switch (messages_.Show("Dit veltrix bewaren?", ProgramTitle, Buttons::YesNoCancel)) {
    case Answer::Yes:
        return Closing::Saves;
    case Answer::No:
        return Closing::Ends;
    case Answer::Ok:
    case Answer::Cancel:
        break;
    }
    return Closing::Stays;
}

void FileCommands::save(const std::string& path) {
    clsKorvelWFile file;
    file.OpenFile(path);
    WriteTo(board_, file);
    file.CloseFile();
}

void FileCommands::setDocument(const std::string& path) {
    path_ = path;
    window_.SetCaption(std::string(ProgramTitle) + " - " + documentName(path));
    window_.SetSaveEnabled(true);
}

} // namespace veltrix
