#pragma once

/// @file
/// What became of a line of an import file.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kestrin {

/// Why a line was skipped.
enum class SkipCode : std::uint8_t {
  kUnknownRecord,
};

/// A skip code as users see it.
struct SkipCodeText {
  std::string_view name;
  std::string_view text;
};

/// The catalogue of skip codes, a row each in the order of SkipCode.
inline constexpr std::array kSkipCodes{
    SkipCodeText{"unknown-record", "the line holds no record that is read from this file"},
};

[[nodiscard]] constexpr const SkipCodeText& TextOf(SkipCode code) {
  return kSkipCodes[static_cast<std::size_t>(code)];
}

/// The answer of a reader to one line: imported, ignored (it carries nothing: blank, a comment, outside what
/// was asked for) or skipped for a reason.
class LineOutcome {
 public:
  enum class Kind : std::uint8_t { kImported, kIgnored, kSkipped };

  [[nodiscard]] static constexpr LineOutcome Imported() { return {Kind::kImported, SkipCode{}}; }
  [[nodiscard]] static constexpr LineOutcome Ignored() { return {Kind::kIgnored, SkipCode{}}; }
  [[nodiscard]] static constexpr LineOutcome Skipped(SkipCode code) { return {Kind::kSkipped, code}; }

  [[nodiscard]] constexpr Kind GetKind() const { return kind_; }
  /// Meaningful for a skipped line only.
  [[nodiscard]] constexpr SkipCode Code() const { return code_; }

  friend constexpr bool operator==(LineOutcome, LineOutcome) = default;

 private:
  constexpr LineOutcome(Kind kind, SkipCode code) : kind_(kind), code_(code) {}

  Kind kind_;
  SkipCode code_;
};

}  // namespace kestrin
