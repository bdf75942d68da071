#pragma once

/// @file
/// The copper and open connections of nets.
///
/// Conventions: the SEG records of a WIR or ANT are the points of a polyline. Value 3 is the layer of the leg
/// that begins at the point, since it changes at vias. Value 4 is a width if it is a number, else the name of
/// a via.

#include <span>
#include <vector>

#include "kestrin/board/board.h"
#include "kestrin/board/names.h"
#include "kestrin/board/vertices.h"

namespace kestrin {

class CMTraces;
struct BoardModels;
struct CopperSurvey;

/// Adds the kinds of vias to the board: those of the Geometry file, then those that only via rules name.
/// Returns an index of their names, which refers to the models.
[[nodiscard]] NameIndex ReadViaPadstacks(const BoardModels& models, Board& board);

/// The tracks and vias of consecutive nets. Indexes and ranges refer to these lists.
struct CopperLists {
  /// Reserves room for a share of the copper.
  CopperLists(const CopperSurvey& survey, double share);

  std::vector<Track> tracks;
  std::vector<Point> points;
  std::vector<Via> vias;
};

/// Reads the copper and the open connections of nets. Different nets may be read at the same time.
class CopperReader {
 public:
  /// The traces may be null if no net has headers. The units and the width step of the board must be known.
  CopperReader(const CMTraces* traces, const NameIndex& viaPadstacks, const Board& board);

  void Read(std::span<Net> nets, CopperLists& lists) const;

 private:
  const CMTraces* traces_;
  double unit_;
  VertexReader vertices_;
};

/// Adds the copper of nets to the board, which has that of all nets before them.
void AddCopper(CopperLists lists, std::span<Net> nets, Board& board);

/// Adds the areas of fills to their nets. netOf is the net of each fill. The traces may be null.
void ReadAreas(const CMTraces* traces, const std::vector<Index>& netOf, Board& board);

}  // namespace kestrin
