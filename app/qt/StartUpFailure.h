#pragma once

namespace veltrix {

/// While it lives, a toolkit that cannot start ends the program with status 1 and one line about
/// why, instead of aborting it under a heap of advice. There is one at a time, around the
/// construction of the application.
class StartUpFailure {
public:
    StartUpFailure();
    ~StartUpFailure();
    StartUpFailure(const StartUpFailure&) = delete;
    StartUpFailure& operator=(const StartUpFailure&) = delete;
};

/// Ends the program that has no window yet, with status 1 and this line on standard error.
[[noreturn]] void LeaveWithoutWindow(const char* reason);

} // namespace veltrix
