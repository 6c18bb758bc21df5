#include "document/DocumentFault.h"

#include "document/BoardDocument.h"
#include "document/clsKorvelRFile.h"

#include <cstdint>

namespace veltrix {

namespace {

/// Walks a document field by field, as the board's own reader does, and stops at the first fault.
class FaultFinder {
public:
    explicit FaultFinder(clsKorvelRFile& file) : file_(file), size_(file.Remaining()) {}

    std::optional<std::string> Find() {
        if (size_ == 0)
            return "the file is empty";
        const bool whole = goIntoChunk(boardDocument::Document, "document") &&
                           goIntoChunk(boardDocument::Settings, "settings") && readSettings() &&
                           goIntoChunk(boardDocument::Wires, "wires") && readWires();
        return whole ? std::nullopt : fault_;
    }

private:
    [[nodiscard]] std::string position() const { return std::to_string(size_ - file_.Remaining()); }

    bool stop(const std::string& fault) {
        fault_ = fault;
        return false;
    }

    bool stopAtEnd(const std::string& inside) {
        return stop("the file ends inside " + inside + ", at byte " + std::to_string(size_));
    }

    bool goIntoChunk(std::int16_t expected, const std::string& name) {
        constexpr std::uint64_t headerBytes = 6;
        const bool whole = file_.Remaining() >= headerBytes;
        if (file_.Remaining() == 0)
            return stop("the " + name + " chunk is missing: the file ends at byte " + position());
        const std::int16_t type = file_.PeekChunkType();
        if (file_.Remaining() >= sizeof type && type != expected)
            return stop("no " + name + " chunk at byte " + position() + ": the type there is " +
                        std::to_string(type) + " instead of " + std::to_string(expected));
        if (!whole)
            return stopAtEnd("the head of the " + name + " chunk");
        file_.GoIntoChunk();
        return true;
    }

    bool readSettings() {
        constexpr std::uint64_t settingsBytes = 34;
        if (file_.Remaining() < settingsBytes)
            return stopAtEnd("the settings");
        file_.readLong(); // reserved
        countAt_ = position();
        count_ = file_.readLong();
        if (count_ < 0)
            return stop("the number of wires at byte " + countAt_ + " is " +
                        std::to_string(count_));
        const std::string readingAt = position();
        const std::int32_t reading = file_.readLong();
        if (reading < 0 || reading > 9)
            return stop("the counter reading at byte " + readingAt + " is " +
                        std::to_string(reading) + ", not 0 to 9");
        for (int field = 0; field < 5; ++field)
            file_.readLong();
        file_.readBool();
        file_.readBool();
        return true;
    }

    bool readWires() {
        for (std::int32_t wire = 1; wire <= count_; ++wire) {
            if (file_.Remaining() == 0)
                return stop("the number of wires at byte " + countAt_ + " is " +
                            std::to_string(count_) + ", but the file ends after " +
                            std::to_string(wire - 1) + " of them, at byte " + position());
            if (!skipName() || !skipName())
                return stopAtEnd("wire " + std::to_string(wire));
        }
        return true;
    }

    /// False when the name has no end: the file's end reads as one, but takes no byte.
    bool skipName() {
        const std::uint64_t before = file_.Remaining();
        const std::string name = file_.readString();
        return bytesOf(name) < before - file_.Remaining();
    }

    /// Each character of the code page is one byte in the file.
    static std::uint64_t bytesOf(const std::string& name) {
        std::uint64_t characters = 0;
        for (const char unit : name)
            characters += (static_cast<unsigned char>(unit) & 0xC0) != 0x80;
        return characters;
    }

    clsKorvelRFile& file_;
    std::uint64_t size_ = 0;
    std::int32_t count_ = 0;
    std::string countAt_;
    std::optional<std::string> fault_;
};

} // namespace

std::optional<std::string> FindDocumentFault(const std::string& path) {
    clsKorvelRFile file;
    file.OpenFile(path);
    return FaultFinder(file).Find();
}

} // namespace veltrix
