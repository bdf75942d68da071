#pragma once

/// @file
/// The files to import, as named on the command line.

#include <array>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "kestrin/session/import_report.h"
#include "tool/temporary_copy.h"

namespace kestrin::tool {

/// How the tool names a file of an export set.
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

/// The name of a file in documents and in the names of files: "tech".
[[nodiscard]] constexpr const char* WordOf(ImportFile file) {
  return kFileKinds[static_cast<std::size_t>(file)].ending + 1;
}

/// The paths of the files to import. The path of a file that is not to be imported is empty.
class ExportSet {
 public:
  ///@{
  /// The path as the user named it: "-" is standard input.
  [[nodiscard]] const std::string& PathOf(ImportFile file) const { return paths_[At(file)]; }
  [[nodiscard]] std::string& PathOf(ImportFile file) { return paths_[At(file)]; }
  ///@}
  /// The path to read from. Call Open before.
  [[nodiscard]] const std::string& ReadablePathOf(ImportFile file) const {
    const auto& copy = copies_[At(file)];
    return copy == nullptr ? PathOf(file) : copy->Path();
  }
  [[nodiscard]] bool Has(ImportFile file) const { return !PathOf(file).empty(); }
  void Remove(ImportFile file) {
    paths_[At(file)].clear();
    copies_[At(file)] = nullptr;
  }

  /// Whether to read the Traces file with the strict reader.
  [[nodiscard]] bool IsStrict() const { return strict_; }
  [[nodiscard]] bool& Strict() { return strict_; }

  /// The encoding of the texts, as a word of the command line: "auto", "utf-8" or "latin-1".
  [[nodiscard]] const std::string& EncodingWord() const { return encoding_; }
  [[nodiscard]] std::string& EncodingWord() { return encoding_; }

  /// Adds folders, and files whose kind their ending tells. In a folder, the file with each ending counts,
  /// unless an option names that file. Letter case does not count. Raises UsageError unless it is clear which
  /// files are meant; only the Tech file of a folder may be missing.
  void Add(const std::vector<std::string>& paths);

  /// Adds a file whose bytes are the rest of a stream. Errors name it "<traces>".
  void AddStream(ImportFile file, std::FILE* source);

  ///@{
  /// Whether some files are temporary copies, and removing them once they need not be read any more.
  [[nodiscard]] bool HasCopies() const;
  void CloseCopies() { copies_ = {}; }
  ///@}

  /// Makes the files readable: copies standard input and pipes to temporary files, since an import reads its
  /// files more than once. Raises UsageError unless there is at least one file and each can be opened. Strict
  /// reading also requires a Traces file. Does nothing the second time.
  void Open();

 private:
  [[nodiscard]] static std::size_t At(ImportFile file) { return static_cast<std::size_t>(file); }
  void AddFile(const std::string& path);
  void AddFolder(const std::string& folder);

  std::array<std::string, kImportFileCount> paths_;
  std::array<std::shared_ptr<const TemporaryCopy>, kImportFileCount> copies_;
  bool strict_ = false;
  std::string encoding_ = "auto";
};

}  // namespace kestrin::tool
