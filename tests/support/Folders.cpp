#include "tests/support/Folders.h"

namespace veltrix::test {

const std::filesystem::path& ApplicationFolder() {
    static const std::filesystem::path folder = VELTRIX_APPLICATION_FOLDER;
    return folder;
}

const std::filesystem::path& SourceFolder() {
    static const std::filesystem::path folder = VELTRIX_SOURCE_FOLDER;
    return folder;
}

} // namespace veltrix::test
