#include "sim/Sockets.h"

namespace veltrix {

const Sockets& Sockets::Get() {
    static const Sockets names;
    return names;
}

} // namespace veltrix
