#pragma once

/// @file
/// The works for each kind of input.

#include <span>
#include <string_view>

#include "bench/measuring/work.h"

namespace kestrin::bench {

///@{
/// The name of a work.
inline constexpr std::string_view kNewlines = "newlines";
inline constexpr std::string_view kFields = "fields";
inline constexpr std::string_view kReaderFromMemory = "reader, from memory";
inline constexpr std::string_view kStrictReader = "strict reader, from memory";
inline constexpr std::string_view kReader = "reader, from the file";
inline constexpr std::string_view kPlainC = "plain C, from the file";
inline constexpr std::string_view kImport = "import";
inline constexpr std::string_view kImportAndBoard = "import and ReadBoard";
inline constexpr std::string_view kImportWithDialog = "import with progress shown";
///@}

/// The kind of an input that is a whole export set. Other inputs have the kind of their file.
inline constexpr std::string_view kBoard = "board";

/// A work with its name and the kind of its input.
struct NamedWork {
  std::string_view kind;
  std::string_view name;
  Work run;
};

/// All works. "From memory" works and the floors read the contents of an input; the others read the file,
/// which is in the page cache.
[[nodiscard]] std::span<const NamedWork> AllWorks();

[[nodiscard]] constexpr bool BuildsModel(const NamedWork& work) {
  return work.name != kNewlines && work.name != kFields;
}

/// Whether all works that build a model build the same one of this input. If not, prints the differences to
/// standard error.
[[nodiscard]] bool BuildTheSame(const Input& input);

}  // namespace kestrin::bench
