#pragma once

/// @file
/// A file that is read once from its start to its end.

#include <cstddef>

#include "kestrin/base/file_handle.h"

namespace kestrin {

/// An open file, closed with the object. Bytes come as they stand on disk.
class InputFile {
 public:
  /// False when the file cannot be opened; a folder cannot.
  [[nodiscard]] bool Open(const char* path);
  [[nodiscard]] bool IsOpen() const { return file_ != nullptr; }
  void Close() { file_.reset(); }

  /// Reads up to size bytes and returns how many; 0 at the end. Raises CFileException on a read error,
  /// once all that came before it has been given.
  [[nodiscard]] std::size_t Read(char* bytes, std::size_t size);

 private:
  FileHandle file_;
};

}  // namespace kestrin
