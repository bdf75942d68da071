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
/// The line is cut as far as it is asked for: most records are read from left to right, and a number is
/// converted and found to its end at once. The values are views into the line and valid as long as it is.
/// Asking for a value that the line does not have raises CInvalidArgException.
class LineValues {
 public:
  /// The values are those of the line from now on.
  void Begin(std::string_view line);

  /// Whether the line leaves an apostrophe open.
  [[nodiscard]] bool LeavesQuoteOpen() const { return quoted_; }

  /// Empty when the line is.
  [[nodiscard]] std::string_view Code() { return Has(0) ? values_[0] : std::string_view(); }
  /// Whether the line has nothing behind its code, which must have been asked for.
  [[nodiscard]] bool IsCodeAlone() {
    SkipSpaces();
    return rest_.empty() && values_.size() == 1;
  }
  /// How many values follow the code.
  [[nodiscard]] std::size_t Count() {
    while (CutNext()) continue;
    return values_.empty() ? 0 : values_.size() - 1;
  }
  [[nodiscard]] bool Has(std::size_t number) {
    while (values_.size() <= number) {
      if (!CutNext()) return false;
    }
    return true;
  }

  /// A value as it stands, quotes included.
  [[nodiscard]] std::string_view Text(std::size_t number) {
    if (!Has(number)) AfxThrowInvalidArgException();
    return values_[number];
  }
  /// A value without the apostrophes at its ends.
  [[nodiscard]] std::string_view Unquoted(std::size_t number);
  [[nodiscard]] int Int(std::size_t number) { return ToInt(Text(number)); }
  [[nodiscard]] double Double(std::size_t number) {
    double value = 0.0;
    return number == values_.size() && CutPlainNumber(value) ? value : ToDouble(Text(number));
  }

 private:
  void CutQuoted(std::string_view line);

  void SkipSpaces() {
    while (!rest_.empty() && rest_.front() == ' ') rest_.remove_prefix(1);
  }
  void Take(std::size_t size) {
    values_.push_back(rest_.substr(0, size));
    rest_.remove_prefix(size);
  }
  bool CutNext() {
    SkipSpaces();
    if (rest_.empty()) return false;
    std::size_t size = 0;
    while (size < rest_.size() && rest_[size] != ' ') ++size;
    Take(size);
    return true;
  }
  /// False, and nothing is cut, when the next value is not just a number of the usual form.
  bool CutPlainNumber(double& number) {
    SkipSpaces();
    const std::size_t size = ReadPlainNumber(rest_, number);
    if (size == 0 || (size < rest_.size() && rest_[size] != ' ')) return false;
    Take(size);
    return true;
  }

  std::string_view rest_;                 // of the line, not cut yet, without an apostrophe
  std::vector<std::string_view> values_;  // that are cut, the code first
  bool quoted_ = false;
};

}  // namespace kestrin
