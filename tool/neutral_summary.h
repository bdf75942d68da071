#pragma once

/// @file
/// The summary of a Neutral file.

#include "kestrin/neutral/board_selection.h"
#include "kestrin/neutral/component_model.h"
#include "kestrin/neutral/net_model.h"

namespace kestrin::tool {

/// Prints the board and panel, which board was selected and why, the components by geometry, and the nets.
void PrintNeutral(const CMComps& components, const CMNetList& nets, const BoardSelection& selection);

}  // namespace kestrin::tool
