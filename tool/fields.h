#pragma once

/// @file
/// Records of which the fields are listed once, with names and meanings. Documents, tables and the Python
/// module visit these lists.
///
///     template <>
///     inline constexpr auto kFields<Via> = std::tuple{
///         Field{"name", "The via's padstack.", [](const Board& board, const Via& via) -> const std::string&
///         { … }}, Field{"width", "In millimetres.", &Via::width}};

#include <cstddef>
#include <tuple>
#include <type_traits>

namespace kestrin::tool {

/// A field. The getter is a member of the record, or a function of the record, or of what it belongs to and
/// the record.
template <class Getter>
struct Field {
  const char* name;     ///< in documents: "bottomTurn"
  const char* meaning;  ///< a sentence, with the unit
  Getter getter;

  /// The value of the field. The context is what the record belongs to: the board of a net.
  template <class Context, class Record>
  [[nodiscard]] decltype(auto) Of(const Context& context, const Record& record) const {
    if constexpr (std::is_member_object_pointer_v<Getter>) {
      return (record.*getter);
    } else if constexpr (std::is_invocable_v<Getter, const Record&>) {
      return getter(record);
    } else {
      return getter(context, record);
    }
  }
};

template <class Getter>
Field(const char*, const char*, Getter) -> Field<Getter>;

/// The fields of a kind of record, a tuple.
template <class Record>
inline constexpr std::nullptr_t kFields = nullptr;

/// A record whose fields are listed.
template <class Record>
concept Listed = !std::is_same_v<decltype(kFields<Record>), const std::nullptr_t>;

/// Calls the action with each field of a kind of record.
template <Listed Record, class Action>
void ForEachFieldOf(Action action) {
  std::apply([&](const auto&... field) { (action(field), ...); }, kFields<Record>);
}

}  // namespace kestrin::tool
