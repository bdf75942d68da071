#pragma once

/// @file
/// Splitting a string into tokens.

#include <bitset>

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/framework/string_array.h"

namespace kestrin {

/// Splits a string at the characters of a delimiter set.
///
///     CTokenizer tokens("a, b", ", ");
///     for (CString token; tokens.Next(token);) Use(token);  // "a", then "b"
///
/// Adjacent delimiters separate once: no token is empty. Operations that fill an array append to it.
class KESTRIN_EXPORT CTokenizer {
 public:
  CTokenizer() = default;
  /// Starts at the beginning of the string. Keeps copies of both arguments.
  CTokenizer(const CString& string, const CString& delimiters);
  CTokenizer(const CTokenizer&) = default;  // moving copies
  CTokenizer& operator=(const CTokenizer&) = default;
  ~CTokenizer() = default;

  /// Adds characters to the delimiters. The previous ones remain.
  void SetDelimiters(const CString& delimiters);

  /// Gets the next token and moves the position to the delimiter that ended it. If there is no further token,
  /// returns false and sets the argument to an empty string.
  bool Next(CString& token);
  /// The rest of the string from the next token on, with its delimiters. Does not move the position.
  [[nodiscard]] CString Tail() const;

  /// Appends all remaining tokens, then moves the position back to the beginning of the string.
  void GetTokenArray(CStringArray& tokens);
  /// Replaces the string and the delimiters, then appends all tokens.
  void GetTokenArray(CStringArray& tokens, const CString& string, const CString& delimiters);
  /// Replaces the string and the delimiters, then appends the tokens between the occurrences of a delimiter
  /// of several characters. The exception is a string that contains all of the characters "!@#$%^": its
  /// delimiters are removed and the rest becomes one token.
  void GetTokenArrayByFullString(CStringArray& tokens, const CString& string, const CString& fullDelimiter);

  /// Appends the words between the spaces of a string: `A "B C"` has the entries `A` and `B C`. A phrase in
  /// double quotes is one entry, without its quotes; a phrase that is not closed is dropped. Does not use the
  /// tokenizer's string, delimiters or position.
  void GetStringArrayFromStringToken(CString& string, CStringArray& entries);

  CString m_sString;              ///< the string that is split
  std::bitset<256> m_Delimiters;  ///< the delimiters, by unsigned character code
  int m_nCurPos = 0;              ///< the index of the next character to look at

 private:
  void Load(const CString& string, const CString& delimiters);
};

}  // namespace kestrin
