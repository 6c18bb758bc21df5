#include "app/EventEdge.h"

#include "app/ErrorText.h"

namespace veltrix {

void EventEdge::Tick() {
    if (form_.Ended())
        return;
    try {
        form_.Timer1_Timer();
        lastTickError_.clear();
    } catch (const std::exception& error) {
        form_.Pictor1.Refresh(); // what the tick did reach is shown as a whole
        if (lastTickError_ == error.what())
            return;
        lastTickError_ = error.what();
        log_.Write("tick: " + lastTickError_);
        notice_.Show(DutchReason(error));
    }
}

void EventEdge::tell(const std::exception& error) {
    note(error);
    messages_.Show(DutchReason(error), ProgramTitle, Buttons::Ok);
}

void EventEdge::note(const std::exception& error) {
    log_.Write(error.what());
}

} // namespace veltrix
