#pragma once

/// @file
/// The outcome of reading a line of an export file.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "kestrin/base/export.h"

namespace kestrin {

struct RecordRule;

/// Why a line was skipped.
enum class SkipCode : std::uint8_t {
  kUnknownRecord,
  kUnendedKeyword,
  kWrongValueCount,
  kNoOwner,
  kOpenQuote,
  kUnknownCommand,
  kUnknownAttribute,
  kMissingValue,
  kCount,  // the number of codes
};

/// The names of a skip code.
struct SkipCodeText {
  std::string_view name;  ///< short and stable, for scripts: "unknown-record"
  std::string_view text;  ///< the reason in a sentence
};

/// The catalogue of skip codes, in the order of SkipCode.
inline constexpr std::array kSkipCodes{
    SkipCodeText{"unknown-record", "unknown record"},
    SkipCodeText{"unended-keyword", "no blank follows the keyword"},
    SkipCodeText{"wrong-value-count", "wrong number of values"},
    SkipCodeText{"no-owner", "the record that the line belongs to is missing"},
    SkipCodeText{"open-quote", "the line begins inside an apostrophe from an earlier line"},
    SkipCodeText{"unknown-command", "unknown command"},
    SkipCodeText{"unknown-attribute", "unknown attribute"},
    SkipCodeText{"missing-value", "a required value is missing"},
};
static_assert(kSkipCodes.size() == static_cast<std::size_t>(SkipCode::kCount));

/// The catalogue's row of a code.
[[nodiscard]] constexpr const SkipCodeText& TextOf(SkipCode code) {
  return kSkipCodes[static_cast<std::size_t>(code)];
}

/// What a reader made of a line. The line was
/// - imported,
/// - ignored, because it has nothing to import: it is blank, a comment, or outside the selected board, or
/// - skipped, for the reason that Code and Reason return.
///
/// Small enough to be returned in registers.
class LineOutcome {
 public:
  /// What the reader did with the line.
  enum class Kind : std::uint8_t { kImported, kIgnored, kSkipped };

  ///@{
  /// The outcome of a line that was not skipped.
  [[nodiscard]] static constexpr LineOutcome Imported() { return {Kind::kImported, SkipCode{}, -1, nullptr}; }
  [[nodiscard]] static constexpr LineOutcome Ignored() { return {Kind::kIgnored, SkipCode{}, -1, nullptr}; }
  ///@}

  /// The line was skipped for the code's reason.
  [[nodiscard]] static constexpr LineOutcome Skipped(SkipCode code) {
    return {Kind::kSkipped, code, -1, nullptr};
  }
  ///@{
  /// The line was skipped because it breaks a rule. The reason is made from the rule, which must be a
  /// constant.
  [[nodiscard]] static constexpr LineOutcome Skipped(SkipCode code, const RecordRule& rule) {
    return {Kind::kSkipped, code, -1, &rule};
  }
  [[nodiscard]] static constexpr LineOutcome NoOwner(const RecordRule& rule) {
    return Skipped(SkipCode::kNoOwner, rule);
  }
  [[nodiscard]] static constexpr LineOutcome WrongValueCount(const RecordRule& rule, std::size_t valueCount) {
    return {Kind::kSkipped, SkipCode::kWrongValueCount,
            static_cast<std::int32_t>(std::min<std::size_t>(valueCount, INT32_MAX)), &rule};
  }
  ///@}

  /// The line was skipped because it begins inside an apostrophe that an earlier line left open. Lines are
  /// numbered from 1.
  [[nodiscard]] static constexpr LineOutcome OpenQuote(std::int64_t openingLine) {
    return {Kind::kSkipped, SkipCode::kOpenQuote,
            openingLine <= INT32_MAX ? static_cast<std::int32_t>(openingLine) : -1, nullptr};
  }

  /// Whether the line was imported, ignored or skipped.
  [[nodiscard]] constexpr Kind GetKind() const { return kind_; }
  /// The code of the reason. Meaningful for a skipped line only.
  [[nodiscard]] constexpr SkipCode Code() const { return code_; }
  /// Why the line was skipped: "N_PIN needs at least 5 values, 3 found".
  [[nodiscard]] std::string Reason() const;

  friend constexpr bool operator==(LineOutcome, LineOutcome) = default;

 private:
  constexpr LineOutcome(Kind kind, SkipCode code, std::int32_t number, const RecordRule* rule)
      : kind_(kind), code_(code), number_(number), rule_(rule) {}

  Kind kind_;
  SkipCode code_;
  std::int32_t number_;     // the number of values, or of the line that opened the quote; -1 for neither
  const RecordRule* rule_;  // null if the reason depends on the code only
};

}  // namespace kestrin
