#pragma once

#include "app/Shell.h"
#include "document/Dialogs.h"

#include <string>

namespace veltrix {

/// Opens pages of the internet outside the program.
class WebPages {
public:
    WebPages(Shell& shell, MessageBox& messages) noexcept : shell_(shell), messages_(messages) {}

    /// Opens a web address with the browser of the user. False when the shell answers 0; its other
    /// answers all count as success. Tells the user when the shell cannot be reached.
    bool OpenWebPage(const std::string& address);

private:
    Shell& shell_;
    MessageBox& messages_;
};

} // namespace veltrix
