#include "app/qt/StartUpFailure.h"

#include <QtGlobal>

#include <gtest/gtest.h>

#include <string>

namespace veltrix::test {

namespace {

int complaints = 0;

void count(QtMsgType, const QMessageLogContext&, const QString&) {
    ++complaints;
}

TEST(StartUpFailureDeathTest, TheEndOfTheToolkitIsOneLineAndStatus1) {
    EXPECT_EXIT(
        {
            const StartUpFailure failure;
            qWarning("could not connect to display :99\nand more");
            qInfo("advice");
            qWarning("a second complaint is a consequence of the first");
            qFatal("This application failed to start.\nReinstalling may help.");
        },
        testing::ExitedWithCode(1), "no window can be shown: could not connect to display :99\n$");
}

TEST(StartUpFailureDeathTest, WithoutAComplaintTheLastWordsAreTheReason) {
    EXPECT_EXIT(
        {
            const StartUpFailure failure;
            qFatal("This application failed to start.\nReinstalling may help.");
        },
        testing::ExitedWithCode(1),
        "^veltrix: no window can be shown: This application failed to "
        "start\\.\n$");
}

TEST(StartUpFailureDeathTest, LeavingNamesTheReason) {
    EXPECT_EXIT(LeaveWithoutWindow("no screen"), testing::ExitedWithCode(1),
                "^veltrix: no window can be shown: no screen\n$");
}

TEST(StartUpFailureTest, AComplaintThatWasNotTheEndIsPassedOn) {
    complaints = 0;
    const QtMessageHandler before = qInstallMessageHandler(count);
    {
        const StartUpFailure failure;
        qWarning("a small fault");
        EXPECT_EQ(complaints, 0);
    }
    EXPECT_EQ(complaints, 1);
    qWarning("another one");
    EXPECT_EQ(complaints, 2);
    qInstallMessageHandler(before);
}

} // namespace

} // namespace veltrix::test
