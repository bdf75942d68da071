#pragma once

/// @file
/// Making a board from the models of an import.

#include <optional>

#include "kestrin/base/export.h"
#include "kestrin/board/board.h"

namespace kestrin {

class CPC_KESTRIN_GET;
class CMComps;
class CMGeom;
class CMNetList;
class CMTech;
class CMTraces;

/// The roots to read a board from. Any may be null: the board then lacks the contents of that file.
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

/// The models of a session. A null root is one that the session has not read.
[[nodiscard]] KESTRIN_EXPORT BoardModels ModelsOf(const CPC_KESTRIN_GET& session);

/// How to read a board. What you do not set is fitted to the data.
struct BoardOptions {
  std::optional<Sense> rotation;  ///< how components on the top rotate
  std::optional<Sense> bottom;    ///< how components on the bottom rotate
  /// Degrees to add to the angle of components on the bottom: 180 or 0. Other numbers count as 0.
  std::optional<int> bottomTurn;
  /// The unit of widths that are written with digits only, in units of the Traces file. Ignored unless it is
  /// positive and finite.
  std::optional<double> widthStep;
};

/// Reads the board that the models describe together.
///
///     const kestrin::Board board = kestrin::ReadBoard(kestrin::ModelsOf(session));
///
/// The models are not changed and not needed afterwards; several threads may read them at once. Equal models
/// make equal boards, in any locale. Time and memory are in proportion to the size of the models, whatever
/// they contain. There are no errors: a name that refers to nothing leaves the reference empty. Throws only
/// std::bad_alloc. A large board is read by two threads, if the system lets one start.
///
/// How is placement fitted? There are eight readings: two senses of rotation on the top, two on the bottom,
/// and a turn of 0 or 180 degrees there. The one with the most pins that touch copper of their own net is
/// chosen; of equals, the first. A pin touches a track within half its width, but at least 0.001 mm; a via
/// within 0.001 mm; and an area if it is inside the outline and outside the holes.
///
/// How is the width step fitted? It is the one of 1, 0.1, 0.01, 0.001 and 0.0001 with which the median width
/// is between 0.075 and 0.75 mm.
///
/// The search is cut short for a net with so much copper near its pins that it would take much longer than
/// the import. Reading::pinsTouching may then be too low.
[[nodiscard]] KESTRIN_EXPORT Board ReadBoard(const BoardModels& models, const BoardOptions& options = {});

}  // namespace kestrin
