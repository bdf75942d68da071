#pragma once

/// @file
/// The properties of a component.

#include <string_view>

#include "kestrin/neutral/component_model.h"
#include "kestrin/records/record_pool.h"

namespace kestrin {

/// The name of the property with reference locations.
inline constexpr std::string_view kReferenceLocations = "REFLOC";

/// Adds a property, `(NAME,"value")`, to the component: reference locations if the name is REFLOC, else a
/// comment.
void AddProperty(CMCompsInfo& component, RecordPool& records, std::string_view item);

}  // namespace kestrin
