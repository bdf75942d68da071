// kestrin_generate KIND SIZE > file: writes a large file of a kind, about SIZE bytes long.
// kestrin_generate board FOLDER SIZE: writes the four files of a board into a folder.

#include <charconv>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>

#include "support/generators/generators.h"

namespace {

int Usage() {
  std::string kinds;
  for (const auto& file : kestrin::test::kGeneratedFiles) kinds.append(" ").append(file.kind);
  std::fprintf(stderr,
               "usage: kestrin_generate KIND SIZE-IN-BYTES > file\n"
               "       kestrin_generate board FOLDER SIZE-IN-BYTES\nkinds:%s\n",
               kinds.c_str());
  return 2;
}

std::optional<std::uint64_t> Size(std::string_view digits) {
  std::uint64_t size = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), size);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return size;
}

int WriteBoard(const std::string& folder, std::uint64_t size) {
  std::error_code error;  // a folder that is not there is met again below
  std::filesystem::create_directories(folder, error);
  if (kestrin::test::GenerateBoard(folder, size)) return 0;
  std::fprintf(stderr, "%s: cannot be written\n", folder.c_str());
  return 1;
}

int WriteFile(std::string_view kind, std::uint64_t size) {
  for (const auto& file : kestrin::test::kGeneratedFiles) {
    if (file.kind != kind) continue;
    std::ios::sync_with_stdio(false);
    file.generate(std::cout, size);
    return std::cout.flush() ? 0 : 1;
  }
  return Usage();
}

}  // namespace

int main(int count, char** words) {
  if (count != 3 && count != 4) return Usage();
  const std::string_view kind = words[1];
  const std::optional<std::uint64_t> size = Size(words[count - 1]);
  if (!size || (kind == "board") != (count == 4)) return Usage();
  return kind == "board" ? WriteBoard(words[2], *size) : WriteFile(kind, *size);
}
