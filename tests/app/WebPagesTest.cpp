#include "app/WebPages.h"

#include "tests/support/MemoryDesktop.h"

#include <gtest/gtest.h>

namespace veltrix::test {

namespace {

struct WebPagesTest : testing::Test {
    FakeShell shell;
    FakeMessageBox messages;
    WebPages pages{shell, messages};
};

TEST_F(WebPagesTest, AsksTheShellToOpenTheAddress) {
    EXPECT_TRUE(pages.OpenWebPage("https://veltrix.example/"));
    ASSERT_EQ(shell.opened.size(), 1U);
    EXPECT_EQ(shell.opened[0].address, "https://veltrix.example/");
    EXPECT_EQ(shell.opened[0].folder, "C:\\");
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(WebPagesTest, EveryAnswerButZeroIsSuccess) {
    for (const std::int32_t answer : {1, 2, 31, 32, 33, -1}) {
        shell.answer = answer;
        EXPECT_TRUE(pages.OpenWebPage("https://veltrix.example/")) << answer;
    }
    shell.answer = 0;
    EXPECT_FALSE(pages.OpenWebPage("https://veltrix.example/"));
    EXPECT_TRUE(messages.shown.empty()) << "an answer is never told";
}

TEST_F(WebPagesTest, AShellThatCannotBeReachedIsTold) {
    shell.unreachable = true;
    EXPECT_FALSE(pages.OpenWebPage("https://veltrix.example/"));
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0].text,
              "Ik probeerde een internet-pagina te laten zien, alleen gaf dat een foutmelding. "
              "Misschien heeft u geen internet op uw computer staan?");
    EXPECT_EQ(messages.shown[0].title, "Veltrix");
    EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
    EXPECT_EQ(messages.shown[0].icon, Icon::None);
}

} // namespace

} // namespace veltrix::test
