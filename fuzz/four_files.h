#pragma once

/// @file
/// Inputs of the targets that read a whole export set.

#include <array>
#include <cstddef>
#include <string_view>

#include "kestrin/session/import_report.h"

namespace kestrin::fuzz {

/// The four files of an input, in the order in which they are read, with a separator between them.
struct FourFiles {
  static constexpr char kSeparator = '\x1c';

  std::array<std::string_view, kImportFileCount> texts;

  explicit FourFiles(std::string_view input) {
    for (std::string_view& text : texts) {
      const std::size_t end = input.find(kSeparator);
      text = input.substr(0, end);
      input.remove_prefix(end == std::string_view::npos ? input.size() : end + 1);
    }
  }
};

}  // namespace kestrin::fuzz
