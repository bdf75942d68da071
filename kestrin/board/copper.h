#pragma once

/// @file
/// The copper and the open connections of nets. Convention: the SEG records of WIR and ANT are the points of
/// polylines; value 3 is the layer of the leg that begins there, because it changes where a via is; value 4
/// is a width or a via, because it is a number or the name of one.

#include "kestrin/board/board.h"
#include "kestrin/board/names.h"
#include "kestrin/board/nets.h"

namespace kestrin {

class CMTraces;
struct BoardModels;

/// Gives the board its kinds of vias: those of the Geometry file, then those that only via rules name.
/// Returns them by name; the names are the models'.
[[nodiscard]] NameIndex ReadViaPadstacks(const BoardModels& models, Board& board);

/// Gives the nets of the net headers their tracks, vias and open connections. Widths of digits alone count as
/// the board's reading says.
void ReadCopper(const CMTraces& traces, const NameIndex& viaPadstacks, NetTable& table, Board& board);

/// Gives the nets of the fills their areas.
void ReadAreas(const CMTraces& traces, NetTable& table, Board& board);

}  // namespace kestrin
