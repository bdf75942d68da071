#pragma once

/// @file
/// Writing documents: objects, arrays and values, nested.

#include <cstdint>
#include <string_view>

namespace kestrin::tool {

/// Takes a document piece by piece. What it makes of the pieces is up to its kind: text, or objects in
/// memory.
class DocumentWriter {
 public:
  DocumentWriter() = default;
  DocumentWriter(const DocumentWriter&) = delete;
  DocumentWriter& operator=(const DocumentWriter&) = delete;
  virtual ~DocumentWriter() = default;

  virtual void Key(const char* name) = 0;
  virtual void StartObject() = 0;
  virtual void EndObject() = 0;
  /// Whether the elements of an array are on one line or each on its own, if there are lines.
  enum class Layout { kRow, kColumn };
  virtual void StartArray(Layout layout) = 0;
  void StartArray() { StartArray(Layout::kColumn); }
  virtual void EndArray() = 0;

  virtual void Null() = 0;
  virtual void Bool(bool value) = 0;
  virtual void Int(std::int64_t value) = 0;
  /// Infinities are the texts "Infinity" and "-Infinity".
  virtual void Double(double value) = 0;
  /// Bytes of a file, in the encoding of the files.
  virtual void String(std::string_view bytes) = 0;
  /// Text that is UTF-8 already.
  virtual void Utf8(std::string_view text) = 0;
};

}  // namespace kestrin::tool
