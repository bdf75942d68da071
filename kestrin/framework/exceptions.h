#pragma once

/// @file
/// The framework's exceptions. The library defines no others.

#include <exception>

#include "kestrin/base/export.h"

namespace kestrin {

/// The base of the framework's exceptions.
class KESTRIN_EXPORT CException : public std::exception {
 public:
  ~CException() override;
  /// The reason in one line. The text is valid as long as the program runs.
  [[nodiscard]] const char* what() const noexcept override { return text_; }

 protected:
  /// The text must be valid as long as the program runs.
  explicit CException(const char* text) noexcept : text_(text) {}
  CException(const CException&) = default;
  CException& operator=(const CException&) = default;

 private:
  const char* text_;
};

/// Raised for an argument outside its range, such as an index outside a string or array.
class KESTRIN_EXPORT CInvalidArgException : public CException {
 public:
  CInvalidArgException() noexcept : CException("invalid argument") {}
};

/// Raised when reading an open file fails. Reaching the end of the file is not a failure.
class KESTRIN_EXPORT CFileException : public CException {
 public:
  CFileException() noexcept : CException("the file could not be read") {}
};

/// Raised when an archive ends early, fails, or is used in the wrong direction.
class KESTRIN_EXPORT CArchiveException : public CException {
 public:
  CArchiveException() noexcept : CException("the archive ended early or could not be written") {}
};

/// Raises CInvalidArgException.
[[noreturn]] KESTRIN_EXPORT void AfxThrowInvalidArgException();

}  // namespace kestrin
