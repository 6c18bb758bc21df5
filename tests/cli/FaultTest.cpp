#include "cli/Fault.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <sstream>

namespace veltrix::cli {
namespace {

TEST(Fault, NamesItsSubjectFirst) {
    EXPECT_STREQ(Fault("bord.vtx", "is empty").what(), "bord.vtx: is empty");
    EXPECT_STREQ(Fault("a command is missing").what(), "a command is missing");
}

TEST(Fault, IsToldInOneLine) {
    std::ostringstream stream;
    Tell(stream, Fault("a\nb.vtx", "is\x7Fno\tboard"));
    EXPECT_EQ(stream.str(), "veltrix-cli: a\\x0Ab.vtx: is\\x7Fno\\x09board\n");
}

TEST(Fault, QuotedKeepsLettersOfAllLanguages) {
    EXPECT_EQ(Quoted("één"), "\"één\"");
    EXPECT_EQ(Quoted(std::string("\0", 1)), "\"\\x00\"");
}

TEST(Fault, ReasonIsTheSystemsOrElseTheGivenOne) {
    EXPECT_EQ(ReasonOf(ENOSPC, "otherwise"), "No space left on device");
    EXPECT_EQ(ReasonOf(0, "otherwise"), "otherwise");
}

} // namespace
} // namespace veltrix::cli
