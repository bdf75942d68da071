#pragma once

/// @file
/// Reading export sets.

#include <pybind11/pybind11.h>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "python/read_set.h"
#include "tool/board.h"

namespace kestrin::python {

namespace py = pybind11;

/// What to read, as the module's functions take it.
struct Sources {
  std::vector<std::string> paths;            ///< folders and files
  std::map<std::string, std::string> files;  ///< a path by the name of its file: "tech"
  std::map<std::string, py::bytes> bytes;    ///< the contents by the name of their file
  std::string encoding;
  bool isStrict = false;
  bool isPartial = false;  ///< a reader that stops early is no error

  /// The set of files. Raises UsageError unless it is clear which are meant.
  [[nodiscard]] tool::ExportSet Set() const;
};

/// Imports a set without Python's lock. Raises StoppedError if a reader stops early, and what Ctrl-C raises.
void ImportUnlocked(tool::Imported& imported, const Sources& sources, tool::StrictReading strict);

/// Reads a set and its board.
[[nodiscard]] std::shared_ptr<ReadSet> Read(const Sources& sources, const BoardOptions& options);

}  // namespace kestrin::python
