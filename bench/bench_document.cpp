// Reading and writing the document of the typical board, in memory and in a file.

#include "bench/Boards.h"
#include "board/AppPath.h"
#include "document/BoardDocument.h"
#include "document/clsKorvelRFile.h"
#include "document/clsKorvelRWRam.h"
#include "document/clsKorvelWFile.h"

#include <filesystem>
#include <random>

namespace veltrix::bench {
namespace {

/// A board and a file that holds its document.
struct DocumentBench : Bench {
    DocumentBench() {
        typical(*this);
        writeFile();
    }

    DocumentBench(const DocumentBench&) = delete;
    DocumentBench& operator=(const DocumentBench&) = delete;

    ~DocumentBench() {
        std::error_code ignored; // a file left behind spoils no number
        std::filesystem::remove(PathFromUtf8(path), ignored);
    }

    void writeFile() {
        clsKorvelWFile file;
        file.OpenFile(path);
        WriteTo(board(), file);
        file.CloseFile();
    }

    [[nodiscard]] std::size_t bytes() const {
        return static_cast<std::size_t>(std::filesystem::file_size(PathFromUtf8(path)));
    }

    std::string path =
        Utf8FromPath(std::filesystem::temp_directory_path() /
                     ("veltrix-bench-" + std::to_string(std::random_device()()) + ".vtx"));
};

void WriteMemory(benchmark::State& state) {
    DocumentBench bench;
    clsKorvelRWRam memory;
    for (auto _ : state) {
        memory.ResetToStart();
        WriteTo(bench.board(), memory);
        benchmark::ClobberMemory();
    }
}

void ReadMemory(benchmark::State& state) {
    DocumentBench bench;
    clsKorvelRWRam memory;
    WriteTo(bench.board(), memory);
    for (auto _ : state) {
        memory.ResetToStart();
        ReadFrom(bench.board(), memory);
    }
}

void WriteFile(benchmark::State& state) {
    DocumentBench bench;
    for (auto _ : state)
        bench.writeFile();
}

void ReadFile(benchmark::State& state) {
    DocumentBench bench;
    for (auto _ : state) {
        clsKorvelRFile file;
        file.OpenFile(bench.path);
        ReadFrom(bench.board(), file);
    }
}

void DocumentMemcpy(benchmark::State& state) {
    copyBytes(state, DocumentBench().bytes());
}

BENCHMARK(WriteMemory);
BENCHMARK(ReadMemory);
BENCHMARK(WriteFile);
BENCHMARK(ReadFile);
BENCHMARK(DocumentMemcpy);

} // namespace
} // namespace veltrix::bench
