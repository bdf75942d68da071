#pragma once

/// @file
/// The names of kinds of geometries, for messages.

#include <array>
#include <cstddef>
#include <string_view>

#include "kestrin/geometry/geometry_model.h"

namespace kestrin {

constexpr std::string_view NameOfKind(const CMGeomPanel*) { return "panel"; }
constexpr std::string_view NameOfKind(const CMGeomBoard*) { return "board"; }
constexpr std::string_view NameOfKind(const CMGeomComponent*) { return "component"; }
constexpr std::string_view NameOfKind(const CMGeomDrawing*) { return "drawing"; }
constexpr std::string_view NameOfKind(const CMGeomGenericPart*) { return "generic part"; }
constexpr std::string_view NameOfKind(const CMGeomPin*) { return "pin"; }
constexpr std::string_view NameOfKind(const CMGeomStackup*) { return "stack-up"; }
constexpr std::string_view NameOfKind(const CMGeomVia*) { return "via"; }

/// Text made at compile time, for use in constant tables.
template <class... Geometries>
class KindsBefore {
 public:
  constexpr KindsBefore() {
    Add("a ");
    std::size_t number = 0;
    for (const std::string_view name : {NameOfKind(static_cast<const Geometries*>(nullptr))...}) {
      if (number > 0) Add(number + 1 == sizeof...(Geometries) ? " or " : ", ");
      Add(name);
      ++number;
    }
    Add(" before it");
  }
  [[nodiscard]] constexpr std::string_view Text() const { return {text_.data(), size_}; }

 private:
  constexpr void Add(std::string_view part) {
    for (const char c : part) text_[size_++] = c;
  }

  std::array<char, 128> text_{};
  std::size_t size_ = 0;
};

/// The text for a list of kinds: "a panel, board or component before it".
template <class... Geometries>
inline constexpr KindsBefore<Geometries...> kBefore;

}  // namespace kestrin
