#pragma once

/// @file
/// The values of a line of a Traces file.

#include <cstddef>
#include <string_view>
#include <vector>

#include "kestrin/platform/exceptions.h"
#include "kestrin/platform/numbers.h"

namespace kestrin {

/// A line cut at its spaces: the record code, and the values behind it, numbered from 1. Spaces between
/// apostrophes do not separate, and an apostrophe that a line leaves open stays open on the next.
///
/// The values are views into the line and valid as long as it is. Asking for a value that the line does not
/// have raises CInvalidArgException.
class LineValues {
 public:
  void Cut(std::string_view line);

  /// Whether the line that was cut last leaves an apostrophe open.
  [[nodiscard]] bool LeavesQuoteOpen() const { return quoted_; }

  /// Empty when the line is.
  [[nodiscard]] std::string_view Code() const { return values_.empty() ? std::string_view() : values_[0]; }
  /// How many values follow the code.
  [[nodiscard]] std::size_t Count() const { return values_.empty() ? 0 : values_.size() - 1; }
  [[nodiscard]] bool Has(std::size_t number) const { return number < values_.size(); }

  /// A value as it stands, quotes included.
  [[nodiscard]] std::string_view Text(std::size_t number) const {
    if (!Has(number)) AfxThrowInvalidArgException();
    return values_[number];
  }
  /// A value without the apostrophes at its ends.
  [[nodiscard]] std::string_view Unquoted(std::size_t number) const;
  [[nodiscard]] int Int(std::size_t number) const { return ToInt(Text(number)); }
  [[nodiscard]] double Double(std::size_t number) const { return ToDouble(Text(number)); }

 private:
  std::vector<std::string_view> values_;  // of the current line, the code first
  bool quoted_ = false;
};

}  // namespace kestrin
