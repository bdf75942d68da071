#pragma once

/// @file
/// What each attribute does, once its values are cut: one function for each row of the table in
/// attributes.cpp. Value 1 is the attribute's name. Where the table says kRead a function also runs without
/// its owner, and then only uses the pending points up; else its owner is there.

#include "kestrin/geometry/reader_state.h"

namespace kestrin::attribute {

// Of the bound board, whatever geometry is open.
LineOutcome DefaultPadstackOfBoard(ReaderState& state);
LineOutcome DefaultVia(ReaderState& state);
LineOutcome PlacementClearance(ReaderState& state);
LineOutcome RoutingLayers(ReaderState& state);
LineOutcome PlacementOutlineOfBoard(ReaderState& state);
LineOutcome RoutingOutline(ReaderState& state);

// Of the open board.
LineOutcome PowerNetNames(ReaderState& state);

// Of the last component, whatever geometry is open.
LineOutcome DefaultPadstackOfComponent(ReaderState& state);
LineOutcome LayoutSurface(ReaderState& state);
LineOutcome LayoutType(ReaderState& state);
LineOutcome OutlineOverhang(ReaderState& state);

// Of the open component.
LineOutcome Height(ReaderState& state);
LineOutcome ComponentType(ReaderState& state);
LineOutcome PadstackOverride(ReaderState& state);
LineOutcome PinDefinition(ReaderState& state);

// Of the open geometry, if it is of a kind that has a place for them; also read in other kinds.
LineOutcome PlacementKeepout(ReaderState& state);
LineOutcome PlacementRegion(ReaderState& state);
LineOutcome BodyOutline(ReaderState& state);
LineOutcome PlacementOutline(ReaderState& state);
LineOutcome Drill(ReaderState& state);
LineOutcome UnplatedDrill(ReaderState& state);
LineOutcome RoutingKeepout(ReaderState& state);
LineOutcome TraceKeepout(ReaderState& state);
LineOutcome ViaKeepout(ReaderState& state);
LineOutcome DrillSize(ReaderState& state);

// Of the open pin or via.
LineOutcome SetTerminalType(ReaderState& state, int type);
LineOutcome SetViaType(ReaderState& state, int type);

template <int TYPE>
LineOutcome TerminalType(ReaderState& state) {
  return SetTerminalType(state, TYPE);
}

template <int TYPE>
LineOutcome ViaType(ReaderState& state) {
  return SetViaType(state, TYPE);
}

// Of the open stack-up; the name is that of the attribute.
LineOutcome LayerDefinition(ReaderState& state, std::string_view name);

}  // namespace kestrin::attribute
