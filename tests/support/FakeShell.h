#pragma once

#include "app/FileTypes.h"
#include "app/Shell.h"
#include "app/frmAbout.h"
#include "app/frmHelp.h"
#include "board/PictorATL.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
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

struct FakeShell : Shell {
    std::int32_t Open(const std::string& address, const std::string& folder) override {
        opened.push_back({address, folder});
        if (unreachable)
            throw std::runtime_error("no shell");
        return answer;
    }

    struct Opened {
        std::string address;
        std::string folder;
    };

    std::vector<Opened> opened;
    std::int32_t answer = 42;
    bool unreachable = false;
};

struct FakeFileTypes : FileTypes {
    void RegisterFileType() noexcept override {
        ++times;
        if (whenRegistered)
            whenRegistered();
    }

    int times = 0;
    std::function<void()> whenRegistered;
};

} // namespace veltrix::test
