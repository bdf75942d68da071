#pragma once

/// @file
/// The scanner of the strict reader: turns the characters of a Traces file into the tokens of its grammar.

#include <cstdint>
#include <string>
#include <string_view>

#include "kestrin/traces/strict/scanner_memory.h"
#include "kestrin/traces/strict/text_input.h"
#include "kestrin/traces/strict/token_text.h"
#include "kestrin/traces/strict/traces_grammar.h"

namespace kestrin {

/// Scans one file. Line ends are no tokens; the scanner counts them.
class TracesScanner {
 public:
  /// The scanner is of no more use once an exception has come out of Next.
  explicit TracesScanner(ByteSource source);
  TracesScanner(const TracesScanner&) = delete;
  TracesScanner& operator=(const TracesScanner&) = delete;

  /// Counts lines anew, and takes an ARE for one before the first FIL again. What was read ahead and the
  /// condition that the last token has left stay.
  void StartParse();

  /// The next token's number, 0 at the end of the file; its value is put into the place given. A text stays
  /// while the rule that it belongs to is read. After the end it goes on with what the source gives then.
  [[nodiscard]] int Next(TracesGrammar::value_type& value);

  /// The text of the token read last as the file has it, up to 255 bytes; empty at the end of the file.
  [[nodiscard]] std::string Text() const;
  /// How many line ends this parse has read so far.
  [[nodiscard]] std::int64_t LineEnds() const { return state_.lineEnds; }

  /// What the rules read and write.
  struct State {
    /// A token's text up to its first zero byte.
    [[nodiscard]] TokenText Keep(std::string_view matched) {
      return input.HasEscapes() ? KeepOriginal(matched) : texts.Keep(matched);
    }
    [[nodiscard]] TokenText KeepOriginal(std::string_view matched);

    TextInput input;
    TokenTexts texts;
    ScannerMemory memory;
    std::int64_t lineEnds = 0;
    bool fillSeen = false;  // an ARE behind the first FIL belongs to a fill
    bool opened = false;    // an opening parenthesis was seen on this line
  };

 private:
  State state_;
  void* automaton_ = nullptr;
  bool ended_ = false;
};

}  // namespace kestrin
