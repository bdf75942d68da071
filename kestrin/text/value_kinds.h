#pragma once

/// @file
/// Which values of a record are read as numbers. The rows of the readers' tables say it.

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

#include "kestrin/base/numbers.h"
#include "kestrin/text/line_fields.h"
#include "kestrin/text/trim.h"
#include "kestrin/text/value_count.h"

namespace kestrin {

/// How the text of a number is read.
enum class NumberKind : std::uint8_t {
  kDecimal,    ///< as a double
  kWhole,      ///< as an int: the digits at its beginning
  kTruncated,  ///< as a double, of which the whole part is kept
};

/// Whether the text is a number from its beginning to its end, so that nothing of it is lost when it is read.
/// White space around it does not count, nor does a fraction of zeros in a whole number.
[[nodiscard]] bool IsWhollyNumber(std::string_view text, NumberKind kind);

/// Called for each value of a line that is read as a number but is not wholly one: with its position, counted
/// from 1, and its text.
using NumberAction = std::function<void(int position, std::string_view text, NumberKind kind)>;

/// Calls the action unless the text is wholly a number, or empty.
inline void CheckNumber(int position, std::string_view text, NumberKind kind, const NumberAction& action) {
  // Nearly all numbers are plain digits.
  if (text.empty() || LengthOfDigits(text, kind == NumberKind::kDecimal) == text.size()) return;
  if (!IsWhollyNumber(text, kind)) action(position, text, kind);
}

/// The values of a line: its fields from a first one on.
class ValuesFrom {
 public:
  ValuesFrom(LineFields& fields, std::size_t first) : fields_(fields), first_(first) {}
  [[nodiscard]] bool HasAtLeast(std::size_t count) { return fields_.HasAtLeast(first_ + count); }
  [[nodiscard]] std::size_t Count() { return fields_.Count() - first_; }
  [[nodiscard]] std::string_view Text(std::size_t position) { return fields_.Text(first_ + position - 1); }
  /// Cuts a value that is not cut yet if it is plainly a number.
  [[nodiscard]] bool CutPlainNumber(std::size_t position, NumberKind kind) {
    return fields_.CutDigits(first_ + position - 1, kind == NumberKind::kDecimal);
  }

 private:
  LineFields& fields_;
  std::size_t first_;
};

/// How the values of a record are read: a letter for each, as in "..di" for two others, a decimal number and
/// a whole number. The letters are
/// - d for a decimal number, r for one from whose text no quotes are removed,
/// - i for a whole number, t for one that is truncated,
/// - a point for anything else, such as a text or a value that is not kept or read in several ways.
///
/// Values after the last letter are no numbers. Where it depends on the number of values, there are several
/// such forms.
class ValueKinds {
 public:
  struct Form {
    ValueCount count;  ///< the lines that are read so
    std::string_view letters;
  };

  constexpr ValueKinds() = default;
  constexpr ValueKinds(const char* letters) : forms_{Form{Any(), letters}} {}
  constexpr ValueKinds(Form first, Form second = {}, Form third = {}) : forms_{first, second, third} {}

  /// Whether no value is read as a number.
  [[nodiscard]] constexpr bool AreNone() const { return forms_[0].letters.empty(); }

  /// Calls the action for each number that is not wholly one. The line is cut into values: HasAtLeast(count),
  /// Count(), and Text of a position; for r, also Raw.
  template <class Line>
  void ForEachMisreadNumber(Line line, const NumberAction& action) const {
    for (const Form& form : forms_) {
      if (form.letters.empty() || !form.count.AcceptsValuesOf(line)) continue;
      for (std::size_t i = 0; i < form.letters.size(); ++i) {
        const char letter = form.letters[i];
        if constexpr (requires { line.CutPlainNumber(i, KindOf(letter)); }) {
          if (letter != '.' && line.CutPlainNumber(i + 1, KindOf(letter))) continue;
        }
        if (!line.HasAtLeast(i + 1)) return;
        if (letter != '.') Check(letter, line, i + 1, action);
      }
      return;
    }
  }

 private:
  template <class Line>
  static void Check(char letter, Line& line, std::size_t position, const NumberAction& action) {
    std::string_view text = line.Text(position);
    if (text.empty()) return;
    if constexpr (requires { line.Raw(position); }) {
      if (letter == 'r') text = Trimmed(line.Raw(position));
    }
    CheckNumber(static_cast<int>(position), text, KindOf(letter), action);
  }
  [[nodiscard]] static constexpr NumberKind KindOf(char letter) {
    return letter == 'i' ? NumberKind::kWhole : letter == 't' ? NumberKind::kTruncated : NumberKind::kDecimal;
  }

  std::array<Form, 3> forms_;
};

}  // namespace kestrin
