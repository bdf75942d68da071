#include "bench/inputs.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "bench/works.h"
#include "bench/yardsticks/floors.h"
#include "support/generators/generators.h"

namespace kestrin::bench {
namespace {

/// Reads a file into memory of exactly its size. Nothing is freed until the end, so the heap stays like that
/// of a new process.
std::string ContentOf(const std::string& path) {
  std::string bytes(std::filesystem::file_size(path), '\0');
  std::ifstream(path, std::ios::binary).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

/// Adds the size and the number of lines of a file to those of an input.
void AddSize(Input& input, const std::string& path) {
  constexpr std::size_t kBlockSize = std::size_t{1} << 16;
  std::string block(kBlockSize, '\0');
  std::ifstream file(path, std::ios::binary);
  while (file.read(block.data(), kBlockSize), file.gcount() > 0) {
    const auto count = static_cast<std::size_t>(file.gcount());
    input.size += count;
    input.lines += CountNewlines({block.data(), count});
  }
}

}  // namespace

Inputs::Inputs(std::uint64_t size) {
  for (const test::GeneratedFile& file : test::kGeneratedFiles) {
    const std::string path = folder_.Path(file.kind);
    if (!test::WriteGenerated(file, path, size)) throw std::runtime_error("cannot write \"" + path + '"');
    inputs_.push_back({std::string(file.kind), path, ContentOf(path)});
    AddSize(inputs_.back(), path);
  }
  inputs_.push_back({std::string(kBoard), folder_.Path(), {}});
  Input& board = inputs_.back();
  if (!test::GenerateBoard(board.path, size / test::kBoardBytesPerLeg))
    throw std::runtime_error(board.path + ": cannot be written");
  for (const test::GeneratedFile& file : test::kGeneratedFiles) {
    AddSize(board, board.path + "/board." + std::string(file.kind));
  }
}

}  // namespace kestrin::bench
