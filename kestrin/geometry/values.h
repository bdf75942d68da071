#pragma once

/// @file
/// Cutting a line into values.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "kestrin/text/trim.h"

namespace kestrin {

/// The commas that separate values.
enum class Commas : std::uint8_t {
  kEvery,
  kUnquoted,  ///< commas outside double quotes
};

/// Cuts a text into values, one at a time. No value is empty, but its cleaned text may be.
class ValueCut {
 public:
  ValueCut() = default;
  ValueCut(std::string_view text, Commas commas) : text_(text), commas_(commas) {}

  /// The next value as it is in the text, or nothing at the end.
  [[nodiscard]] std::optional<std::string_view> Next();
  /// Changes the commas that separate the values after the last one.
  void ContinueWith(Commas commas) { commas_ = commas; }

  /// A cut that starts at the beginning, or after a given value.
  [[nodiscard]] ValueCut FromStart() const { return {text_, commas_}; }
  [[nodiscard]] ValueCut After(std::string_view value) const {
    ValueCut cut = *this;
    cut.position_ = static_cast<std::size_t>(value.data() + value.size() - text_.data());
    return cut;
  }

  ///@{
  /// The text after the last value. A caller who recognizes the next value there can skip it instead of
  /// calling Next.
  [[nodiscard]] std::string_view Rest() const { return text_.substr(position_); }
  void Skip(std::size_t length) { position_ += length; }
  ///@}

 private:
  std::string_view text_;
  std::size_t position_ = 0;
  Commas commas_ = Commas::kEvery;
};

/// The values between the commas of a line, numbered from 1.
///
///     Values values;
///     values.Cut("A, \"B,C\", 2", Commas::kUnquoted);
///     values[2];       // B,C
///     values.Raw(2);   //  "B,C" with its quotes and the blank before it
///     values[4];       // empty: the line has no such value
///
/// The values are views into the line, which is cut only as far as it is read. Reuse the object for the next
/// line to reuse its memory.
class Values {
 public:
  /// Starts a new line.
  void Cut(std::string_view text, Commas commas) {
    cut_ = ValueCut(text, commas);
    values_.clear();
  }
  /// Changes the commas that separate the values that have not been cut yet.
  void ContinueWith(Commas commas) { cut_.ContinueWith(commas); }

  /// Whether the line has at least count values.
  [[nodiscard]] bool HasAtLeast(std::size_t count) {
    while (values_.size() < count) {
      const auto value = cut_.Next();
      if (!value) return false;
      values_.push_back(*value);
    }
    return true;
  }
  [[nodiscard]] std::size_t Count() {
    while (HasAtLeast(values_.size() + 1)) continue;
    return values_.size();
  }

  /// A value as it is in the line.
  [[nodiscard]] std::string_view Raw(std::size_t number) {
    return HasAtLeast(number) ? values_[number - 1] : std::string_view();
  }
  /// A value without white space and then without double quotes at either end.
  [[nodiscard]] std::string_view operator[](std::size_t number) { return Cleaned(Raw(number)); }

  /// A cut that starts at a value, whether or not it has been cut yet.
  [[nodiscard]] ValueCut From(std::size_t number) {
    if (!HasAtLeast(number - 1) || values_.size() == number - 1) return cut_;
    return number == 1 ? cut_.FromStart() : cut_.After(values_[number - 2]);
  }

 private:
  ValueCut cut_;  // after the last value in values_
  std::vector<std::string_view> values_;
};

}  // namespace kestrin
