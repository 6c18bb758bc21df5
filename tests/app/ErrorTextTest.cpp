#include "app/ErrorText.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <system_error>

namespace veltrix::test {

namespace {

std::string reasonFor(std::errc code) {
    return DutchReason(std::system_error(std::make_error_code(code)));
}

TEST(ErrorText, SaysInDutchWhyAFileCouldNotBeReadOrSaved) {
    const std::pair<std::errc, const char*> cases[] = {
        {std::errc::permission_denied, "geen toestemming"},
        {std::errc::operation_not_permitted, "geen toestemming"},
        {std::errc::read_only_file_system, "alleen-lezen"},
        {std::errc::no_space_on_device, "de schijf is vol"},
        {std::errc::no_such_file_or_directory, "bestaat niet (meer)"},
        {std::errc::not_a_directory, "bestaat niet (meer)"},
        {std::errc::is_a_directory, "een map en geen bestand"},
        {std::errc::operation_not_supported, "geen gewoon bestand"},
        {std::errc::filename_too_long, "de naam is te lang"},
        {std::errc::io_error, "nog aangesloten"},
        {std::errc::too_many_files_open, "de computer meldt een fout ("},
    };
    for (const auto& [code, words] : cases)
        EXPECT_NE(reasonFor(code).find(words), std::string::npos) << reasonFor(code);
}

TEST(ErrorText, TellsApartWhatWentWrongOnTheBoard) {
    EXPECT_EQ(DutchReason(std::bad_alloc()), "De computer heeft te weinig geheugen vrij.");
    EXPECT_EQ(DutchReason(std::overflow_error("x")),
              "Een waarde op het bord is te groot om mee te rekenen.");
    EXPECT_EQ(DutchReason(std::out_of_range("x")),
              "Op het bord staat een getal of een aantal draden dat niet kan.");
    EXPECT_EQ(DutchReason(std::runtime_error("x")), "Er ging iets mis. Probeer het nog eens.");
}

} // namespace

} // namespace veltrix::test
