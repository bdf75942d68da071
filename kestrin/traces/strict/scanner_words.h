#pragma once

/// @file
/// The words that the rules of traces_scanner.l look for, in addition to those of TracesReader.

#include "kestrin/text/format_words.h"

namespace kestrin {

inline void ForEachScannerWord(const FormatWordVisitor& visit) {
  static constexpr FormatWord kWords[] = {
      {"# Application", WordPlace::kInside}, {"BOARD", WordPlace::kAfterHash},
      {"date", WordPlace::kAfterHash},       {"STI", WordPlace::kAfterHash},
      {"PRP", WordPlace::kCapitalsMore},
  };
  for (const FormatWord& word : kWords) visit(word);
}

}  // namespace kestrin
