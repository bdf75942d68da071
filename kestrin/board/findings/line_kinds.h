#pragma once

/// @file
/// Which of the four files a file is.

#include <array>
#include <cstdint>
#include <string>

#include "kestrin/session/import_report.h"

namespace kestrin {

/// The lines of a file, counted by the readers that import them.
struct LineKinds {
  std::int64_t lines = 0;                                 ///< without blank ones
  std::array<std::int64_t, kImportFileCount> imported{};  ///< by ImportFile
};

/// Has each of the four readers read a file. Counts no lines if the file cannot be opened.
[[nodiscard]] LineKinds CountLineKinds(const std::string& path);

}  // namespace kestrin
