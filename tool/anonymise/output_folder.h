#pragma once

/// @file
/// Output that is there as a whole or not at all.

#include <filesystem>
#include <string>
#include <string_view>

#include "tool/export_set.h"

namespace kestrin::tool {

/// A folder that is filled under another name beside it and gets its own name at the end. If that does not
/// happen, nothing is left of it. All functions raise UsageError if they cannot do their work.
class OutputFolder {
 public:
  /// A folder that exists is only replaced on request, and only if it has nothing but files of an export set,
  /// none of which is in the given set.
  OutputFolder(const std::string& path, const ExportSet& source, bool replaces);
  OutputFolder(const OutputFolder&) = delete;
  OutputFolder& operator=(const OutputFolder&) = delete;
  ~OutputFolder();

  void Write(const std::string& name, std::string_view bytes) const;
  void Finish();

  /// Whether a path is in the folder.
  [[nodiscard]] bool HasPath(const std::string& path) const;

 private:
  std::filesystem::path path_;
  std::filesystem::path filled_;  // empty when it is finished
};

/// A file like this, which only its owner can read.
class OutputFile {
 public:
  OutputFile(const std::string& path, bool replaces);
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  ~OutputFile();

  void Write(std::string_view bytes) const;
  void Finish();

 private:
  std::filesystem::path path_;
  std::filesystem::path filled_;
};

}  // namespace kestrin::tool
