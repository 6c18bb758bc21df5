#pragma once

#include "document/SaveCalls.h"

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

namespace veltrix::test {

/// A disk in memory that knows what a power cut leaves of it. What was not flushed may be there
/// afterwards or not, names and contents each by themselves.
class MemoryDisk : public SaveCalls {
public:
    using Path = std::filesystem::path;

    /// A file that has been there long enough for the disk to have it.
    void Put(const Path& path, const std::string& content) {
        auto node = std::make_shared<Node>();
        node->content = node->flushed = content;
        names[path] = flushedNames[path] = node;
    }

    void Link(const Path& path, const Path& to) { links[path] = to; }

    [[nodiscard]] std::optional<std::string> At(const Path& path) const {
        const auto found = names.find(path);
        return found == names.end() ? std::nullopt : std::optional(found->second->content);
    }

    /// What may be under a name after a power cut at this moment.
    [[nodiscard]] std::vector<std::optional<std::string>> AfterPowerCut(const Path& path) const {
        std::vector<std::optional<std::string>> possible;
        for (const auto* table : {&names, &flushedNames}) {
            const auto found = table->find(path);
            if (found == table->end()) {
                possible.emplace_back();
                continue;
            }
            possible.emplace_back(found->second->content);
            possible.emplace_back(found->second->flushed);
        }
        return possible;
    }

    /// Called after each call.
    std::function<void()> whenCalled = [] {};
    /// The call, counted from 1, that fails; and all from that one on, where `forEver`.
    int failing = 0;
    bool forEver = false;
    std::errc reason = std::errc::io_error;
    /// What Create says to every name, for all that somebody else saves the same file.
    bool busy = false;
    bool replaceable = true;

    std::vector<std::string> calls;
    int openFiles = 0;

    Path Follow(const Path& path) override {
        call("Follow");
        const auto found = links.find(path);
        return done(found == links.end() ? path : found->second);
    }

    std::optional<File> OpenToWrite(const Path& path) override {
        call("OpenToWrite");
        const auto found = names.find(path);
        if (found == names.end())
            return done(std::optional<File>());
        return done(std::optional(open(found->second)));
    }

    bool IsReplaceable(File file) override {
        call("IsReplaceable");
        static_cast<void>(nodeOf(file));
        return done(replaceable);
    }

    std::uint64_t Size(File file) override {
        call("Size");
        return done(std::uint64_t{nodeOf(file).content.size()});
    }

    std::optional<File> Create(const Path& path, std::optional<File> like) override {
        call("Create");
        if (like)
            static_cast<void>(nodeOf(*like));
        if (busy)
            return done(std::optional<File>());
        names[path] = std::make_shared<Node>();
        return done(std::optional(open(names[path])));
    }

    std::string Read(File file, std::uint64_t offset, std::size_t most) override {
        call("Read");
        const std::string& content = nodeOf(file).content;
        return done(offset < content.size() ? content.substr(offset, most) : std::string());
    }

    /// One that fails has written the first half.
    void Write(File file, std::uint64_t offset, std::string_view bytes) override {
        std::string& content = nodeOf(file).content;
        try {
            call("Write");
        } catch (const std::system_error&) {
            put(content, offset, bytes.substr(0, bytes.size() / 2));
            throw;
        }
        put(content, offset, bytes);
        whenCalled();
    }

    void Truncate(File file, std::uint64_t size) override {
        call("Truncate");
        nodeOf(file).content.resize(size);
        whenCalled();
    }

    void Flush(File file) override {
        call("Flush");
        nodeOf(file).flushed = nodeOf(file).content;
        whenCalled();
    }

    void Rename(File file, const Path& from, const Path& to) override {
        call("Rename");
        if (names.at(from).get() != &nodeOf(file))
            throw std::logic_error("the name is another file's");
        names[to] = names.at(from);
        names.erase(from);
        whenCalled();
    }

    void Remove(File file, const Path& path) override {
        call("Remove");
        if (names.at(path).get() != &nodeOf(file))
            throw std::logic_error("the name is another file's");
        names.erase(path);
        whenCalled();
    }

    void Close(File file) noexcept override {
        calls.emplace_back("Close");
        openFiles -= handles.erase(file) == 1 ? 1 : 1000; // twice is a fault
        whenCalled();
    }

    void FlushFolder(const Path& /*path*/) override {
        call("FlushFolder");
        flushedNames = names;
        whenCalled();
    }

    [[nodiscard]] std::size_t Names() const { return names.size(); }

private:
    struct Node {
        std::string content;
        std::string flushed;
    };

    static void put(std::string& content, std::uint64_t offset, std::string_view bytes) {
        if (content.size() < offset + bytes.size())
            content.resize(offset + bytes.size());
        content.replace(offset, bytes.size(), bytes);
    }

    void call(const std::string& name) {
        calls.push_back(name);
        const auto number = static_cast<int>(calls.size());
        if (failing != 0 && (number == failing || (forEver && number > failing)))
            throw std::system_error(std::make_error_code(reason));
    }

    template <typename Result>
    Result done(Result result) {
        whenCalled();
        return result;
    }

    File open(const std::shared_ptr<Node>& node) {
        ++openFiles;
        const File file{++lastHandle};
        handles[file] = node;
        return file;
    }

    Node& nodeOf(File file) { return *handles.at(file); }

    std::map<Path, std::shared_ptr<Node>> names;
    std::map<Path, std::shared_ptr<Node>> flushedNames;
    std::map<Path, Path> links;
    std::map<File, std::shared_ptr<Node>> handles;
    std::intptr_t lastHandle = 0;
};

} // namespace veltrix::test
