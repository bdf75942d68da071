#include <fstream>

#include "support/generators/generators.h"

namespace kestrin::test {
namespace {

/// What a file has of a board's bytes.
std::uint64_t SizeOnBoard(std::string_view kind, std::uint64_t size) {
  constexpr std::uint64_t kTechSize = 2'000;
  if (kind == "traces") return size / 10 * 7;
  if (kind == "geometry") return size / 10 * 2;
  if (kind == "neutral") return size / 10;
  return kTechSize;
}

}  // namespace

bool WriteGenerated(const GeneratedFile& file, const std::string& path, std::uint64_t size) {
  std::ofstream out(path, std::ios::binary);
  file.generate(out, size);
  return static_cast<bool>(out.flush());
}

bool GenerateBoard(const std::string& folder, std::uint64_t size) {
  for (const GeneratedFile& file : kGeneratedFiles) {
    const std::string path = folder + "/board." + std::string(file.kind);
    if (!WriteGenerated(file, path, SizeOnBoard(file.kind, size))) return false;
  }
  return true;
}

}  // namespace kestrin::test
