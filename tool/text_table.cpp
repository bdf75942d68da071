#include "tool/text_table.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace kestrin::tool {
namespace {

/// The number of characters of a UTF-8 text.
std::size_t WidthOf(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(
      text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

/// Cuts a long text, so that one long name does not widen every row.
std::string Cut(std::string text) {
  constexpr std::size_t kMostBytes = 110;
  if (text.size() <= kMostBytes) return text;
  std::size_t end = kMostBytes;
  while ((static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) --end;  // not inside a character
  return text.substr(0, end) + "…";
}

}  // namespace

TextTable::TextTable(std::vector<Column> columns) : columns_(std::move(columns)), widths_(columns_.size()) {
  std::vector<std::string> headings;
  for (const Column& column : columns_) headings.push_back(column.heading);
  AddRow(std::move(headings));
}

void TextTable::AddRow(std::vector<std::string> cells) {
  for (std::size_t i = 0; i < widths_.size(); ++i) {
    cells[i] = Cut(std::move(cells[i]));
    widths_[i] = std::max(widths_[i], WidthOf(cells[i]));
  }
  rows_.push_back(std::move(cells));
}

void TextTable::Print() const {
  if (rows_.size() == 1) return;
  for (const auto& row : rows_) PrintRow(row);
}

void TextTable::PrintRow(const std::vector<std::string>& cells) const {
  std::string line;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const std::string padding(widths_[i] - WidthOf(cells[i]), ' ');
    line += columns_[i].align == Align::kLeft ? "  " + cells[i] + padding : "  " + padding + cells[i];
  }
  line.erase(line.find_last_not_of(' ') + 1);
  std::printf("%s\n", line.c_str());
}

}  // namespace kestrin::tool
