#pragma once

#include <cstdint>
#include <filesystem>
#include <random>
#include <string>

namespace veltrix::test {

/// A folder of its own for one test, gone with all its files when the test is over.
class TempFolder {
public:
    TempFolder() {
        std::random_device random;
        // Another test, or another run of the same one, may have drawn the same name.
        do
            path_ = std::filesystem::temp_directory_path() /
                    ("veltrix-test-" + std::to_string(random()));
        while (!std::filesystem::create_directory(path_));
    }

    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    ~TempFolder() {
        std::error_code ignored; // a file that stays behind must not hide what the test found
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] const std::filesystem::path& Path() const noexcept { return path_; }

private:
    std::filesystem::path path_;
};

} // namespace veltrix::test
