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
    SkipCodeText{"unknown-record", "the line holds no record that is read from this file"},
    SkipCodeText{"unended-keyword", "no blank follows the keyword, so that the line is no record"},
    SkipCodeText{"wrong-value-count", "the record does not have the number of values that its kind takes"},
    SkipCodeText{"no-owner", "the record that this one belongs to does not stand before it"},
    SkipCodeText{"open-quote",
                 "a line before this one left an apostrophe open, so that its blanks do not separate"},
    SkipCodeText{"unknown-command", "the command is none that is read from this file"},
    SkipCodeText{"unknown-attribute", "the attribute is none that is read from this file"},
    SkipCodeText{"missing-value", "a value that the record cannot do without is missing"},
};
static_assert(kSkipCodes.size() == static_cast<std::size_t>(SkipCode::kCount));

/// The row of a code in the catalogue.
[[nodiscard]] constexpr const SkipCodeText& TextOf(SkipCode code) {
  return kSkipCodes[static_cast<std::size_t>(code)];
}

/// What a kind of record asks of its lines, as users read it: "N_PIN" takes "at least 5 values", or needs "a
/// NET before it". Stands as a constant beside the reader's table.
struct RecordRule {
  std::string_view record;  ///< the name of the record
  std::string_view demand;  ///< what it takes or needs
};

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
  /// The line breaks this rule, which must be a constant.
  [[nodiscard]] static constexpr LineOutcome Skipped(SkipCode code, const RecordRule& rule) {
    return {Kind::kSkipped, code, -1, &rule};
  }
  /// The line has this many values, which is not what the rule asks for.
  [[nodiscard]] static constexpr LineOutcome WrongValueCount(const RecordRule& rule, std::size_t valueCount) {
    return {Kind::kSkipped, SkipCode::kWrongValueCount,
            static_cast<std::int32_t>(std::min<std::size_t>(valueCount, INT32_MAX)), &rule};
  }

  /// The line begins inside an apostrophe that a line before it, counted from 1, left open.
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
