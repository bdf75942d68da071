#pragma once

/// @file
/// The pins of nets.

#include <vector>

#include "kestrin/board/board.h"
#include "kestrin/board/footprints.h"

namespace kestrin {

class CMNetList;

/// Adds the pins that net records name to their nets, and sets the nets of the components' pins. netOf is the
/// net of each record. The records may be null.
void ReadNetPins(const CMNetList* records, const std::vector<Index>& netOf, const Footprints& footprints,
                 Board& board);

}  // namespace kestrin
