#pragma once

#include "app/frmHelp.h"
#include "board/Rect.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace veltrix::test {

/// The help windows that were made, one after the other, each with the browser it got.
struct FakeHelpViews : HelpViews {
    struct Window {
        frmHelp* help = nullptr;
        int shown = 0;
        bool gone = false;
        std::int32_t width = 686;
        std::int32_t height = 418;
        bool hasBrowser = false; ///< at this moment
        int browsers = 0;        ///< in all
        bool visible = false;
        std::vector<std::string> pages; ///< that the browser was sent to
        std::optional<Rect> place;
    };

    struct Control : Browser {
        Control(FakeHelpViews& views, Window& window) : views_(views), window_(window) {
            window_.hasBrowser = true;
            ++window_.browsers;
        }

        Control(const Control&) = delete;
        Control& operator=(const Control&) = delete;

        ~Control() override { window_.hasBrowser = false; }

        void Navigate(const std::string& address) override {
            window_.pages.push_back(address);
            if (views_.navigationFails)
                throw std::runtime_error("the browser does not answer");
        }

        void SetVisible(bool Visible) override {
            if (views_.visibilityFails)
                throw std::runtime_error("the browser does not show");
            window_.visible = Visible;
        }

        void Move(std::int32_t Left, std::int32_t Top, std::int32_t Width,
                  std::int32_t Height) override {
            window_.place = Rect{Left, Top, Width, Height};
        }

    private:
        FakeHelpViews& views_;
        Window& window_;
    };

    struct View : HelpView {
        View(FakeHelpViews& views, Window& window) : views_(views), window_(window) {}

        View(const View&) = delete;
        View& operator=(const View&) = delete;

        ~View() override { window_.gone = true; }

        std::unique_ptr<Browser> AddBrowser() override {
            if (views_.noBrowser)
                throw std::runtime_error("there is no browser");
            return std::make_unique<Control>(views_, window_);
        }

        void Show() override { ++window_.shown; }

        std::int32_t ScaleWidth() const override { return window_.width; }

        std::int32_t ScaleHeight() const override { return window_.height; }

    private:
        FakeHelpViews& views_;
        Window& window_;
    };

    std::unique_ptr<HelpView> Create(frmHelp& help) override {
        Window& window = windows.emplace_back();
        window.help = &help;
        return std::make_unique<View>(*this, window);
    }

    std::deque<Window> windows;
    bool noBrowser = false;
    bool visibilityFails = false;
    bool navigationFails = false;
};

} // namespace veltrix::test
