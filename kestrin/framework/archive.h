#pragma once

/// @file
/// The framework's archive: a byte stream that is either read or written.

#include <cstddef>
#include <cstdint>
#include <istream>
#include <ostream>

#include "kestrin/base/export.h"

namespace kestrin {

/// Loads from or stores to a stream of the caller's, which must outlive the archive. The bytes are the same
/// on every machine: integers and doubles are little-endian.
class KESTRIN_EXPORT CArchive {
 public:
  ///@{
  /// Reads from a stream, or writes to one.
  explicit CArchive(std::istream& source) : source_(&source) {}
  explicit CArchive(std::ostream& target) : target_(&target) {}
  ///@}

  ///@{
  /// Whether it was made to read, or to write.
  [[nodiscard]] bool IsLoading() const { return source_ != nullptr; }
  [[nodiscard]] bool IsStoring() const { return target_ != nullptr; }
  ///@}

  ///@{
  /// Bytes as they are. All that follow raise CArchiveException when the stream ends early, fails, or goes
  /// the other way.
  void Read(void* bytes, std::size_t count);
  void Write(const void* bytes, std::size_t count);
  ///@}

  ///@{
  /// An element count, in two bytes while it fits.
  [[nodiscard]] std::uint64_t ReadCount();
  void WriteCount(std::uint64_t count);
  ///@}

  ///@{
  /// A number, in eight bytes.
  [[nodiscard]] double ReadDouble();
  void WriteDouble(double value);
  ///@}

 private:
  std::istream* source_ = nullptr;
  std::ostream* target_ = nullptr;
};

}  // namespace kestrin
