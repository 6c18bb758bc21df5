#include "app/ErrorText.h"

#include <new>
#include <stdexcept>
#include <system_error>

namespace veltrix {

namespace {

std::string fileReason(const std::error_code& code) {
    if (code == std::errc::permission_denied || code == std::errc::operation_not_permitted)
        return "u hebt er geen toestemming voor";
    if (code == std::errc::read_only_file_system)
        return "de schijf is alleen-lezen";
    if (code == std::errc::no_space_on_device)
        return "de schijf is vol";
    if (code == std::errc::no_such_file_or_directory || code == std::errc::not_a_directory)
        return "het bestand of de map bestaat niet (meer)";
    if (code == std::errc::is_a_directory)
        return "dit is een map en geen bestand";
    if (code == std::errc::operation_not_supported)
        return "dit is geen gewoon bestand";
    if (code == std::errc::filename_too_long)
        return "de naam is te lang";
    if (code == std::errc::io_error || code == std::errc::no_such_device)
        return "de schijf geeft een fout; is hij nog aangesloten?";
    return "de computer meldt een fout (" + code.message() + ")";
}

} // namespace

std::string DutchReason(const std::exception& error) {
    if (const auto* file = dynamic_cast<const std::system_error*>(&error))
        return "Het bestand kon niet worden gelezen of bewaard: " + fileReason(file->code()) + ".";
    if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr)
        return "De computer heeft te weinig geheugen vrij.";
    if (dynamic_cast<const std::overflow_error*>(&error) != nullptr)
        return "Een waarde op het bord is te groot om mee te rekenen.";
    if (dynamic_cast<const std::out_of_range*>(&error) != nullptr)
        return "Op het bord staat een getal of een aantal draden dat niet kan.";
    return "Er ging iets mis. Probeer het nog eens."; // the log tells what
}

} // namespace veltrix
