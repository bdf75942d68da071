#pragma once

/// @file
/// The checks, one function for each. A check does nothing if the files that it compares are missing.

#include "kestrin/board/findings/collector.h"

namespace kestrin {

/// Finds one kind of fault.
using Check = void (*)(const CheckedSet& set, const Board& board, Collector& findings);

///@{
/// Nets and their pins.
void CheckComponentsOfPins(const CheckedSet& set, const Board& board, Collector& findings);
void CheckPinsOfNets(const CheckedSet& set, const Board& board, Collector& findings);
void CheckPinsInTwoNets(const CheckedSet& set, const Board& board, Collector& findings);
void CheckNetsOfTraces(const CheckedSet& set, const Board& board, Collector& findings);
void CheckNetsOfNeutral(const CheckedSet& set, const Board& board, Collector& findings);
void CheckNamesOfNets(const CheckedSet& set, const Board& board, Collector& findings);
///@}

///@{
/// Components and geometries.
void CheckNamesOfComponents(const CheckedSet& set, const Board& board, Collector& findings);
void CheckGeometriesOfComponents(const CheckedSet& set, const Board& board, Collector& findings);
void CheckPlacesOfComponents(const CheckedSet& set, const Board& board, Collector& findings);
void CheckPadstacks(const CheckedSet& set, const Board& board, Collector& findings);
void CheckNamesOfGeometries(const CheckedSet& set, const Board& board, Collector& findings);
///@}

///@{
/// Layers, copper and outlines.
void CheckNamesOfLayers(const CheckedSet& set, const Board& board, Collector& findings);
void CheckLayersInUse(const CheckedSet& set, const Board& board, Collector& findings);
void CheckVias(const CheckedSet& set, const Board& board, Collector& findings);
void CheckNetsOfFills(const CheckedSet& set, const Board& board, Collector& findings);
void CheckAreas(const CheckedSet& set, const Board& board, Collector& findings);
void CheckReading(const CheckedSet& set, const Board& board, Collector& findings);
///@}

///@{
/// Units and files.
void CheckUnitsAgree(const CheckedSet& set, const Board& board, Collector& findings);
void CheckUnitsAreKnown(const CheckedSet& set, const Board& board, Collector& findings);
void CheckFiles(const CheckedSet& set, const Board& board, Collector& findings);
///@}

}  // namespace kestrin
