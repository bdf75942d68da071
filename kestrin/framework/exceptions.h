#pragma once

/// @file
/// The framework's exceptions. The library raises none of its own; these pass through to the host.

#include <exception>

#include "kestrin/base/export.h"

namespace kestrin {

/// Base of the framework's exceptions.
class KESTRIN_EXPORT CException : public std::exception {
 public:
  ~CException() override;
  /// One line of text that lives as long as the program.
  [[nodiscard]] const char* what() const noexcept override { return text_; }

 protected:
  /// The text must live as long as the program.
  explicit CException(const char* text) noexcept : text_(text) {}
  CException(const CException&) = default;
  CException& operator=(const CException&) = default;

 private:
  const char* text_;
};

/// Raised by every checked access whose index is outside the string or array.
class KESTRIN_EXPORT CInvalidArgException : public CException {
 public:
  CInvalidArgException() noexcept : CException("invalid argument") {}
};

/// Raised when reading an open file fails for another reason than its end.
class KESTRIN_EXPORT CFileException : public CException {
 public:
  CFileException() noexcept : CException("the file could not be read") {}
};

/// Raised when an archive ends before what is read from it does, or cannot take what is written.
class KESTRIN_EXPORT CArchiveException : public CException {
 public:
  CArchiveException() noexcept : CException("the archive ended early or could not be written") {}
};

/// Raises CInvalidArgException.
[[noreturn]] KESTRIN_EXPORT void AfxThrowInvalidArgException();

}  // namespace kestrin
