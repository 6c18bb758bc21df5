#pragma once

#include "app/FORM1.h"

#include <exception>
#include <string>

namespace veltrix {

/// Tells the user of a fault in the running board without stopping it.
class FaultNotice {
public:
    virtual ~FaultNotice() = default;

    /// Must return at once.
    virtual void Show(const std::string& text) = 0;
};

/// Where events enter the program. No error gets past it: a command's is told to the user, that of
/// an event which nobody chose (the mouse, a timer, another screen) goes to the log, and a tick's
/// is told once for a row of equal ones. Events that come after the program's end are dropped.
class EventEdge {
public:
    EventEdge(FORM1& form, MessageBox& messages, FaultNotice& notice, Log& log) noexcept
        : form_(form), messages_(messages), notice_(notice), log_(log) {}

    template <typename Event>
    void Command(Event event) {
        contain(event, [this](const std::exception& error) { tell(error); });
    }

    template <typename Event>
    void Quietly(Event event) {
        contain(event, [this](const std::exception& error) { note(error); });
    }

    void Tick();

private:
    template <typename Event, typename Handler>
    void contain(Event event, Handler handle) {
        if (form_.Ended())
            return;
        try {
            event(form_);
        } catch (const std::exception& error) {
            handle(error);
        }
    }

    void tell(const std::exception& error);
    void note(const std::exception& error);

    FORM1& form_;
    MessageBox& messages_;
    FaultNotice& notice_;
    Log& log_;
    std::string lastTickError_; // empty after a tick that went well
};

} // namespace veltrix
