#include "app/frmHelp.h"

#include "board/AppPath.h"
#include "document/FileCommands.h"

#include <exception>

namespace veltrix {

void frmHelp::Show() {
    if (!loaded_) {
        // The old window may still be handling the event that closed it, so it stays until now.
        view_ = views_.Create(*this);
        loaded_ = true;
        Form_Load();
    }
    view_->Show();
}

void frmHelp::Form_Load() {
    try {
        browser_ = view_->AddBrowser();
        browser_->SetVisible(true);
    } catch (const std::exception&) {
        browser_.reset();
        messages_.Show("Kan webbrowser niet opstarten..", "Foutmelding", Buttons::Ok);
    }
}

void frmHelp::Constructor(const std::string& language) {
    if (browser_ == nullptr)
        return;
    try {
        const std::string page =
            Utf8FromPath(AppPath(applicationFolder_, "\\html\\Help" + language + ".htm"));
        browser_->Navigate(FileExists(page)
                               ? page
                               : Utf8FromPath(AppPath(applicationFolder_, "\\html\\HelpENG.htm")));
    } catch (const std::exception&) {
        // The window shows as much as there is to show.
    }
}

void frmHelp::Form_Resize() {
    if (browser_ != nullptr)
        browser_->Move(0, 0, view_->ScaleWidth(), view_->ScaleHeight());
}

void frmHelp::Form_Unload() {
    browser_.reset();
    loaded_ = false;
}

} // namespace veltrix
