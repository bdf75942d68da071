#pragma once

/// @file
/// What became of a line of an import file.

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
  kCount,  // of the codes
};

/// A skip code as users see it.
struct SkipCodeText {
  std::string_view name;  ///< short and stable, for scripts: "unknown-record"
  std::string_view text;  ///< the reason in a sentence
};

/// The catalogue of skip codes, a row each in the order of SkipCode.
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

/// The row of a code in the catalogue.
[[nodiscard]] constexpr const SkipCodeText& TextOf(SkipCode code) {
  return kSkipCodes[static_cast<std::size_t>(code)];
}

/// The answer of a reader to one line: imported, ignored (it carries nothing: blank, a comment, outside what
/// was asked for) or skipped for a reason. Small enough to be returned in registers.
class LineOutcome {
 public:
  /// What became of the line.
  enum class Kind : std::uint8_t { kImported, kIgnored, kSkipped };

  ///@{
  /// The outcome of a line that was not skipped.
  [[nodiscard]] static constexpr LineOutcome Imported() { return {Kind::kImported, SkipCode{}, -1, nullptr}; }
  [[nodiscard]] static constexpr LineOutcome Ignored() { return {Kind::kIgnored, SkipCode{}, -1, nullptr}; }
  ///@}

  /// The line is skipped for the reason that the code says.
  [[nodiscard]] static constexpr LineOutcome Skipped(SkipCode code) {
    return {Kind::kSkipped, code, -1, nullptr};
  }
  ///@{
  /// The line breaks this rule, which must be a constant. The reason is made from the rule.
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

  /// The line begins inside an apostrophe that an earlier line, counted from 1, left open.
  [[nodiscard]] static constexpr LineOutcome OpenQuote(std::int64_t openingLine) {
    return {Kind::kSkipped, SkipCode::kOpenQuote,
            openingLine <= INT32_MAX ? static_cast<std::int32_t>(openingLine) : -1, nullptr};
  }

  /// Whether the line was imported, ignored or skipped.
  [[nodiscard]] constexpr Kind GetKind() const { return kind_; }
  /// Meaningful for a skipped line only.
  [[nodiscard]] constexpr SkipCode Code() const { return code_; }
  /// Why this very line was skipped, in one sentence.
  [[nodiscard]] std::string Reason() const;

  friend constexpr bool operator==(LineOutcome, LineOutcome) = default;

 private:
  constexpr LineOutcome(Kind kind, SkipCode code, std::int32_t number, const RecordRule* rule)
      : kind_(kind), code_(code), number_(number), rule_(rule) {}

  Kind kind_;
  SkipCode code_;
  std::int32_t number_;     // how many values the line has, or which line opened the quote; -1 for neither
  const RecordRule* rule_;  // null when the code says it all
};

}  // namespace kestrin
