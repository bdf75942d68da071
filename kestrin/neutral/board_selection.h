#pragma once

/// @file
/// The board of a Neutral file that is imported.

#include <cstdint>

#include "kestrin/base/export.h"

namespace kestrin {

/// A file may have nets and component sections for several boards. One nets section and one component section
/// are imported.
struct BoardSelection {
  std::int64_t ordinal = 1;            ///< which section of each kind is imported, counted from 1
  std::int64_t placement = -1;         ///< the index of the placement that selected it; -1 if none did
  std::int64_t netsSections = 0;       ///< the number of nets sections read so far
  std::int64_t componentSections = 0;  ///< the number of component sections read so far
};

}  // namespace kestrin
