#include "cli/BoardFile.h"

#include "cli/Fault.h"
#include "document/BoardDocument.h"
#include "document/DocumentFault.h"
#include "document/clsKorvelRFile.h"
#include "document/clsKorvelWFile.h"

#include <optional>
#include <system_error>

namespace veltrix::cli {

void RequireDocument(const std::string& path) {
    try {
        if (const std::optional<std::string> fault = FindDocumentFault(path))
            throw Fault(path, *fault);
    } catch (const std::system_error& error) {
        throw Fault(path, error.code().message());
    }
}

void ReadBoard(const std::string& path, Board& board) {
    RequireDocument(path);
    try {
        clsKorvelRFile file;
        file.OpenFile(path);
        ReadFrom(board, file);
    } catch (const std::system_error& error) {
        throw Fault(path, error.code().message());
    }
}

void WriteBoard(const std::string& path, const Board& board) {
    try {
        clsKorvelWFile file;
        file.OpenFile(path);
        WriteTo(board, file);
        file.CloseFile();
    } catch (const std::system_error& error) {
        throw Fault(path, error.code().message());
    }
}

} // namespace veltrix::cli
