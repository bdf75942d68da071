#pragma once

/// @file
/// The framework's archive, which loads from or stores to a byte stream.

#include <cstddef>
#include <cstdint>
#include <istream>
#include <ostream>

#include "kestrin/base/export.h"

namespace kestrin {

/// Loads from or stores to a stream.
///
///     std::ostringstream stream;
///     kestrin::CArchive archive(stream);
///     archive.WriteDouble(0.5);
///
/// The stream must outlive the archive. The byte format is the same on every machine: integers and doubles
/// are little-endian.
class KESTRIN_EXPORT CArchive {
 public:
  ///@{
  /// An archive that loads from a stream, or stores to one.
  explicit CArchive(std::istream& source) : source_(&source) {}
  explicit CArchive(std::ostream& target) : target_(&target) {}
  ///@}

  ///@{
  /// Whether the archive loads, or stores.
  [[nodiscard]] bool IsLoading() const { return source_ != nullptr; }
  [[nodiscard]] bool IsStoring() const { return target_ != nullptr; }
  ///@}

  ///@{
  /// Transfers raw bytes. This and all following operations raise CArchiveException if the stream ends early
  /// or fails, and if you read from a storing archive or write to a loading one.
  void Read(void* bytes, std::size_t count);
  void Write(const void* bytes, std::size_t count);
  ///@}

  ///@{
  /// Transfers an element count. It takes two bytes if it is below 65,535, else more.
  [[nodiscard]] std::uint64_t ReadCount();
  void WriteCount(std::uint64_t count);
  ///@}

  ///@{
  /// Transfers a number in eight bytes.
  [[nodiscard]] double ReadDouble();
  void WriteDouble(double value);
  ///@}

 private:
  std::istream* source_ = nullptr;
  std::ostream* target_ = nullptr;
};

}  // namespace kestrin
