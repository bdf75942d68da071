#pragma once

/// @file
/// A column of a table: the values of a field.

#include <limits>
#include <numeric>
#include <optional>
#include <vector>

#include "python/arrays.h"
#include "python/to_python.h"

namespace kestrin::python {

/// An array of numpy that owns its numbers.
template <class Number>
[[nodiscard]] py::array ArrayOf(const std::vector<Number>& numbers) {
  return py::array_t<Number>(static_cast<py::ssize_t>(numbers.size()), numbers.data());
}

///@{
/// What a value is in a table. A list is its length, the lengths of a net are their sum, and a reference is
/// the name of the record.
[[nodiscard]] inline bool CellOf(bool value) { return value; }
[[nodiscard]] std::int64_t CellOf(std::integral auto value) { return static_cast<std::int64_t>(value); }
[[nodiscard]] inline double CellOf(double value) { return value; }
[[nodiscard]] inline double CellOf(const std::vector<LayerLength>& lengths) {
  return std::accumulate(lengths.begin(), lengths.end(), 0.0,
                         [](double sum, const LayerLength& length) { return sum + length.length; });
}
[[nodiscard]] inline std::optional<std::string_view> CellOf(std::string_view text) { return text; }
[[nodiscard]] inline std::optional<std::string_view> CellOf(const std::string* text) {
  return text == nullptr ? std::nullopt : std::optional<std::string_view>(*text);
}
[[nodiscard]] inline std::optional<std::string_view> CellOf(const Net* net) {
  return net == nullptr ? std::nullopt : std::optional<std::string_view>(net->name);
}
[[nodiscard]] inline std::int64_t CellOf(std::span<const Track> tracks) {
  return std::accumulate(tracks.begin(), tracks.end(), std::int64_t{0},
                         [](std::int64_t legs, const Track& track) { return legs + track.points.count - 1; });
}
template <class List>
requires(!std::convertible_to<List, std::string_view>) && requires(const List& list) { list.size(); }
[[nodiscard]] std::int64_t CellOf(const List& list) { return static_cast<std::int64_t>(list.size()); }
///@}

/// The values of a column that are added one by one.
template <class Cell>
class Column {
 public:
  explicit Column(std::size_t size) { cells_.reserve(size); }
  void Add(const Owner& /*owner*/, Cell cell) { cells_.push_back(cell); }
  [[nodiscard]] py::object Finish() const { return ArrayOf(cells_); }

 private:
  std::vector<Cell> cells_;
};

/// Booleans are not viewed as bits.
template <>
class Column<bool> : public Column<std::uint8_t> {
 public:
  using Column<std::uint8_t>::Column;
  [[nodiscard]] py::object Finish() const { return Column<std::uint8_t>::Finish().attr("astype")("bool"); }
};

/// Texts, with None where a record has no text.
template <>
class Column<std::optional<std::string_view>> {
 public:
  explicit Column(std::size_t size) : cells_(size) {}
  void Add(const Owner& owner, std::optional<std::string_view> text) {
    cells_[size_++] = text ? py::object(TextOf(owner.encoding, *text)) : py::none();
  }
  [[nodiscard]] py::object Finish() const { return cells_; }

 private:
  py::list cells_;
  std::size_t size_ = 0;
};

}  // namespace kestrin::python
