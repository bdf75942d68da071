#pragma once

/// @file
/// Cutting a string into tokens.

#include <bitset>

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/framework/string_array.h"

namespace kestrin {

/// Cuts a string at the characters of a delimiter set. Delimiters next to each other make no empty token. The
/// operations that fill an array append to it.
class KESTRIN_EXPORT CTokenizer {
 public:
  CTokenizer() = default;
  /// Cuts copies of both, from the start of the string on.
  CTokenizer(const CString& string, const CString& delimiters);
  CTokenizer(const CTokenizer&) = default;  // to move a tokenizer is to copy it
  CTokenizer& operator=(const CTokenizer&) = default;
  ~CTokenizer() = default;

  /// Adds characters to the delimiters; those set before stay.
  void SetDelimiters(const CString& delimiters);

  /// The next token; false, and an empty token, when none is left. The position then stands on the delimiter
  /// that ended the token.
  bool Next(CString& token);
  /// All that is left from the next token on, delimiters included; does not move the position.
  [[nodiscard]] CString Tail() const;

  /// Every token that is left; then moves the position back to the start.
  void GetTokenArray(CStringArray& tokens);
  /// Takes a new string and new delimiters first.
  void GetTokenArray(CStringArray& tokens, const CString& string, const CString& delimiters);
  /// Cuts at every occurrence of a delimiter of several characters. A string that holds all of "!@#$%^" is
  /// not cut: its delimiters are removed and the rest is one token.
  void GetTokenArrayByFullString(CStringArray& tokens, const CString& string, const CString& fullDelimiter);

  /// Cuts the string at spaces, where a phrase in double quotes is one entry without its quotes. A phrase
  /// that is never closed is dropped. Uses nothing of the tokenizer.
  void GetStringArrayFromStringToken(CString& string, CStringArray& entries);

  CString m_sString;              ///< what is cut
  std::bitset<256> m_Delimiters;  ///< by unsigned character code
  int m_nCurPos = 0;              ///< the next character to look at

 private:
  void Load(const CString& string, const CString& delimiters);
};

}  // namespace kestrin
