#pragma once

/// @file
/// The words that readers compare texts with. A program that changes the names in a file without changing
/// what readers make of it keeps these words, and makes no new ones.

#include <cstdint>
#include <functional>
#include <string_view>

namespace kestrin {

/// Where a reader finds a word.
enum class WordPlace : std::uint8_t {
  kWhole,        ///< a text of its own: N_PIN
  kInside,       ///< part of a text; other letters may follow or precede it: "YES" in "YESNO"
  kAfterHash,    ///< after "#" and blanks; other letters may follow
  kCapitals,     ///< capitals, also if other letters than capitals precede or follow them
  kCapitalsMore  ///< the same, and more capitals may follow
};

struct FormatWord {
  std::string_view text = {};
  WordPlace place = WordPlace::kWhole;
  bool ignoresCase = false;
};

using FormatWordVisitor = std::function<void(const FormatWord& word)>;

/// Passes the names of a table's rows to the visitor.
template <class Rows>
void ForEachRowName(const Rows& rows, const FormatWordVisitor& visit, FormatWord word = {}) {
  for (const auto& row : rows) {
    word.text = row.name;
    visit(word);
  }
}

}  // namespace kestrin
