#pragma once

/// @file
/// The two boards of a comparison.

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "kestrin/board/read_board.h"
#include "tool/diff/difference.h"

namespace kestrin::tool {

/// A board with the models that it was read from.
struct BoardSide {
  BoardModels models;
  Board board;
};

/// Two boards. The second one is moved so that a shift of the whole board is no difference.
struct Sides {
  BoardSide before;
  BoardSide after;
  Point shift;  ///< taken out of the coordinates of the second board

  /// The names that nets of the first board have on the second, if they were renamed.
  std::map<std::string, std::string, std::less<>> renamedNets;

  /// The nets that only one of the boards has. What belongs to them is not compared.
  std::set<std::string, std::less<>> onlyBefore;
  std::set<std::string, std::less<>> onlyAfter;

  /// The name of a net of the first board on the second.
  [[nodiscard]] std::string_view NameAfter(std::string_view net) const {
    const auto found = renamedNets.find(net);
    return found == renamedNets.end() ? net : std::string_view(found->second);
  }
};

///@{
/// Appends the changes of one kind or of related kinds. CompareNets comes before those that need to know
/// which nets were renamed.
void CompareBoards(const Sides& sides, Difference& difference);
void CompareGeometries(const Sides& sides, Difference& difference);
void CompareComponents(const Sides& sides, Difference& difference);
void CompareNets(Sides& sides, Difference& difference);
void ComparePins(const Sides& sides, Difference& difference);
void CompareWires(const Sides& sides, Difference& difference);
void CompareFills(const Sides& sides, Difference& difference);
///@}

}  // namespace kestrin::tool
