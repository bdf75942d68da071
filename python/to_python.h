#pragma once

/// @file
/// The values of fields as Python's objects, and the types that Python calls them.

#include <concepts>
#include <optional>
#include <span>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

#include "python/classes.h"
#include "python/copper.h"
#include "python/named_list.h"
#include "python/texts.h"

namespace kestrin::python {

/// How a type of values becomes an object: `Make` makes it, and `Type` is its type in Python.
template <class Value>
struct ToPython;

template <class Value>
[[nodiscard]] py::object MakePython(const SharedOwner& owner, const Value& value) {
  return ToPython<Value>::Make(owner, value);
}

template <>
struct ToPython<bool> {
  static std::string Type() { return "bool"; }
  static py::object Make(const SharedOwner& /*owner*/, bool value) { return py::bool_(value); }
};

template <std::integral Value>
struct ToPython<Value> {
  static std::string Type() { return "int"; }
  static py::object Make(const SharedOwner& /*owner*/, Value value) { return py::int_(value); }
};

template <>
struct ToPython<double> {
  static std::string Type() { return "float"; }
  static py::object Make(const SharedOwner& /*owner*/, double value) { return py::float_(value); }
};

template <std::convertible_to<std::string_view> Value>
struct ToPython<Value> {
  static std::string Type() { return "str"; }
  static py::object Make(const SharedOwner& owner, std::string_view value) {
    return TextOf(owner->encoding, value);
  }
};

template <>
struct ToPython<tool::PathText> {
  static std::string Type() { return "str"; }
  static py::object Make(const SharedOwner& /*owner*/, tool::PathText value) { return PathOf(value.path); }
};

template <>
struct ToPython<Point> {
  static std::string Type() { return "tuple[float, float]"; }
  static py::object Make(const SharedOwner& /*owner*/, Point value) {
    return py::make_tuple(value.x, value.y);
  }
};

template <>
struct ToPython<tool::Value> {
  static std::string Type() { return "float | str | None"; }
  static py::object Make(const SharedOwner& owner, const tool::Value& value) {
    if (const auto* number = std::get_if<double>(&value)) return py::float_(*number);
    if (const auto* text = std::get_if<std::string>(&value)) return TextOf(owner->encoding, *text);
    return py::none();
  }
};

/// What may be missing.
template <class Value>
struct ToPython<std::optional<Value>> {
  static std::string Type() { return ToPython<Value>::Type() + " | None"; }
  static py::object Make(const SharedOwner& owner, const std::optional<Value>& value) {
    return value ? MakePython(owner, *value) : py::none();
  }
};
template <class Value>
requires(!std::same_as<Value, char>) struct ToPython<const Value*> {
  static std::string Type() { return ToPython<Value>::Type() + " | None"; }
  static py::object Make(const SharedOwner& owner, const Value* value) {
    return value ? MakePython(owner, *value) : py::none();
  }
};

template <Bound Record>
struct ToPython<Record> {
  static std::string Type() { return kClass<Record>.name; }
  static py::object Make(const SharedOwner& owner, const Record& record) {
    return py::cast(Handle<Record>{owner, &record});
  }
};

/// Lists.
template <class Value>
struct ToPython<std::vector<Value>> {
  static std::string Type() { return "list[" + ToPython<Value>::Type() + "]"; }
  static py::object Make(const SharedOwner& owner, const std::vector<Value>& values) {
    py::list list;
    for (const Value& value : values) list.append(MakePython(owner, value));
    return list;
  }
};

/// Lists in which records are found by name.
template <class Record>
concept Named = Bound<Record> &&
    (std::same_as<Record, Layer> || std::same_as<Record, Component> || std::same_as<Record, Pin> ||
     std::same_as<Record, NetPin> || std::same_as<Record, Net>);
template <Named Record>
struct ToPython<std::span<const Record>> {
  static std::string Type() { return std::string(kClass<Record>.name) + 's'; }
  static py::object Make(const SharedOwner& owner, std::span<const Record> records) {
    return py::cast(NamedList<Record>(owner, records));
  }
};
template <Named Record>
struct ToPython<std::vector<Record>> : ToPython<std::span<const Record>> {};

template <>
struct ToPython<std::span<const Track>> {
  static std::string Type() { return "Tracks"; }
  static py::object Make(const SharedOwner& owner, std::span<const Track> tracks) {
    return py::cast(Tracks(owner, tracks));
  }
};

template <>
struct ToPython<std::span<const Via>> {
  static std::string Type() { return "Vias"; }
  static py::object Make(const SharedOwner& owner, std::span<const Via> vias) {
    return py::cast(Vias{owner, vias});
  }
};

/// Arrays, which are views.
template <class Value>
struct ArrayToPython {
  static std::string Type() { return ArrayType<double>(); }
  static py::object Make(const SharedOwner& owner, const std::vector<Value>& values) {
    return ViewOf(owner, std::span<const Value>(values));
  }
};
template <>
struct ToPython<Polygon> : ArrayToPython<Point> {};
template <>
struct ToPython<std::vector<OpenConnection>> : ArrayToPython<OpenConnection> {};

/// The lengths of a net by the names of layers.
template <>
struct ToPython<std::vector<LayerLength>> {
  static std::string Type() { return "dict[str, float]"; }
  static py::object Make(const SharedOwner& owner, const std::vector<LayerLength>& lengths) {
    py::dict byLayer;
    for (const LayerLength& length : lengths) {
      const Layer* layer = SetOf(*owner).board.FindLayer(length.layer);
      const std::string name = layer == nullptr ? std::to_string(length.layer) : layer->name;
      byLayer[TextOf(owner->encoding, name)] = length.length;
    }
    return byLayer;
  }
};

}  // namespace kestrin::python
