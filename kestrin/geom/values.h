#pragma once

/// @file
/// The values of a line.

#include <cstddef>
#include <string_view>
#include <vector>

#include "kestrin/text/trim.h"

namespace kestrin {

/// The values between the commas of a line, numbered from 1, as views into it. No value is empty, though it
/// may be once it is cleaned; a value that the line does not have is. Kept from line to line, so that cutting
/// takes no memory.
class Values {
 public:
  /// Every comma separates, also between quotes.
  void CutAtCommas(std::string_view text);
  /// Commas between double quotes do not separate.
  void CutAtUnquotedCommas(std::string_view text);

  [[nodiscard]] std::size_t Count() const { return values_.size(); }
  [[nodiscard]] bool Has(std::size_t number) const { return number >= 1 && number <= values_.size(); }

  /// A value as it stands in the line.
  [[nodiscard]] std::string_view Raw(std::size_t number) const {
    return Has(number) ? values_[number - 1] : std::string_view();
  }
  /// A value without blanks, and then quotes, at either end.
  [[nodiscard]] std::string_view operator[](std::size_t number) const { return Cleaned(Raw(number)); }

 private:
  std::vector<std::string_view> values_;
};

}  // namespace kestrin
