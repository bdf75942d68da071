#pragma once

/// @file
/// Lists of records that have names.

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

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
    const auto found = Positions().find(std::string(name));
    if (found == Positions().end()) return std::nullopt;
    return Handle<Record>{owner_, &records_[found->second]};
  }

  /// The record with a name. Raises Python's KeyError, which says what names are like it.
  [[nodiscard]] Handle<Record> WithName(const py::str& name) const {
    if (const auto found = Find(name)) return *found;
    std::vector<std::string_view> names;
    for (const auto& [known, position] : Positions()) names.emplace_back(known);
    const std::string what = SnakeCase(kClass<Record>.name).substr(1);
    tool::SetEncoding(tool::Encoding::kUtf8);
    throw py::key_error(tool::draw::NoSuchName(what, std::string(name), names));
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
  using PositionsByName = std::map<std::string, std::size_t>;  // names in UTF-8

  [[nodiscard]] const PositionsByName& Positions() const {
    if (positions_.empty()) {
      tool::SetEncoding(owner_->encoding);
      for (std::size_t i = 0; i < records_.size(); ++i)
        positions_.try_emplace(tool::ToUtf8(records_[i].name), i);
    }
    return positions_;
  }

  SharedOwner owner_;
  std::span<const Record> records_;
  mutable PositionsByName positions_;  // made when the first name is looked up
};

}  // namespace kestrin::python
