#pragma once

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

namespace veltrix {

/// Objects in the order in which they were added, found by position and by walking. Positions
/// count from 1. The collection shares its objects: one lives on while somebody else holds it.
template <typename T>
class Collection {
public:
    using Items = std::vector<std::shared_ptr<T>>;

    void Add(std::shared_ptr<T> item) { items_.push_back(std::move(item)); }

    /// Throws std::out_of_range when `index` is not 1 to Count().
    void Remove(std::int32_t index) {
        check(index);
        items_.erase(items_.begin() + (index - 1));
    }

    /// Throws std::out_of_range when `index` is not 1 to Count().
    [[nodiscard]] const std::shared_ptr<T>& Item(std::int32_t index) const {
        check(index);
        return items_[static_cast<std::size_t>(index - 1)];
    }

    [[nodiscard]] std::int32_t Count() const noexcept {
        return static_cast<std::int32_t>(items_.size());
    }

    [[nodiscard]] typename Items::const_iterator begin() const noexcept { return items_.begin(); }

    [[nodiscard]] typename Items::const_iterator end() const noexcept { return items_.end(); }

private:
    void check(std::int32_t index) const {
        if (index < 1 || index > Count())
            throw std::out_of_range("invalid index into a collection");
    }

    Items items_;
};

} // namespace veltrix
