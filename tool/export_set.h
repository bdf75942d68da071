#pragma once

/// @file
/// Which files to import.

#include <array>
#include <cstddef>
#include <string>

#include "kestrin/session/import_report.h"

namespace kestrin::tool {

/// How a file of an export set is spoken of.
struct FileKind {
  ImportFile file;
  const char* name;
  const char* option;
  const char* ending;
};

/// In the order in which the files are read.
inline constexpr std::array<FileKind, kImportFileCount> kFileKinds{{
    {ImportFile::kTech, "Tech", "--tech", ".tech"},
    {ImportFile::kNeutral, "Neutral", "--neutral", ".neutral"},
    {ImportFile::kGeometry, "Geometry", "--geometry", ".geometry"},
    {ImportFile::kTraces, "Traces", "--traces", ".traces"},
}};

/// The paths of the files to import, empty for a file that is not given.
class ExportSet {
 public:
  [[nodiscard]] const std::string& PathOf(ImportFile file) const {
    return paths_[static_cast<std::size_t>(file)];
  }
  [[nodiscard]] std::string& PathOf(ImportFile file) { return paths_[static_cast<std::size_t>(file)]; }
  [[nodiscard]] bool Has(ImportFile file) const { return !PathOf(file).empty(); }

  /// Whether the Traces file is to be read by its grammar, not by the session.
  [[nodiscard]] bool IsStrict() const { return strict_; }
  [[nodiscard]] bool& Strict() { return strict_; }

  /// Looks for the files that are not given yet by their endings in a folder. Raises UsageError unless it has
  /// exactly one of each.
  void FindInFolder(const std::string& folder);

  /// Raises UsageError unless at least one file is given and all of them can be read, twice: the import
  /// counts a file's lines before it reads them. Reading strictly needs a Traces file.
  void CheckReadable() const;

 private:
  std::array<std::string, kImportFileCount> paths_;
  bool strict_ = false;
};

}  // namespace kestrin::tool
