#pragma once

#include "app/modControlPanel.h"

namespace veltrix {

/// Starts programs that live on by themselves and keep their messages from the terminal.
class QtProgramStart : public ProgramStart {
public:
    bool Start(const std::string& commandLine) override;
};

} // namespace veltrix
