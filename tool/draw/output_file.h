#pragma once

/// @file
/// Writing a file so that nobody ever finds half of it.

#include <string>
#include <string_view>

#include "kestrin/base/file_handle.h"

namespace kestrin::tool::draw {

/// A file that gets its name only when it is complete. Until then it is beside it under another name, and it
/// is removed if it is never completed. Raises UsageError, with the path in the message, if anything fails.
class OutputFile {
 public:
  explicit OutputFile(const std::string& path);
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  ~OutputFile();

  void Write(std::string_view bytes);
  /// Gives the file its name; replaces a file of that name.
  void Complete();

 private:
  [[noreturn]] void Fail(const std::string& why) const;

  std::string path_;      // as the user wrote it
  std::string target_;    // where links lead
  std::string partPath_;  // empty once complete
  FileHandle file_;
};

}  // namespace kestrin::tool::draw
