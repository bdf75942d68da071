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

/// A text file that is read line by line. A line ends at a line feed or at the end of the file and may hold
/// any other bytes, in any number; one carriage return directly before the line feed is removed with it.
class KESTRIN_EXPORT CStdioFile {
 public:
  CStdioFile();
  ~CStdioFile();
  CStdioFile(const CStdioFile&) = delete;
  CStdioFile& operator=(const CStdioFile&) = delete;

  /// Opens a file for reading; zero when it cannot be opened, as a folder cannot. The flags are the
  /// framework's; reading text, 0, is all there is.
  [[nodiscard]] int Open(const char* path, unsigned flags = 0);
  /// Closes the file, if one is open; so does the destructor.
  void Close();

  /// The next line; false at the end of the file. Raises CFileException on a read error.
  bool ReadString(CString& line);

  /// The same without a copy: the line is valid until the next is read.
  [[nodiscard]] std::optional<std::string_view> ReadLine();

 private:
  class LineBuffer;
  std::unique_ptr<LineBuffer> buffer_;
};

}  // namespace kestrin
