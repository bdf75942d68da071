#pragma once

/// @file
/// The fields of a line, cut on demand.

#include <array>
#include <cstddef>
#include <string_view>

#include "kestrin/base/numbers.h"
#include "kestrin/framework/exceptions.h"

namespace kestrin {

/// The fields between the spaces of a line, numbered from 0.
///
///     LineFields fields;
///     fields.Begin("SEG 1.5 2 'TOP LAYER'");
///     fields.Double(1);   // 1.5
///     fields.Text(3);     // 'TOP LAYER', with its apostrophes
///     fields.Text(4);     // raises CInvalidArgException: the line has no such field
///
/// A space between apostrophes does not separate. Fields are views into the line.
///
/// The line is cut only as far as it is read. Most records are read from left to right and most fields are
/// numbers, so a number is usually converted and cut in a single pass.
class LineFields {
 public:
  /// The number of fields that can be read. Further fields are only counted.
  static constexpr std::size_t kKept = 32;

  /// Starts a new line. Quoted says whether it begins inside apostrophes.
  void Begin(std::string_view line, bool quoted = false) {
    rest_ = line;
    quoted_ = quoted;
    count_ = 0;
  }
  /// Cuts the rest of the line.
  void Finish() {
    while (CutNext()) continue;
  }
  /// Whether an apostrophe is open where the cutting stopped.
  [[nodiscard]] bool IsQuoted() const { return quoted_; }

  /// The number of fields of the line.
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
  /// Whether no fields are left to cut.
  [[nodiscard]] bool AtEnd() {
    SkipSpaces();
    return rest_.empty();
  }

  /// A field as it is in the line, with its apostrophes.
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
  /// Sets the target to the field's number if the line has the field. Returns whether it has.
  bool Read(std::size_t number, double& target) {
    if (number == count_ && CutPlainNumber(target)) return true;
    if (!Has(number)) return false;
    target = ToDouble(kept_[number]);
    return true;
  }
  /// Cuts a field if it is the next one and consists of digits (see LengthOfDigits). Returns whether it did.
  [[nodiscard]] bool CutDigits(std::size_t number, bool mayHavePoint) {
    if (number != count_ || quoted_) return false;
    SkipSpaces();
    const std::size_t size = LengthOfDigits(rest_, mayHavePoint);
    if (size == 0 || (size < rest_.size() && rest_[size] != ' ')) return false;
    Take(size);
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
  /// Returns false and cuts nothing if the next field is anything but a plain number.
  bool CutPlainNumber(double& number) {
    SkipSpaces();
    const std::size_t size = quoted_ ? 0 : ReadPlainNumber(rest_, number);
    if (size == 0 || (size < rest_.size() && rest_[size] != ' ')) return false;
    Take(size);
    return true;
  }

  std::string_view rest_;  // the part of the line that is not cut yet
  bool quoted_ = false;    // whether the rest begins inside apostrophes
  std::size_t count_ = 0;  // of fields cut so far
  std::array<std::string_view, kKept> kept_;
};

}  // namespace kestrin
