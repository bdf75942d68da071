#pragma once

/// @file
/// Values that an import reads as numbers although they are not wholly numbers, such as "22,5".

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "kestrin/base/export.h"
#include "kestrin/session/import_report.h"

namespace kestrin {

/// A value that is read as a number, but is not a number from its beginning to its end: "22,5" is read as
/// 22, "abc" as 0, and "22.5" as 22 where a whole number is read.
struct MisreadNumber {
  ImportFile file = ImportFile::kTech;  ///< which file of the set
  std::int64_t line = 0;                ///< counted from 1
  int value = 0;           ///< the position of the value in its line, counted from 1 as the file formats do
  std::string text;        ///< the value, at most its first FileReport::kKeptBytes bytes
  bool asInteger = false;  ///< whether a whole number is read
};

/// The values of a file that are misread.
struct MisreadNumbers {
  std::vector<MisreadNumber> first;  ///< the first of them, in file order
  std::size_t count = 0;             ///< how many there are
};

/// Finds such values in the lines that an import of the file takes. Keeps at most as many as wanted. Values
/// that may be text as well are left out, and so are empty ones, and those that are first cut in a way of
/// their own (BOARD, REFLOC).
///
/// Reads the file once more, so the import itself is as fast as without. It may run in another thread than
/// the import. A file that cannot be opened has none. A line that stops an import ends the search. Raises
/// CFileException on a read error.
[[nodiscard]] KESTRIN_EXPORT MisreadNumbers FindMisreadNumbers(ImportFile file, const std::string& path,
                                                               std::size_t most);

}  // namespace kestrin
