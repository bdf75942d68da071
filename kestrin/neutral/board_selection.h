#pragma once

/// @file
/// Which of the boards of a Neutral file is imported.

#include <cstdint>

#include "kestrin/base/export.h"

namespace kestrin {

/// A file may hold sections for several boards; of its nets and of its component sections one each is read.
struct BoardSelection {
  std::int64_t ordinal = 1;     ///< of the sections that are read, from 1
  std::int64_t placement = -1;  ///< the index of the placement on the panel that chose them, -1 when none did
  std::int64_t netsSections = 0;       ///< how many there are in what was read of the file
  std::int64_t componentSections = 0;  ///< likewise
};

}  // namespace kestrin
