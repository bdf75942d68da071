#pragma once

/// @file
/// Noticing that files changed after they were read.

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "tool/export_set.h"

namespace kestrin::python {

/// The size and time of the files of a set.
class FileStamps {
 public:
  FileStamps() = default;
  explicit FileStamps(const tool::ExportSet& set);

  /// Raises UsageError if a file is another one now, or not there.
  void RequireSame() const;

 private:
  struct Stamp {
    std::string name;  ///< for people
    std::filesystem::path path;
    std::uintmax_t size = 0;
    std::filesystem::file_time_type time;

    friend bool operator==(const Stamp&, const Stamp&) = default;
  };

  static Stamp StampOf(const std::string& name, const std::filesystem::path& path);

  std::vector<Stamp> stamps_;
};

}  // namespace kestrin::python
