#include "support/generators/board/board_plan.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <random>

namespace kestrin::test {
namespace {

constexpr std::array kPackages{
    Package{"CHIP_0603", "R", 2, kMillimetre, 16'000, {13'000, 8'000}, "SMD_08X09", false},
    Package{"SO8", "U", 8, 12'700, 54'000, {40'000, 30'000}, "SMD_15X06", false},
    Package{"QFP48", "IC", 48, 5'000, 90'000, {60'000, 70'000}, "SMD_15X03", false},
    Package{"HDR20", "J", 20, 25'400, 25'400, {30'000, 130'000}, "THRU_16D10", true},
};

constexpr Length kCell = 30 * kMillimetre;  // larger than every package, whatever its rotation

/// The packages of the components, in a mix that small boards have too.
constexpr std::array kMix{0, 1, 0, 2, 0, 1, 0, 0, 2, 0, 3, 0, 1, 0, 0, 2};

Point Turned(Point point, int degrees) {
  const double angle = degrees * std::numbers::pi / 180.0;
  const double cosine = std::cos(angle);
  const double sine = std::sin(angle);
  const auto x = static_cast<double>(point.x);
  const auto y = static_cast<double>(point.y);
  return {std::llround(x * cosine - y * sine), std::llround(x * sine + y * cosine)};
}

/// As a board is read: a part on the bottom is mirrored in x, then turned.
Point PlaceOf(const PlannedComponent& component, int pin) {
  Point point = PinOf(*component.package, pin);
  if (component.isOnBottom) point.x = -point.x;
  const Point turned = Turned(point, component.degrees);
  return {component.origin.x + turned.x, component.origin.y + turned.y};
}

/// Components in the cells of a square, until they have enough pins.
void PlaceComponents(BoardPlan& plan, std::uint64_t pins, std::mt19937_64& random) {
  constexpr std::array kDegrees{0, 90, 180, 270, 0, 90, 45, 30};
  std::uint64_t placed = 0;
  while (placed < pins) {
    const std::size_t number = plan.components.size();
    const Package& package = kPackages[static_cast<std::size_t>(kMix[number % kMix.size()])];
    plan.components.push_back({.reference = std::string(package.letter) + "_" + std::to_string(number + 1),
                               .package = &package,
                               .origin = {},
                               .degrees = kDegrees[random() % kDegrees.size()],
                               .isOnBottom = !package.isThrough && random() % 4 == 0});
    placed += static_cast<std::uint64_t>(package.pins);
  }
  const auto columns = static_cast<Length>(std::ceil(std::sqrt(static_cast<double>(plan.components.size()))));
  plan.size = {columns * kCell, columns * kCell};
  for (std::size_t i = 0; i < plan.components.size(); ++i) {
    const auto cell = static_cast<Length>(i);
    plan.components[i].origin = {cell % columns * kCell + kCell / 2, cell / columns * kCell + kCell / 2};
  }
}

/// Most nets have a few pins of neighbours; some have hundreds.
void MakeNets(BoardPlan& plan, std::mt19937_64& random) {
  constexpr std::size_t kNear = 64;
  for (std::size_t i = 0; i < plan.components.size(); ++i) {
    for (int pin = 0; pin < plan.components[i].package->pins; ++pin) {
      plan.pins.push_back({i, pin, PlaceOf(plan.components[i], pin)});
    }
  }
  for (std::size_t i = 0; i < plan.pins.size(); ++i) {
    const std::size_t other = std::min(i + random() % kNear, plan.pins.size() - 1);
    std::swap(plan.pins[i], plan.pins[other]);
  }
  for (std::size_t first = 0; first < plan.pins.size();) {
    const std::size_t wanted = plan.nets.size() % 100 == 99 ? 200 : 2 + random() % 4;
    const std::size_t count = std::min<std::size_t>(wanted, plan.pins.size() - first);
    plan.nets.push_back({first, count});
    first += count;
  }
}

}  // namespace

std::span<const Package> Packages() { return kPackages; }

Point PinOf(const Package& package, int number) {
  const int inRow = package.pins / 2;
  const bool isLeft = number < inRow;
  const int place = isLeft ? number : package.pins - 1 - number;  // counter-clockwise round the body
  return {isLeft ? -package.rows / 2 : package.rows / 2, package.pitch * (inRow - 1 - 2 * place) / 2};
}

BoardPlan PlanBoard(std::uint64_t legs) {
  constexpr std::uint64_t kLegsOfPin = 8;
  BoardPlan plan{.size = {}, .components = {}, .pins = {}, .nets = {}, .legs = legs};
  std::mt19937_64 random{1};  // the same board every time
  PlaceComponents(plan, std::max<std::uint64_t>(legs / kLegsOfPin, 16), random);
  MakeNets(plan, random);
  return plan;
}

std::string NameOfNet(std::size_t number) { return number == 0 ? "GND" : "N$" + std::to_string(number); }

std::string NameOfPin(const BoardPlan& plan, const PlannedPin& pin) {
  return plan.components[pin.component].reference + "-" + std::to_string(pin.number + 1);
}

std::string Decimal(Length length) {
  const Length magnitude = std::abs(length);
  const std::string fraction = std::to_string(kMillimetre + magnitude % kMillimetre);
  return (length < 0 ? "-" : "") + std::to_string(magnitude / kMillimetre) + "." + fraction.substr(1);
}

std::string Decimals(Point point, std::string_view separator) {
  return Decimal(point.x).append(separator).append(Decimal(point.y));
}

}  // namespace kestrin::test
