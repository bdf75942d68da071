#pragma once

/// @file
/// Copying a set with other names.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "kestrin/session/import_report.h"
#include "tool/anonymise/digit_map.h"
#include "tool/anonymise/format_words.h"
#include "tool/anonymise/keyed_hash.h"
#include "tool/anonymise/texts.h"
#include "tool/anonymise/word_map.h"

namespace kestrin::tool {

/// The bytes of each file; empty if the set does not have it.
using SetBytes = std::array<std::string, kImportFileCount>;

/// A copy of a set with other words in place of all that do not belong to the formats.
///
/// The copy is made line by line and then compared with the original: where a line of it has a word of a
/// format that the original does not have there, the words that made it are chosen again.
class SetCopy {
 public:
  /// Raises std::runtime_error if there are too many words of a length.
  SetCopy(const SetBytes& original, const KeyedHash& hash);

  [[nodiscard]] const SetBytes& Bytes() const { return copy_; }
  [[nodiscard]] const WordMap& Words() const { return words_; }
  [[nodiscard]] const DigitMap& Digits() const { return digits_; }

 private:
  void AddWords(std::string_view line);
  void AddDigits(ImportFile file, std::string_view line, bool ofTexts);
  void CopyAll(const SetBytes& original);
  void CopyWords(std::string_view line, char* copy) const;
  void CopyDigits(ImportFile file, std::string_view line, char* copy);
  bool RejectNewWords(const SetBytes& original);
  bool RejectNewWords(std::string_view line, std::string_view copy);

  const KeyedHash& hash_;
  FormatWords format_;
  WordMap words_{format_};
  DigitMap digits_;
  SetBytes copy_;

  // Members to reuse their memory.
  std::vector<TextPlace> texts_;
  std::vector<Span> touched_;
  std::vector<Span> touchedInCopy_;
};

}  // namespace kestrin::tool
