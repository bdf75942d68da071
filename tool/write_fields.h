#pragma once

/// @file
/// Records as documents: each is an object of its fields.

#include <concepts>
#include <optional>
#include <ranges>
#include <string_view>
#include <type_traits>
#include <variant>

#include "kestrin/board/board.h"
#include "tool/document_writer.h"
#include "tool/fields.h"

namespace kestrin::tool {

/// A path, which is UTF-8 where that is valid, whatever the encoding of the files is.
struct PathText {
  std::string_view path;
};

void WriteValue(DocumentWriter& document, Point point);
void WriteValue(DocumentWriter& document, const OpenConnection& open);
void WriteValue(DocumentWriter& document, PathText path);

/// Writes the fields of a record, as members of an object.
template <class Context, Listed Record>
void WriteFields(DocumentWriter& document, const Context& context, const Record& record);

/// Writes the value of a field.
template <class Context, class Value>
void WriteValue(DocumentWriter& document, const Context& context, const Value& value) {
  if constexpr (std::is_same_v<Value, bool>) {
    document.Bool(value);
  } else if constexpr (std::integral<Value>) {
    document.Int(static_cast<std::int64_t>(value));
  } else if constexpr (std::floating_point<Value>) {
    document.Double(value);
  } else if constexpr (std::is_convertible_v<const Value&, std::string_view>) {
    document.String(value);
  } else if constexpr (std::is_same_v<Value, std::monostate>) {
    document.Null();
  } else if constexpr (requires { std::variant_size<Value>::value; }) {
    std::visit([&](const auto& held) { WriteValue(document, context, held); }, value);
  } else if constexpr (std::is_same_v<Value, NetPin>) {
    document.String(value.name);
  } else if constexpr (requires { WriteValue(document, value); }) {
    WriteValue(document, value);
  } else if constexpr (std::ranges::range<Value>) {
    document.StartArray();
    for (const auto& element : value) WriteValue(document, context, element);
    document.EndArray();
  } else if constexpr (Listed<Value>) {
    document.StartObject();
    WriteFields(document, context, value);
    document.EndObject();
  } else if constexpr (std::is_pointer_v<Value> && Listed<std::remove_cv_t<std::remove_pointer_t<Value>>>) {
    value ? document.String(value->name) : document.Null();  // a reference to another record
  } else {
    value ? WriteValue(document, context, *value) : document.Null();
  }
}

template <class Context, Listed Record>
void WriteFields(DocumentWriter& document, const Context& context, const Record& record) {
  ForEachFieldOf<Record>([&](const auto& field) {
    document.Key(field.name);
    WriteValue(document, context, field.Of(context, record));
  });
}

}  // namespace kestrin::tool
