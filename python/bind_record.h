#pragma once

/// @file
/// Making a class of a kind of record: its properties are the fields.

#include <string>

#include "python/to_python.h"

namespace kestrin::python {

/// The type of the value of a field, without references.
template <class Field, class Record>
using ValueType = std::remove_cvref_t<decltype(ValueOf(std::declval<Field>(), std::declval<Owner>(),
                                                       std::declval<Record>()))>;

/// How many elements the value of a field has, and what they are: "12 pins"; else "name=value".
template <class Value>
[[nodiscard]] std::string ShortText(const SharedOwner& owner, const std::string& name, const Value& value) {
  if constexpr (!std::is_convertible_v<Value, std::string_view> && requires { value.size(); }) {
    return std::to_string(value.size()) + ' ' + name;
  } else if constexpr (requires {
                         value->data();
                         value->size();
                       } &&
                       !std::is_same_v<Value, const std::string*>) {
    return std::to_string(value == nullptr ? 0 : value->size()) + ' ' + name;
  } else {
    const py::object object = MakePython(owner, value);
    if constexpr (std::is_pointer_v<Value> && tool::Listed<std::remove_cv_t<std::remove_pointer_t<Value>>>) {
      return name + '=' + std::string(py::repr(object.is_none() ? object : object.attr("name")));
    }
    return name + '=' + std::string(py::repr(object));
  }
}

/// "<kestrin.Pin: name='3', x=28.0, …>"
template <class Record>
[[nodiscard]] std::string ReprOf(const Handle<Record>& handle) {
  std::string text;
  tool::ForEachFieldOf<Record>([&](const auto& field) {
    const auto& value = ValueOf(field, *handle.owner, *handle.record);
    text += (text.empty() ? ": " : ", ") + ShortText(handle.owner, SnakeCase(field.name), value);
  });
  return std::string("<kestrin.") + kClass<Record>.name + text + '>';
}

/// The documentation of a property: its type and meaning.
[[nodiscard]] inline std::string DocOf(const std::string& type, const std::string& meaning) {
  return type + ": " + meaning;
}

template <Bound Record>
py::class_<Handle<Record>> BindRecord(py::module_& module) {
  py::class_<Handle<Record>> type(module, kClass<Record>.name, kClass<Record>.meaning);
  ForbidMaking(type);
  tool::ForEachFieldOf<Record>([&](const auto& field) {
    using Value = ValueType<decltype(field), Record>;
    type.def_property_readonly(
        SnakeCase(field.name).c_str(),
        [field](const Handle<Record>& self) {
          return MakePython<Value>(self.owner, ValueOf(field, *self.owner, *self.record));
        },
        DocOf(ToPython<Value>::Type(), field.meaning).c_str());
  });
  type.def("__repr__", &ReprOf<Record>);
  type.def("__eq__", [](const Handle<Record>& self, const py::object& other) {
    return py::isinstance<Handle<Record>>(other) && self == other.cast<Handle<Record>>();
  });
  type.def("__hash__", [](const Handle<Record>& self) { return std::hash<const Record*>()(self.record); });
  return type;
}

/// Makes the class of lists of a kind of record: "Pins".
template <Named Record>
void BindNames(py::module_& module) {
  using List = NamedList<Record>;
  const std::string record = kClass<Record>.name;
  const std::string name = record + 's';
  const std::string meaning = name + " in their order, found by name or position.";
  py::class_<List> type(module, name.c_str(), meaning.c_str());
  ForbidMaking(type);
  type.def("__len__", &List::Size, "__len__(self) -> int")
      .def("__getitem__", &List::WithName, ("__getitem__(self, key: str | int) -> " + record).c_str())
      .def("__getitem__", &List::At)
      .def("__contains__", &List::Has,
           ("__contains__(self, key: object) -> bool\n\nWhether there is such a name, or such a " + record +
            '.')
               .c_str())
      .def(
          "__iter__",
          [](const py::object& self) { return py::reinterpret_steal<py::object>(PySeqIter_New(self.ptr())); },
          ("__iter__(self) -> Iterator[" + record + "]").c_str())
      .def("get", &List::Find, py::arg("key"),
           ("get(self, key: str) -> " + record + " | None\n\nThe one with a name, or None.").c_str())
      .def("names", &List::Names, "names(self) -> list[str]\n\nAll names, in order.")
      .def("__repr__", [name](const List& self) {
        return "<kestrin." + name + ": " + std::to_string(self.Size()) + ">";
      });
}

}  // namespace kestrin::python
