#pragma once

#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace veltrix::tools {

/// The bytes of a file in the making; numbers have their lowest byte first.
class BinaryFile {
public:
    void Number(std::uint32_t value, int bytes) {
        for (int i = 0; i < bytes; ++i)
            bytes_ += static_cast<char>(static_cast<unsigned char>(value >> (8 * i) & 0xFF));
    }

    void Text(std::string_view text) { bytes_ += text; }

    [[nodiscard]] const std::string& Bytes() const noexcept { return bytes_; }

    /// Throws std::runtime_error when the file cannot be written.
    void Write(const std::string& path) const {
        std::ofstream file(path, std::ios::binary);
        file.write(bytes_.data(), static_cast<std::streamsize>(bytes_.size()));
        file.close();
        if (!file)
            throw std::runtime_error(path + ": cannot be written");
    }

private:
    std::string bytes_;
};

} // namespace veltrix::tools
