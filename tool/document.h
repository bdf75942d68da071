#pragma once

/// @file
/// The pieces of documents: values, lists, objects with members.

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

#include "kestrin/framework/string.h"
#include "kestrin/framework/string_array.h"
#include "kestrin/records/ownership.h"
#include "tool/document_writer.h"

namespace kestrin::tool {

inline void Write(DocumentWriter& document, std::nullptr_t) { document.Null(); }
inline void Write(DocumentWriter& document, int value) { document.Int(value); }
inline void Write(DocumentWriter& document, std::int64_t value) { document.Int(value); }
inline void Write(DocumentWriter& document, std::string_view text) { document.Utf8(text); }
inline void Write(DocumentWriter& document, double value) { document.Double(value); }
inline void Write(DocumentWriter& document, const CString& value) { document.String(value.View()); }

/// Writes what the pointer points to.
template <class T>
void Write(DocumentWriter& document, const T* pointer) {
  if (pointer == nullptr) return document.Null();
  Write(document, *pointer);
}

/// Writes a list as an array: numbers on one line, strings and records each on their own.
template <class Type, class ArgType>
void Write(DocumentWriter& document, const CArray<Type, ArgType>& list) {
  using Layout = DocumentWriter::Layout;
  document.StartArray(std::is_arithmetic_v<Type> ? Layout::kRow : Layout::kColumn);
  for (const Type& element : list) Write(document, element);
  document.EndArray();
}

/// Writes a member that is a list; the action writes each element.
template <class List, class Action>
void WriteList(DocumentWriter& document, const char* name, const List& list, Action write) {
  document.Key(name);
  document.StartArray();
  for (const auto& element : list) write(element);
  document.EndArray();
}

/// Writes an object: its braces when it is constructed and destroyed, its members in between.
class DocumentObject {
 public:
  explicit DocumentObject(DocumentWriter& document) : document_(document) { document_.StartObject(); }
  DocumentObject(const DocumentObject&) = delete;
  DocumentObject& operator=(const DocumentObject&) = delete;
  ~DocumentObject() { document_.EndObject(); }

  template <class T>
  DocumentObject& Member(const char* name, const T& value) {
    document_.Key(name);
    Write(document_, value);
    return *this;
  }

 private:
  DocumentWriter& document_;
};

}  // namespace kestrin::tool
