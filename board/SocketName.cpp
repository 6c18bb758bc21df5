#include "board/SocketName.h"

#include <deque>
#include <unordered_map>
#include <utility>
#include <vector>

namespace veltrix {

namespace {

struct Entry {
    std::string text;
    std::uint32_t holders = 0;
};

/// A deque, because the keys of the index look into the entries' texts: an entry never moves.
struct Table {
    std::deque<Entry> entries{1};
    std::unordered_map<std::string_view, std::uint32_t> index;
    std::vector<std::uint32_t> unused;
};

Table& table() {
    // Never destroyed: a name in a static object may outlive any other static.
    static auto* const the = new Table;
    return *the;
}

std::uint32_t hold(std::string_view text) {
    if (text.empty())
        return 0;
    Table& t = table();
    if (const auto found = t.index.find(text); found != t.index.end()) {
        ++t.entries[found->second].holders;
        return found->second;
    }
    std::uint32_t id = 0;
    if (t.unused.empty()) {
        id = static_cast<std::uint32_t>(t.entries.size());
        t.entries.emplace_back();
        // Room for every number, so that release(), which may not fail, need not ask for memory.
        if (t.unused.capacity() < t.entries.size())
            t.unused.reserve(2 * t.entries.size());
    } else {
        id = t.unused.back();
        t.unused.pop_back();
    }
    Entry& entry = t.entries[id];
    entry.text = text;
    entry.holders = 1;
    t.index.emplace(entry.text, id);
    return id;
}

void share(std::uint32_t id) noexcept {
    if (id != 0)
        ++table().entries[id].holders;
}

void release(std::uint32_t id) noexcept {
    if (id == 0)
        return;
    Table& t = table();
    Entry& entry = t.entries[id];
    if (--entry.holders != 0)
        return;
    t.index.erase(entry.text);
    entry.text = std::string();
    t.unused.push_back(id);
}

} // namespace

SocketName::SocketName(std::string_view text) : id_(hold(text)) {}

SocketName::SocketName(const SocketName& other) noexcept : id_(other.id_) {
    share(id_);
}

SocketName::SocketName(SocketName&& other) noexcept : id_(std::exchange(other.id_, 0)) {}

SocketName& SocketName::operator=(SocketName&& other) noexcept {
    std::swap(id_, other.id_);
    return *this;
}

SocketName::~SocketName() {
    release(id_);
}

void SocketName::change(std::uint32_t id) noexcept {
    share(id);
    release(std::exchange(id_, id));
}

const std::string& SocketName::Text() const noexcept {
    return table().entries[id_].text;
}

} // namespace veltrix
