#pragma once

/// @file
/// Tables of text in columns.

#include <cstddef>
#include <string>
#include <vector>

namespace kestrin::tool {

/// Rows under a heading; every column is as wide as its widest cell.
class TextTable {
 public:
  enum class Align { kLeft, kRight };
  struct Column {
    std::string heading;
    Align align = Align::kLeft;
  };

  explicit TextTable(std::vector<Column> columns);

  /// As many cells as there are columns; long ones are cut.
  void AddRow(std::vector<std::string> cells);
  /// Prints to standard output, indented; nothing when there are no rows.
  void Print() const;

 private:
  void PrintRow(const std::vector<std::string>& cells) const;

  std::vector<Column> columns_;
  std::vector<std::size_t> widths_;
  std::vector<std::vector<std::string>> rows_;  // the first holds the headings
};

}  // namespace kestrin::tool
