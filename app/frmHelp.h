#pragma once

#include "app/Browser.h"
#include "app/WebPages.h"
#include "document/Dialogs.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

namespace veltrix {

class frmHelp;

/// What is seen of the window of the help pages. From the moment it is made until it is closed its
/// events go to the frmHelp that it was made for.
class HelpView {
public:
    virtual ~HelpView() = default;

    /// Adds a browser to the window. Throws when there is none to be had. The browser is gone
    /// before the window is.
    [[nodiscard]] virtual std::unique_ptr<Browser> AddBrowser() = 0;

    /// Shows the window without waiting, or brings it back before the others.
    virtual void Show() = 0;

    // The inside of the window, in pixels

    [[nodiscard]] virtual std::int32_t ScaleWidth() const = 0;
    [[nodiscard]] virtual std::int32_t ScaleHeight() const = 0;
};

/// Makes the windows.
class HelpViews {
public:
    virtual ~HelpViews() = default;

    [[nodiscard]] virtual std::unique_ptr<HelpView> Create(frmHelp& help) = 0;
};

/// The window "Hulp": shows the help pages beside the running board. There is one of it; closing
/// it unloads it, and showing it after that loads it anew.
class frmHelp {
public:
    /// The pages lie in a folder of the application folder. All of it must outlive the window.
    frmHelp(HelpViews& views, MessageBox& messages, WebPages& webPages,
            const std::filesystem::path& applicationFolder)
        : views_(views),
          messages_(messages),
          webPages_(webPages),
          applicationFolder_(applicationFolder) {}

    void Show();

    /// Makes the browser. Without one the window stays, empty, and the user is told.
    void Form_Load();

    /// Goes to the page of a language ("NL"), or to the English one when there is none. Whatever
    /// goes wrong, nobody is told.
    void Constructor(const std::string& language);

    /// Lets the browser fill the window.
    void Form_Resize();

    /// The user follows a link that leads out of the help pages.
    void WebLink_Click(const std::string& address) { webPages_.OpenWebPage(address); }

    /// The user has closed the window.
    void Form_Unload();

private:
    HelpViews& views_;
    MessageBox& messages_;
    WebPages& webPages_;
    const std::filesystem::path& applicationFolder_;
    std::unique_ptr<HelpView> view_;
    std::unique_ptr<Browser> browser_; ///< nothing until the window is loaded
    bool loaded_ = false;
};

} // namespace veltrix
