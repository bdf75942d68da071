#pragma once

/// @file
/// The framework's 8-bit character string.

#include <compare>
#include <ostream>
#include <string>
#include <string_view>
#include <type_traits>

#include "kestrin/base/export.h"
#include "kestrin/framework/string_storage.h"

namespace kestrin {

/// A string of bytes with value semantics.
///
///     kestrin::CString name = "net 7";
///     name.Replace(" ", "_");       // "net_7"
///     name.MakeUpper();             // "NET_7"
///     int hyphen = name.Find('-');  // -1
///
/// Lengths and indexes count bytes and are 32-bit ints. Searches and comparisons are bytewise. Case changes
/// affect ASCII letters only. A string may contain any byte, including NUL; a C string ends at its first NUL.
class KESTRIN_EXPORT CString {
 public:
  CString() = default;
  ///@{
  /// Copies the bytes. Null counts as the empty string.
  CString(const char* text) : text_(text == nullptr ? std::string_view() : std::string_view(text)) {}
  CString(std::string_view text) : text_(text) {}
  CString(const std::string& text) : text_(text) {}
  ///@}

  ///@{
  /// Replaces the string, as the constructors do.
  CString& operator=(const char* text) { return *this = CString(text); }
  CString& operator=(std::string_view text) {
    text_.Assign(text);
    return *this;
  }
  CString& operator=(const std::string& text) { return *this = std::string_view(text); }
  ///@}

  /// The bytes. The view is valid until the string changes.
  [[nodiscard]] std::string_view View() const noexcept { return text_.View(); }
  ///@{
  /// The bytes as a C string. The pointer is valid until the string changes.
  [[nodiscard]] const char* GetString() const noexcept { return text_.View().data(); }
  operator const char*() const noexcept { return text_.View().data(); }
  ///@}

  /// The number of bytes, at most the largest int.
  [[nodiscard]] int GetLength() const noexcept;
  /// Whether the string has no bytes.
  [[nodiscard]] bool IsEmpty() const noexcept { return View().empty(); }
  /// Removes all bytes.
  void Empty() noexcept { text_ = StringStorage(); }

  ///@{
  /// The byte at the index; zero if the index is the length. Raises CInvalidArgException for an index below 0
  /// or above the length.
  [[nodiscard]] char GetAt(int index) const;
  [[nodiscard]] char operator[](int index) const { return GetAt(index); }
  ///@}

  ///@{
  /// Appends a character or a string, which may be this string. Null counts as the empty string.
  CString& operator+=(char c);
  CString& operator+=(const char* text);
  CString& operator+=(const CString& text);
  ///@}

  /// Compares bytewise. Returns zero if both are equal, a negative number if this string is less, else a
  /// positive one.
  [[nodiscard]] int Compare(const char* text) const noexcept;

  ///@{
  /// The index of the first occurrence at or after start; -1 if there is none.
  [[nodiscard]] int Find(char c, int start = 0) const noexcept;
  [[nodiscard]] int Find(const char* text, int start = 0) const noexcept;
  ///@}

  /// The index of the last occurrence; -1 if there is none.
  [[nodiscard]] int ReverseFind(char c) const noexcept;

  ///@{
  /// Returns a part of the string. An index or count outside the string is clamped to it.
  [[nodiscard]] CString Left(int count) const;
  [[nodiscard]] CString Right(int count) const;
  [[nodiscard]] CString Mid(int first) const;
  [[nodiscard]] CString Mid(int first, int count) const;
  ///@}

  /// Replaces every occurrence, from the left, and returns their number. Does nothing if the old text is
  /// empty.
  int Replace(const char* oldText, const char* newText);
  /// Removes every occurrence of a character and returns their number.
  int Remove(char c);
  /// Removes count bytes from the index on, or as many as there are, and returns the new length.
  int Delete(int index, int count = 1);

  ///@{
  /// Removes white space at one end: spaces, tabs, line feeds, vertical tabs, form feeds, carriage returns.
  CString& TrimLeft();
  CString& TrimRight();
  ///@}

  ///@{
  /// Removes all of the given characters at one end.
  CString& TrimLeft(const char* characters);
  CString& TrimRight(const char* characters);
  ///@}

  ///@{
  /// Changes the case of ASCII letters.
  CString& MakeUpper();
  CString& MakeLower();
  ///@}

  /// Returns the next run of characters that are not delimiters and sets start to the index after the
  /// delimiter that ends it. If there is no such run, returns the empty string and sets start to -1. Raises
  /// CInvalidArgException for a start below 0.
  [[nodiscard]] CString Tokenize(const char* delimiters, int& start) const;

  ///@{
  /// Formats like printf and replaces the string. `%s` also takes a CString, even this one; objects of other
  /// classes do not compile. The compiler checks the arguments against the format if none is a CString.
  KESTRIN_PRINTF(2, 3) void Format(const char* format, ...);
  template <class... Arguments>
  void Format(const char* format, Arguments... arguments) requires(!std::is_scalar_v<Arguments> || ...) {
    FormatUnchecked(format, Printable(arguments)...);
  }
  ///@}

  ///@{
  /// Lets you write to the string's memory.
  ///
  ///     char* buffer = name.GetBuffer(100);   // room for at least 100 bytes
  ///     std::strcpy(buffer, "NET_7");
  ///     name.ReleaseBuffer();                 // the length is now 5
  ///
  /// The buffer begins with the string's bytes and is valid until the string changes; earlier pointers and
  /// views become invalid. The length stays the same until ReleaseBuffer sets it. Length -1 means up to the
  /// first zero byte. Raises CInvalidArgException for any other length below 0 or beyond the buffer.
  [[nodiscard]] char* GetBuffer(int minimumLength);
  void ReleaseBuffer(int newLength = -1);
  ///@}

  ///@{
  /// Compares bytewise.
  friend bool operator==(const CString& a, const CString& b) noexcept { return a.View() == b.View(); }
  friend bool operator==(const CString& a, const char* b) noexcept { return a.Compare(b) == 0; }
  friend auto operator<=>(const CString& a, const CString& b) noexcept { return a.View() <=> b.View(); }
  friend auto operator<=>(const CString& a, const char* b) noexcept { return a.Compare(b) <=> 0; }
  ///@}

  ///@{
  /// Concatenates.
  friend CString operator+(CString a, const CString& b) { return a += b; }
  friend CString operator+(CString a, const char* b) { return a += b; }
  friend CString operator+(CString a, char b) { return a += b; }
  ///@}

  /// Writes all bytes.
  friend std::ostream& operator<<(std::ostream& out, const CString& text) { return out << text.View(); }

 private:
  template <class T>
  [[nodiscard]] static auto Printable(const T& argument) {
    if constexpr (std::is_base_of_v<CString, T>) {
      return argument.GetString();
    } else {
      static_assert(std::is_scalar_v<T>, "Format takes numbers, pointers and CString only");
      return argument;
    }
  }
  void FormatUnchecked(const char* format, ...);

  StringStorage text_;
};

}  // namespace kestrin
