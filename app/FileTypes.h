#pragma once

namespace veltrix {

/// Where the desktop keeps which program opens which document.
class FileTypes {
public:
    virtual ~FileTypes() = default;

    /// Makes the desktop open board documents with this program and show their icon. Does so in its
    /// own time: it must not keep the caller waiting. Never tells of a failure, and does not throw.
    virtual void RegisterFileType() noexcept = 0;
};

} // namespace veltrix
