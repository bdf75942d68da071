#pragma once

/// @file
/// The scanner of the strict reader: splits a Traces file into tokens.

#include <cstdint>
#include <string>
#include <string_view>

#include "kestrin/traces/strict/scanner_memory.h"
#include "kestrin/traces/strict/text_input.h"
#include "kestrin/traces/strict/token_text.h"
#include "kestrin/traces/strict/traces_grammar.h"

namespace kestrin {

/// Scans one file. Line ends are not tokens; the scanner counts them. If Next raises an exception, the
/// scanner can no longer be used.
class TracesScanner {
 public:
  explicit TracesScanner(ByteSource source);
  TracesScanner(const TracesScanner&) = delete;
  TracesScanner& operator=(const TracesScanner&) = delete;

  /// Resets the line count, and expects areas before the first fill again. Keeps the start condition and what
  /// was read ahead.
  void StartParse();

  /// Returns the number of the next token, 0 at the end of the file, and stores its value. A text is valid
  /// until the rule that it belongs to is complete. After the end, asks the source again.
  [[nodiscard]] int Next(TracesGrammar::value_type& value);

  /// The first 255 bytes of the last token's text, as in the file; empty at the end of the file.
  [[nodiscard]] std::string Text() const;
  /// The number of line ends read since StartParse.
  [[nodiscard]] std::int64_t LineEnds() const { return state_.lineEnds; }

  /// What the scanner's rules use.
  struct State {
    /// Keeps a token's text up to its first zero byte.
    [[nodiscard]] TokenText Keep(std::string_view matched) {
      return input.HasEscapes() ? KeepOriginal(matched) : texts.Keep(matched);
    }
    [[nodiscard]] TokenText KeepOriginal(std::string_view matched);

    TextInput input;
    TokenTexts texts;
    ScannerMemory memory;
    std::int64_t lineEnds = 0;
    bool fillSeen = false;  // an ARE after the first FIL belongs to a fill
    bool opened = false;    // this line has had an opening parenthesis
  };

 private:
  State state_;
  void* automaton_ = nullptr;
  bool ended_ = false;
};

}  // namespace kestrin
