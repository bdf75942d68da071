#pragma once

/// @file
/// The values of a line.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "kestrin/text/trim.h"

namespace kestrin {

/// Which commas separate values.
enum class Commas : std::uint8_t {
  kEvery,
  kUnquoted,  ///< those between double quotes do not
};

/// Cuts a text into its values, one after the other. No value is empty, though it may be once it is cleaned.
class ValueCut {
 public:
  ValueCut() = default;
  ValueCut(std::string_view text, Commas commas) : text_(text), commas_(commas) {}

  /// The next value, as the text has it, or nothing at its end.
  [[nodiscard]] std::optional<std::string_view> Next();
  /// Cuts what follows the last value in another way.
  void GoOnWith(Commas commas) { commas_ = commas; }

  /// All values again, and those after one of them.
  [[nodiscard]] ValueCut FromStart() const { return {text_, commas_}; }
  [[nodiscard]] ValueCut After(std::string_view value) const {
    ValueCut cut = *this;
    cut.position_ = static_cast<std::size_t>(value.data() + value.size() - text_.data());
    return cut;
  }

  ///@{
  /// What is left after the last value, for those that can tell the next one at a glance and then step over
  /// it.
  [[nodiscard]] std::string_view Rest() const { return text_.substr(position_); }
  void Skip(std::size_t length) { position_ += length; }
  ///@}

 private:
  std::string_view text_;
  std::size_t position_ = 0;
  Commas commas_ = Commas::kEvery;
};

/// The values between the commas of a line, numbered from 1, as views into it: cut as far as they are asked
/// for. A value that the line does not have is empty. Kept from line to line, so that cutting takes no
/// memory.
class Values {
 public:
  /// Begins with another line.
  void Cut(std::string_view text, Commas commas) {
    cut_ = ValueCut(text, commas);
    values_.clear();
  }
  /// Leaves the values that have been asked for as they are, and cuts the others in another way.
  void GoOnWith(Commas commas) { cut_.GoOnWith(commas); }

  /// Whether the line has that many values.
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

  /// A value, as the line has it.
  [[nodiscard]] std::string_view Raw(std::size_t number) {
    return HasAtLeast(number) ? values_[number - 1] : std::string_view();
  }
  /// A value without blanks, and then quotes, at either end.
  [[nodiscard]] std::string_view operator[](std::size_t number) { return Cleaned(Raw(number)); }

  /// The values from a number on, whichever have been asked for.
  [[nodiscard]] ValueCut From(std::size_t number) {
    if (!HasAtLeast(number - 1) || values_.size() == number - 1) return cut_;
    return number == 1 ? cut_.FromStart() : cut_.After(values_[number - 2]);
  }

 private:
  ValueCut cut_;  // at the end of the last of the values
  std::vector<std::string_view> values_;
};

}  // namespace kestrin
