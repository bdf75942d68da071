#pragma once

/// @file
/// What is run for every kind of input.

#include <span>
#include <string_view>

#include "bench/measuring/work.h"

namespace kestrin::bench {

///@{
/// The names of works.
inline constexpr std::string_view kNewlines = "newlines";
inline constexpr std::string_view kFields = "fields";
inline constexpr std::string_view kReaderFromMemory = "reader, from memory";
inline constexpr std::string_view kStrictReader = "strict reader, from memory";
inline constexpr std::string_view kReader = "reader, from the file";
inline constexpr std::string_view kPlainC = "plain C, from the file";
inline constexpr std::string_view kImport = "import";
inline constexpr std::string_view kImportWithDialog = "import with progress shown";
///@}

/// The kind of input that is a whole export set; the others are those of files.
inline constexpr std::string_view kBoard = "board";

/// A work and what it reads.
struct NamedWork {
  std::string_view kind;
  std::string_view name;
  Work run;
};

/// Newlines, fields and the readers from memory take the same bytes; the reader from the file and plain C
/// take the same file from the page cache.
[[nodiscard]] std::span<const NamedWork> AllWorks();

[[nodiscard]] constexpr bool BuildsModel(const NamedWork& work) {
  return work.name != kNewlines && work.name != kFields;
}

/// Whether all works that build a model of the input build the same. Says what they build where they do not.
[[nodiscard]] bool BuildTheSame(const Input& input);

}  // namespace kestrin::bench
