// kestrin_generate KIND SIZE > file: writes a file of about SIZE bytes.
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
               "usage: kestrin_generate KIND BYTES > FILE\n"
               "       kestrin_generate board FOLDER LEGS\nKIND is one of:%s\n",
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
  std::error_code error;  // if this fails, so does writing the files
  std::filesystem::create_directories(folder, error);
  if (kestrin::test::GenerateBoard(folder, legs)) return 0;
  std::fprintf(stderr, "kestrin_generate: cannot write to folder \"%s\"\n", folder.c_str());
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
