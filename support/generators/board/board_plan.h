#pragma once

/// @file
/// A board of any size, planned before its four files are written, so that they agree: pins lie where tracks
/// begin, nets and references have the same names everywhere, and every layer and via exists.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrin::test {

/// A length in ten-thousandths of a millimetre.
using Length = std::int64_t;
inline constexpr Length kMillimetre = 10'000;

struct Point {
  Length x = 0;
  Length y = 0;
};

/// A kind of component: its pins stand in two rows, or in one where the rows have no distance.
struct Package {
  std::string_view name;
  std::string_view letter;  ///< of the references
  int pins;
  Length pitch;
  Length rows;     ///< the distance of the two rows
  Point halfBody;  ///< from the centre to a corner of the placement outline
  std::string_view padstack;
  bool isThrough;
};

[[nodiscard]] std::span<const Package> Packages();

/// Where pin number, from 0, lies on its package.
[[nodiscard]] Point PinOf(const Package& package, int number);

struct PlannedComponent {
  std::string reference;
  const Package* package;
  Point origin;
  int degrees;
  bool isOnBottom;
};

struct PlannedPin {
  std::size_t component;
  int number;  ///< from 0
  Point place;
};

/// A net is a row of pins, each connected with the next.
struct PlannedNet {
  std::size_t firstPin;
  std::size_t pins;
};

struct BoardPlan {
  static constexpr int kLayers = 8;

  Point size;
  std::vector<PlannedComponent> components;
  std::vector<PlannedPin> pins;  ///< in the order of the nets
  std::vector<PlannedNet> nets;
  std::uint64_t legs;  ///< to be spread over the connections
};

/// Plans a board whose tracks have about so many legs; the same board for the same number.
[[nodiscard]] BoardPlan PlanBoard(std::uint64_t legs);

[[nodiscard]] std::string NameOfNet(std::size_t number);
[[nodiscard]] std::string NameOfPin(const BoardPlan& plan, const PlannedPin& pin);

/// "12.5000".
[[nodiscard]] std::string Decimal(Length length);
[[nodiscard]] std::string Decimals(Point point, std::string_view separator);

///@{
/// Write the four files of a board.
void WriteTech(std::ostream& out, const BoardPlan& plan);
void WriteNeutral(std::ostream& out, const BoardPlan& plan);
void WriteGeometry(std::ostream& out, const BoardPlan& plan);
void WriteTraces(std::ostream& out, const BoardPlan& plan);
///@}

}  // namespace kestrin::test
