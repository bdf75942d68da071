#pragma once

/// @file
/// The fields of a line, cut as far as they are asked for.

#include <array>
#include <cstddef>
#include <string_view>

#include "kestrin/base/numbers.h"
#include "kestrin/framework/exceptions.h"

namespace kestrin {

/// The fields between the spaces of a line, numbered from 0. Spaces between apostrophes do not separate; the
/// apostrophes stay in the field.
///
/// Most records are read from left to right, and most fields are numbers: cutting no further than asked for,
/// a number is converted and found to its end at once. Fields are views into the line and valid as long as it
/// is. Asking for a field that the line does not have raises CInvalidArgException.
class LineFields {
 public:
  /// Further fields count, but cannot be asked for.
  static constexpr std::size_t kKept = 32;

  /// The fields are those of this line from now on. Quoted says whether it begins inside an apostrophe.
  void Begin(std::string_view line, bool quoted = false) {
    rest_ = line;
    quoted_ = quoted;
    count_ = 0;
  }
  /// Cuts what is left of the line.
  void Finish() {
    while (CutNext()) continue;
  }
  /// Whether an apostrophe is open after the last field that was cut.
  [[nodiscard]] bool IsQuoted() const { return quoted_; }

  /// How many fields the line has.
  [[nodiscard]] std::size_t Count() {
    Finish();
    return count_;
  }
  [[nodiscard]] bool HasAtLeast(std::size_t count) {
    while (count_ < count) {
      if (!CutNext()) return false;
    }
    return true;
  }
  [[nodiscard]] bool Has(std::size_t number) {
    while (count_ <= number) {
      if (!CutNext()) return false;
    }
    return number < kKept;
  }
  /// Whether the fields that were asked for are all that the line has.
  [[nodiscard]] bool AtEnd() {
    SkipSpaces();
    return rest_.empty();
  }

  /// A field as the line has it, apostrophes included.
  [[nodiscard]] std::string_view Text(std::size_t number) {
    if (!Has(number)) AfxThrowInvalidArgException();
    return kept_[number];
  }
  [[nodiscard]] int Int(std::size_t number) { return ToInt(Text(number)); }
  [[nodiscard]] double Double(std::size_t number) {
    double value = 0.0;
    if (!Read(number, value)) AfxThrowInvalidArgException();
    return value;
  }
  /// Overwrites the target with a field's number, if the line has the field; returns whether it has.
  bool Read(std::size_t number, double& target) {
    if (number == count_ && CutPlainNumber(target)) return true;
    if (!Has(number)) return false;
    target = ToDouble(kept_[number]);
    return true;
  }

 private:
  void SkipSpaces() {
    while (!quoted_ && !rest_.empty() && rest_.front() == ' ') rest_.remove_prefix(1);
  }
  void Take(std::size_t size) {
    if (count_ < kKept) kept_[count_] = rest_.substr(0, size);
    ++count_;
    rest_.remove_prefix(size);
  }
  bool CutNext() {
    SkipSpaces();
    if (rest_.empty()) return false;
    std::size_t size = 0;
    for (; size < rest_.size() && (rest_[size] != ' ' || quoted_); ++size) quoted_ ^= rest_[size] == '\'';
    Take(size);
    return true;
  }
  /// False, and nothing is cut, when the next field is not just a number of the usual form.
  bool CutPlainNumber(double& number) {
    SkipSpaces();
    const std::size_t size = quoted_ ? 0 : ReadPlainNumber(rest_, number);
    if (size == 0 || (size < rest_.size() && rest_[size] != ' ')) return false;
    Take(size);
    return true;
  }

  std::string_view rest_;  // of the line, not cut yet
  bool quoted_ = false;    // where the rest begins
  std::size_t count_ = 0;  // of the fields that are cut
  std::array<std::string_view, kKept> kept_;
};

}  // namespace kestrin
