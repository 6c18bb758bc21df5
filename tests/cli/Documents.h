#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace veltrix::test {

using Wires = std::vector<std::pair<std::string, std::string>>;

/// A board document made byte by byte, so that it can also be wrong.
struct Document {
    Wires wires;                                      ///< names in the document's code page
    std::optional<std::int32_t> count = std::nullopt; ///< of wires, when it is not the right one
    std::int32_t counter = 0;
    std::int32_t sensor1 = 0;
    std::int32_t sensor2 = 0;
    std::int32_t pulse = 0;
    std::int32_t comparator = 0;
    std::int32_t voltage = 0;
    bool button1 = false;
    bool button2 = false;

    [[nodiscard]] std::string Bytes() const {
        std::string names;
        for (const auto& [from, to] : wires)
            names.append(from).append(1, '\0').append(to).append(1, '\0');
        std::string settings;
        const auto right = static_cast<std::int32_t>(wires.size());
        for (const std::int32_t field :
             {0, count.value_or(right), counter, sensor1, sensor2, pulse, comparator, voltage})
            settings += little(field, 4);
        for (const bool pressed : {button1, button2})
            settings += pressed ? '\xFF' : '\0';
        return chunk(-9510, chunk(4096, settings) + chunk(8192, names));
    }

private:
    static std::string little(std::int64_t value, int bytes) {
        std::string text;
        for (int i = 0; i < bytes; ++i)
            text += static_cast<char>(value >> (8 * i) & 0xFF);
        return text;
    }

    static std::string chunk(std::int16_t type, const std::string& body) {
        return little(type, 2) + little(static_cast<std::int64_t>(body.size()), 4) + body;
    }
};

} // namespace veltrix::test
