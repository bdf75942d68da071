#pragma once

/// @file
/// The owners of commands and attributes. An owner has a text for messages, tells whether it is there, and
/// passes its field to the handler that fills it.
///
///     OfOpen<&CMGeomPin::m_dDrillSize, &CMGeomVia::m_dDrillSize>   // "a pin or via before it"

#include <string_view>
#include <type_traits>

#include "kestrin/geometry/current_geometry.h"
#include "kestrin/geometry/kinds_before.h"
#include "kestrin/text/record_table.h"

namespace kestrin {

/// The class of a pointer to member.
template <class Member>
struct ClassOfMember;
template <class Class, class Value>
struct ClassOfMember<Value Class::*> {
  using Type = Class;
};
template <auto Member>
using ClassOf = typename ClassOfMember<decltype(Member)>::Type;

/// A member of a record; if it is a pointer, the list that it points to.
template <auto Member>
[[nodiscard]] auto& MemberOf(ClassOf<Member>& record) {
  if constexpr (std::is_pointer_v<std::remove_reference_t<decltype(record.*Member)>>) {
    return *(record.*Member);
  } else {
    return record.*Member;
  }
}

[[nodiscard]] constexpr OwnerState StateOf(const void* owner) {
  return owner == nullptr ? OwnerState::kMissing : OwnerState::kThere;
}

/// The open geometry, which must be of the class of one of the members.
template <auto... Members>
struct OfOpen {
  static constexpr std::string_view kRequirement = kBefore<ClassOf<Members>...>.Text();

  static OwnerState Find(const CurrentGeometry& geometry) {
    const bool isOpen = ((geometry.Open<ClassOf<Members>>() != nullptr) || ...);
    return isOpen ? OwnerState::kThere : OwnerState::kMissing;
  }
  template <class Fill>
  static void Lend(const CurrentGeometry& geometry, Fill fill) {
    static_cast<void>((LendIfOpen<Members>(geometry, fill) || ...));
  }

 private:
  template <auto Member, class Fill>
  static bool LendIfOpen(const CurrentGeometry& geometry, Fill fill) {
    auto* record = geometry.Open<ClassOf<Member>>();
    if (record != nullptr) fill(MemberOf<Member>(*record));
    return record != nullptr;
  }
};

/// The board once it is bound, whatever geometry is open.
template <auto Member>
struct OfBoundBoard {
  static constexpr std::string_view kRequirement = "$$lock_windows or $$create_board before it";
  static OwnerState Find(const CurrentGeometry& geometry) { return StateOf(geometry.BoundBoard()); }
  template <class Fill>
  static void Lend(const CurrentGeometry& geometry, Fill fill) {
    fill(MemberOf<Member>(*geometry.BoundBoard()));
  }
};

/// The last component, whatever geometry is open.
template <auto Member>
struct OfLastComponent {
  static constexpr std::string_view kRequirement = kBefore<CMGeomComponent>.Text();
  static OwnerState Find(const CurrentGeometry& geometry) { return StateOf(geometry.LastComponent()); }
  template <class Fill>
  static void Lend(const CurrentGeometry& geometry, Fill fill) {
    fill(MemberOf<Member>(*geometry.LastComponent()));
  }
};

/// The list for drawing objects, texts or adds. Its geometry is not always the open one.
template <auto List>
struct OfCurrentList {
  static constexpr std::string_view kRequirement = "a geometry before it";
  static OwnerState Find(const CurrentGeometry& geometry) { return StateOf((geometry.*List)()); }
  template <class Fill>
  static void Lend(const CurrentGeometry& geometry, Fill fill) {
    fill(*(geometry.*List)());
  }
};

/// The unit of the open geometry. If that geometry is not in the model, the line is ignored.
struct UnitOfOpen : OfOpen<&CMGeomPanel::m_sUnits, &CMGeomBoard::m_sUnits, &CMGeomComponent::m_sUnits,
                           &CMGeomDrawing::m_sUnits, &CMGeomGenericPart::m_sUnits, &CMGeomPin::m_sUnits,
                           &CMGeomStackup::m_sUnits, &CMGeomVia::m_sUnits> {
  static constexpr std::string_view kRequirement = "a geometry before it";
  static OwnerState Find(const CurrentGeometry& geometry) {
    return geometry.IsIgnored() ? OwnerState::kElsewhere : OfOpen::Find(geometry);
  }
};

}  // namespace kestrin
