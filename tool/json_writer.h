#pragma once

/// @file
/// Writing JSON documents.

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string_view>
#include <type_traits>

#include "kestrin/framework/string.h"
#include "kestrin/framework/string_array.h"
#include "kestrin/records/ownership.h"
#include "tool/rapidjson.h"

namespace kestrin::tool {

/// Writes one document piece by piece, without a copy of it in memory.
class JsonWriter {
 public:
  /// The caller keeps the stream open until Finish.
  explicit JsonWriter(std::FILE* target = stdout);

  void Key(const char* name) { writer_.Key(name); }
  void StartObject() { writer_.StartObject(); }
  void EndObject() { writer_.EndObject(); }
  /// Whether the elements of an array are on one line or each on its own.
  enum class Layout { kRow, kColumn };
  void StartArray(Layout layout = Layout::kColumn);
  void EndArray();

  void Null() { writer_.Null(); }
  void Bool(bool value) { writer_.Bool(value); }
  void Int(std::int64_t value) { writer_.Int64(value); }
  /// Writes the shortest text that reads back as the same double; infinities as strings.
  void Double(double value);
  /// Writes bytes as the code points of the same number.
  void String(std::string_view bytes);
  /// Writes text that is UTF-8 already.
  void Utf8(std::string_view text);

  /// Ends the document.
  void Finish();

 private:
  std::array<char, 65536> buffer_;
  rapidjson::FileWriteStream stream_;
  rapidjson::PrettyWriter<rapidjson::FileWriteStream> writer_;
};

inline void WriteJson(JsonWriter& json, std::nullptr_t) { json.Null(); }
inline void WriteJson(JsonWriter& json, int value) { json.Int(value); }
inline void WriteJson(JsonWriter& json, std::int64_t value) { json.Int(value); }
inline void WriteJson(JsonWriter& json, std::string_view text) { json.Utf8(text); }
inline void WriteJson(JsonWriter& json, double value) { json.Double(value); }
inline void WriteJson(JsonWriter& json, const CString& value) { json.String(value.View()); }

/// Writes what the pointer points to.
template <class T>
void WriteJson(JsonWriter& json, const T* pointer) {
  if (pointer == nullptr) return json.Null();
  WriteJson(json, *pointer);
}

/// Writes a list as an array: numbers on one line, strings and records each on their own.
template <class Type, class ArgType>
void WriteJson(JsonWriter& json, const CArray<Type, ArgType>& list) {
  json.StartArray(std::is_arithmetic_v<Type> ? JsonWriter::Layout::kRow : JsonWriter::Layout::kColumn);
  for (const Type& element : list) WriteJson(json, element);
  json.EndArray();
}

/// Writes a member that is a list; the action writes each element.
template <class List, class Write>
void WriteList(JsonWriter& json, const char* name, const List& list, Write write) {
  json.Key(name);
  json.StartArray();
  for (const auto& element : list) write(element);
  json.EndArray();
}

/// Writes an object: its braces when it is constructed and destroyed, its members in between.
class JsonObject {
 public:
  explicit JsonObject(JsonWriter& json) : json_(json) { json_.StartObject(); }
  JsonObject(const JsonObject&) = delete;
  JsonObject& operator=(const JsonObject&) = delete;
  ~JsonObject() { json_.EndObject(); }

  template <class T>
  JsonObject& Member(const char* name, const T& value) {
    json_.Key(name);
    WriteJson(json_, value);
    return *this;
  }

 private:
  JsonWriter& json_;
};

}  // namespace kestrin::tool
