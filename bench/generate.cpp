// kestrin_generate KIND SIZE > file: writes a large file of a kind, about SIZE bytes long.
// kestrin_generate board FOLDER LEGS: writes the four files of a board, which agree, into a folder; its
// tracks have about LEGS legs.

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
               "       kestrin_generate board FOLDER LEGS\nkinds:%s\n",
               kinds.c_str());
  return 2;
}

std::optional<std::uint64_t> Number(std::string_view digits) {
  std::uint64_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return number;
}

int WriteBoard(const std::string& folder, std::uint64_t legs) {
  std::error_code error;  // a folder that is not there is met again below
  std::filesystem::create_directories(folder, error);
  if (kestrin::test::GenerateBoard(folder, legs)) return 0;
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
  const std::optional<std::uint64_t> number = Number(words[count - 1]);
  if (!number || (kind == "board") != (count == 4)) return Usage();
  return kind == "board" ? WriteBoard(words[2], *number) : WriteFile(kind, *number);
}
