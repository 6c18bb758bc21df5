#pragma once

#include "app/frmAbout.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace veltrix::test {

/// The about window. While it is shown the test does `whileShown`.
struct FakeAboutViews : AboutViews {
    struct View : AboutView {
        explicit View(FakeAboutViews& seen) : seen_(seen) {}

        void SetPicture(const std::string& name) override {
            if (seen_.pictureFails)
                seen_.pictureFails();
            seen_.events.push_back("picture " + name);
        }

        void ShowModal(frmAbout& about) override {
            seen_.events.emplace_back("shown");
            if (seen_.whileShown)
                seen_.whileShown(about);
            seen_.events.emplace_back("closed");
        }

        void Unload() override { seen_.events.emplace_back("unload"); }

    private:
        FakeAboutViews& seen_;
    };

    std::unique_ptr<AboutView> Create() override { return std::make_unique<View>(*this); }

    std::vector<std::string> events;
    std::function<void(frmAbout&)> whileShown;
    std::function<void()> pictureFails; ///< throws
};

} // namespace veltrix::test
