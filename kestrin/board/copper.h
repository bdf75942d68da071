#pragma once

/// @file
/// The copper and open connections of nets.
///
/// Conventions: the SEG records of a WIR or ANT are the points of a polyline. Value 3 is the layer of the leg
/// that begins at the point, since it changes at vias. Value 4 is a width if it is a number, else the name of
/// a via.

#include "kestrin/board/board.h"
#include "kestrin/board/names.h"
#include "kestrin/board/nets.h"

namespace kestrin {

class CMTraces;
struct BoardModels;
struct CopperSurvey;

/// Adds the kinds of vias to the board: those of the Geometry file, then those that only via rules name.
/// Returns an index of their names, which refers to the models.
[[nodiscard]] NameIndex ReadViaPadstacks(const BoardModels& models, Board& board);

/// Adds tracks, vias and open connections to the nets. Widths that are written with digits only count in the
/// width step of the board's reading. The survey must be of the same records.
void ReadCopper(const CMTraces& traces, const CopperSurvey& survey, const NameIndex& viaPadstacks,
                NetTable& table, Board& board);

/// Adds the areas of fills to their nets.
void ReadAreas(const CMTraces& traces, NetTable& table, Board& board);

}  // namespace kestrin
