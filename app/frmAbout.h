#pragma once

#include <memory>
#include <string>
#include <utility>

namespace veltrix {

class frmAbout;

/// What is seen of the window "Over Veltrix Simulator versie 2".
class AboutView {
public:
    virtual ~AboutView() = default;

    /// Shows a picture of the application folder ("\\images2\\about.bmp"). Throws
    /// std::system_error when there is none.
    virtual void SetPicture(const std::string& name) = 0;

    /// Shows the window before all others until it is unloaded or closed. Meanwhile its events go
    /// to `about`.
    virtual void ShowModal(frmAbout& about) = 0;

    /// Closes the window.
    virtual void Unload() = 0;
};

/// Makes the windows.
class AboutViews {
public:
    virtual ~AboutViews() = default;

    [[nodiscard]] virtual std::unique_ptr<AboutView> Create() = 0;
};

/// The window that tells what the program is.
class frmAbout {
public:
    explicit frmAbout(std::unique_ptr<AboutView> view) : view_(std::move(view)) {}

    /// Returns when the window is closed.
    void Show() {
        Form_Load();
        view_->ShowModal(*this);
    }

    void Form_Load() { view_->SetPicture("\\images2\\about.bmp"); }

    void btnOK_Click() { view_->Unload(); }

private:
    std::unique_ptr<AboutView> view_;
};

} // namespace veltrix
