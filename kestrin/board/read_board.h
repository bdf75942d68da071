#pragma once

/// @file
/// Making a board from the models of an import.

#include <optional>

#include "kestrin/base/export.h"
#include "kestrin/board/board.h"

namespace kestrin {

class CMComps;
class CMGeom;
class CMNetList;
class CMTech;
class CMTraces;

/// The roots to read a board from. Any may be null: the board then lacks what its file would say.
struct BoardModels {
  ///@{
  /// A root, or null.
  const CMTech* tech = nullptr;
  const CMComps* components = nullptr;
  const CMNetList* nets = nullptr;
  const CMGeom* geometry = nullptr;
  const CMTraces* traces = nullptr;
  ///@}
};

/// What is fitted to the data unless it is said here.
struct BoardOptions {
  std::optional<Sense> rotation;  ///< which way components on the top turn
  std::optional<Sense> bottom;    ///< which way components on the bottom turn
  std::optional<int>
      bottomTurn;  ///< added to the angle of components on the bottom; 180, all else counts as 0
  /// What widths of digits alone count, in the Traces file's unit; all but a positive number counts as not
  /// said.
  std::optional<double> widthStep;
};

/// Reads the board that the models describe together.
///
/// The models are only read and may go afterwards; several threads may read the same. Equal models give equal
/// boards, whatever the locale. Time and memory are in proportion to the models, whatever they hold. Nothing
/// is an error: what names nothing is left open. Throws std::bad_alloc only.
///
/// The placement of components is fitted: of eight readings (Reading: two senses on the top, two on the
/// bottom, a turn of 0 or 180 degrees there) that one is chosen under which most pins touch copper of their
/// own net, the first of equals. A pin touches within half the width of a track, at least 0.001 mm, at a via,
/// and in an area of its net outside its holes. The width step is fitted: it is the one of 1, 0.1, 0.01,
/// 0.001 and 0.0001 that puts the median width between 0.075 and 0.75 mm.
///
/// A net whose copper lies so thickly about its pins that looking at all of it would take much longer than
/// the import is not looked at to its end: then pinsTouching may be less than there are.
[[nodiscard]] KESTRIN_EXPORT Board ReadBoard(const BoardModels& models, const BoardOptions& options = {});

}  // namespace kestrin
