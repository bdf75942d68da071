#pragma once

/// @file
/// Lists of records that have names.

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "python/handle.h"
#include "python/texts.h"
#include "tool/draw/near_names.h"

namespace kestrin::python {

/// A list of records, which are found by name or position. Of records of one name, the first one is found.
template <class Record>
class NamedList {
 public:
  NamedList(SharedOwner owner, std::span<const Record> records)
      : owner_(std::move(owner)), records_(records) {}

  [[nodiscard]] std::size_t Size() const { return records_.size(); }

  [[nodiscard]] std::optional<Handle<Record>> Find(const py::str& name) const {
    const auto position = PositionOf(Utf8Of(name));
    if (!position) return std::nullopt;
    return Handle<Record>{owner_, &records_[*position]};
  }

  /// Whether there is a record of a name, or this record.
  [[nodiscard]] bool Has(const py::object& key) const {
    if (py::isinstance<py::str>(key)) return Find(key).has_value();
    if (!py::isinstance<Handle<Record>>(key)) return false;
    const auto* const record = key.cast<Handle<Record>>().record;
    const std::less<const Record*> isBefore;
    return !isBefore(record, records_.data()) && isBefore(record, records_.data() + records_.size());
  }

  /// The record with a name. Raises Python's KeyError, which says what names are like it.
  [[nodiscard]] Handle<Record> WithName(const py::str& name) const {
    if (const auto found = Find(name)) return *found;
    tool::SetEncoding(owner_->encoding);
    std::vector<std::string> names;
    for (const Record& record : records_) names.push_back(tool::ToUtf8(record.name));
    const std::string what = SnakeCase(kClass<Record>.name).substr(1);
    const std::string message =
        tool::draw::NoSuchName(what, BytesOf(tool::Encoding::kUtf8, name), {names.begin(), names.end()});
    PyErr_SetObject(PyExc_KeyError, TextOf(tool::Encoding::kUtf8, message).ptr());
    throw py::error_already_set();
  }

  /// The record at a position; negative ones count from the end. Raises Python's IndexError.
  [[nodiscard]] Handle<Record> At(py::ssize_t position) const {
    const auto size = static_cast<py::ssize_t>(records_.size());
    if (position < 0) position += size;
    if (position < 0 || position >= size) throw py::index_error("no such position");
    return {owner_, &records_[static_cast<std::size_t>(position)]};
  }

  [[nodiscard]] py::list Names() const {
    py::list names;
    for (const Record& record : records_) names.append(TextOf(owner_->encoding, record.name));
    return names;
  }

 private:
  [[nodiscard]] std::optional<std::size_t> PositionOf(const std::string& name) const {
    constexpr std::size_t kFew = 32;
    tool::SetEncoding(owner_->encoding);
    if (records_.size() > kFew) {
      const PositionsByName& positions = Positions();
      const auto found = positions.find(name);
      return found == positions.end() ? std::nullopt : std::optional(found->second);
    }
    for (std::size_t i = 0; i < records_.size(); ++i) {
      if (tool::ToUtf8(records_[i].name) == name) return i;
    }
    return std::nullopt;
  }

  /// The positions, which outlive this list: `board.nets["GND"]` makes a new list each time.
  [[nodiscard]] const PositionsByName& Positions() const {
    PositionsByName& positions = owner_->positions[records_.data()];
    if (positions.empty()) {
      for (std::size_t i = 0; i < records_.size(); ++i)
        positions.try_emplace(tool::ToUtf8(records_[i].name), i);
    }
    return positions;
  }

  SharedOwner owner_;
  std::span<const Record> records_;
};

}  // namespace kestrin::python
