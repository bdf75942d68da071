#pragma once

/// @file
/// The framework's text file.

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"

namespace kestrin {

/// A text file that is read line by line.
///
///     kestrin::CStdioFile file;
///     kestrin::CString line;
///     if (file.Open("board.tech") != 0) {
///       while (file.ReadString(line)) Use(line);
///     }
///
/// A line ends at a line feed or at the end of the file. It may be of any length and contain any other bytes.
/// The line feed is removed, and so is one carriage return directly before it.
class KESTRIN_EXPORT CStdioFile {
 public:
  CStdioFile();
  ~CStdioFile();
  CStdioFile(const CStdioFile&) = delete;
  CStdioFile& operator=(const CStdioFile&) = delete;

  /// Opens a file for reading. Returns zero if it cannot be opened or is a folder; the file opened before
  /// then stays open. The flags are ignored: files are always opened to read text.
  [[nodiscard]] int Open(const char* path, unsigned flags = 0);
  /// Closes the file if one is open. The destructor does this too.
  void Close();

  /// Reads the next line. At the end of the file, returns false and makes the line empty. Raises
  /// CFileException on a read error.
  bool ReadString(CString& line);

  /// Like ReadString, but without a copy. The view is valid until the next line is read or the file is
  /// closed.
  [[nodiscard]] std::optional<std::string_view> ReadLine();

 private:
  class LineBuffer;
  std::unique_ptr<LineBuffer> buffer_;
};

}  // namespace kestrin
