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

/// A string of bytes with value semantics. Lengths and indexes are counted in bytes, as 32-bit ints; searches
/// and comparisons are byte-wise, and case changes touch ASCII letters only. Any byte may occur, NUL
/// included; operations that take or give a C string see it up to the first NUL.
class KESTRIN_EXPORT CString {
 public:
  CString() = default;
  ///@{
  /// A copy of the bytes; null is taken as the empty string.
  CString(const char* text) : text_(text == nullptr ? std::string_view() : std::string_view(text)) {}
  CString(std::string_view text) : text_(text) {}
  CString(const std::string& text) : text_(text) {}
  ///@}

  ///@{
  /// Takes over the bytes, as the constructors do.
  CString& operator=(const char* text) { return *this = CString(text); }
  CString& operator=(std::string_view text) {
    text_.Assign(text);
    return *this;
  }
  CString& operator=(const std::string& text) { return *this = std::string_view(text); }
  ///@}

  /// The bytes, valid until the string changes.
  [[nodiscard]] std::string_view View() const noexcept { return text_.View(); }
  ///@{
  /// The bytes as a C string, valid until the string changes.
  [[nodiscard]] const char* GetString() const noexcept { return text_.View().data(); }
  operator const char*() const noexcept { return text_.View().data(); }
  ///@}

  /// The number of bytes.
  [[nodiscard]] int GetLength() const noexcept;
  /// Whether there are none.
  [[nodiscard]] bool IsEmpty() const noexcept { return View().empty(); }
  /// Removes all bytes.
  void Empty() noexcept { text_ = StringStorage(); }

  ///@{
  /// The byte at an index; the index of the end gives a zero byte. Raises CInvalidArgException for an index
  /// below 0 or beyond the end.
  [[nodiscard]] char GetAt(int index) const;
  [[nodiscard]] char operator[](int index) const { return GetAt(index); }
  ///@}

  ///@{
  /// Appends, also a string to itself; null is taken as the empty string.
  CString& operator+=(char c);
  CString& operator+=(const char* text);
  CString& operator+=(const CString& text);
  ///@}

  /// Zero when equal, else negative or positive in byte order.
  [[nodiscard]] int Compare(const char* text) const noexcept;

  ///@{
  /// The index of the first occurrence at or after the start, or -1.
  [[nodiscard]] int Find(char c, int start = 0) const noexcept;
  [[nodiscard]] int Find(const char* text, int start = 0) const noexcept;
  ///@}

  /// The index of the last occurrence, or -1.
  [[nodiscard]] int ReverseFind(char c) const noexcept;

  ///@{
  /// Parts of the string; an index or count outside it is moved to its nearest end.
  [[nodiscard]] CString Left(int count) const;
  [[nodiscard]] CString Right(int count) const;
  [[nodiscard]] CString Mid(int first) const;
  [[nodiscard]] CString Mid(int first, int count) const;
  ///@}

  /// Replaces every occurrence from the left; returns their number. Empty old text changes nothing.
  int Replace(const char* oldText, const char* newText);
  /// Removes every occurrence; returns their number.
  int Remove(char c);
  /// Removes bytes, as far as the string has them; returns the new length.
  int Delete(int index, int count = 1);

  ///@{
  /// Remove white space (space, tab, line feed, vertical tab, form feed, carriage return) at one end.
  CString& TrimLeft();
  CString& TrimRight();
  ///@}

  ///@{
  /// Remove the characters of a set at one end.
  CString& TrimLeft(const char* characters);
  CString& TrimRight(const char* characters);
  ///@}

  ///@{
  /// Changes the case of ASCII letters.
  CString& MakeUpper();
  CString& MakeLower();
  ///@}

  /// The next run of characters that are not delimiters; moves start just past the delimiter behind it. At
  /// the end: the empty string, and start becomes -1. Raises CInvalidArgException for a start below 0.
  [[nodiscard]] CString Tokenize(const char* delimiters, int& start) const;

  ///@{
  /// Formats as printf does. `%s` also takes a CString, even the one that is formatted; objects of other
  /// classes do not compile. Without a CString among them, the compiler checks the arguments against the
  /// format.
  [[gnu::format(printf, 2, 3)]] void Format(const char* format, ...);
  template <class... Arguments>
  void Format(const char* format, Arguments... arguments) requires(!std::is_scalar_v<Arguments> || ...) {
    FormatUnchecked(format, Printable(arguments)...);
  }
  ///@}

  ///@{
  /// Writable room for at least that many bytes, valid until the string changes; it starts with the string's
  /// bytes, and pointers taken before are no longer valid. The length stays the same until ReleaseBuffer sets
  /// it; -1 means up to the first zero byte. ReleaseBuffer raises CInvalidArgException for a length below 0
  /// or beyond the room.
  [[nodiscard]] char* GetBuffer(int minimumLength);
  void ReleaseBuffer(int newLength = -1);
  ///@}

  ///@{
  /// Compares in byte order.
  friend bool operator==(const CString& a, const CString& b) noexcept { return a.View() == b.View(); }
  friend bool operator==(const CString& a, const char* b) noexcept { return a.Compare(b) == 0; }
  friend auto operator<=>(const CString& a, const CString& b) noexcept { return a.View() <=> b.View(); }
  friend auto operator<=>(const CString& a, const char* b) noexcept { return a.Compare(b) <=> 0; }
  ///@}

  ///@{
  /// Both, one behind the other.
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
