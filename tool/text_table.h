#pragma once

/// @file
/// Printing tables.

#include <cstddef>
#include <string>
#include <vector>

namespace kestrin::tool {

/// A table with headings. Each column is as wide as its widest cell.
class TextTable {
 public:
  enum class Align { kLeft, kRight };
  struct Column {
    std::string heading;
    Align align = Align::kLeft;
  };

  explicit TextTable(std::vector<Column> columns);

  /// Adds a row, which must have a cell for each column. Long cells are cut.
  void AddRow(std::vector<std::string> cells);
  /// Prints the table to standard output, indented. Prints nothing if there are no rows.
  void Print() const;

 private:
  void PrintRow(const std::vector<std::string>& cells) const;

  std::vector<Column> columns_;
  std::vector<std::size_t> widths_;
  std::vector<std::vector<std::string>> rows_;  // the first holds the headings
};

}  // namespace kestrin::tool
