#include "app/frmAbout.h"

#include "tests/support/FakeAboutViews.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace veltrix::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(frmAboutTest, LoadsItsPictureAndIsClosedByOk) {
    FakeAboutViews views;
    views.whileShown = [](frmAbout& about) { about.btnOK_Click(); };
    frmAbout(views.Create()).Show();
    EXPECT_THAT(views.events,
                ElementsAre("picture \\images2\\about.bmp", "shown", "unload", "closed"));
}

TEST(frmAboutTest, WithoutItsPictureItIsNotShown) {
    FakeAboutViews views;
    views.pictureFails = [] { throw std::runtime_error("no picture"); };
    EXPECT_THROW(frmAbout(views.Create()).Show(), std::runtime_error);
    EXPECT_THAT(views.events, IsEmpty());
}

} // namespace

} // namespace veltrix::test
