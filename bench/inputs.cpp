#include "bench/inputs.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "bench/works.h"
#include "bench/yardsticks/newlines.h"

namespace kestrin::bench {
namespace {

std::string ContentOf(const std::string& path) {
  std::string bytes(std::filesystem::file_size(path), '\0');
  std::ifstream(path, std::ios::binary).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

InputSize SizeOf(const std::string& path) {
  constexpr std::size_t kBlockSize = std::size_t{1} << 16;
  std::string block(kBlockSize, '\0');
  InputSize size;
  std::ifstream file(path, std::ios::binary);
  while (file.read(block.data(), kBlockSize), file.gcount() > 0) {
    const auto count = static_cast<std::size_t>(file.gcount());
    size.bytes += count;
    size.lines += CountNewlines({block.data(), count});
  }
  return size;
}

}  // namespace

void Inputs::AddFile(const test::GeneratedFile& file, std::uint64_t size) {
  Prepared& added = Add(file, std::string(file.kind), size);
  added.bytes = ContentOf(added.input.path);
  added.input.bytes = added.bytes;
}

void Inputs::AddLargeFile(const test::GeneratedFile& file, std::uint64_t megabytes) {
  Add(file, std::string(file.kind) + " " + std::to_string(megabytes) + " MB", megabytes * 1'000'000);
}

void Inputs::AddBoard(std::uint64_t size) {
  const std::string folder = folder_.Path();
  if (!test::GenerateBoard(folder, size)) throw std::runtime_error(folder + ": cannot be written");
  Prepared& board = inputs_.emplace_back();
  board.kind = kBoard;
  board.input.path = folder;
  for (const test::GeneratedFile& file : test::kGeneratedFiles) {
    const InputSize added = SizeOf(folder + "/board." + std::string(file.kind));
    board.size.bytes += added.bytes;
    board.size.lines += added.lines;
  }
}

Prepared& Inputs::Add(const test::GeneratedFile& file, const std::string& kind, std::uint64_t size) {
  const std::string path = folder_.Path(kind);
  if (!test::WriteGenerated(file, path, size)) throw std::runtime_error(path + ": cannot be written");
  Prepared& added = inputs_.emplace_back();
  added.kind = kind;
  added.input.path = path;
  added.size = SizeOf(path);
  return added;
}

}  // namespace kestrin::bench
