#include "kestrin/board/placement.h"

#include <cmath>
#include <numbers>

#include "kestrin/board/for_each_record.h"
#include "kestrin/board/indexes.h"
#include "kestrin/board/millimetres.h"
#include "kestrin/neutral/component_model.h"

namespace kestrin {
namespace {

constexpr Turn kTopTurns[] = {{Sense::kCounterClockwise, 0}, {Sense::kClockwise, 0}};
constexpr Turn kBottomTurns[] = {{Sense::kCounterClockwise, 0},
                                 {Sense::kCounterClockwise, 180},
                                 {Sense::kClockwise, 0},
                                 {Sense::kClockwise, 180}};

/// Convention: value 7 of COMP is the side, 1 the top and 2 the bottom.
constexpr int kBottomSide = 2;

/// Limits the number of pins to a million plus four for each record. No real board has more.
constexpr std::size_t kPinsPerRecord = 4;
constexpr std::size_t kPinsAlways = 1'000'000;

/// Like factor * value, but zero times infinity is zero: under a right angle, an infinite x must not make the
/// other coordinate NaN.
double Product(double factor, double value) { return factor == 0.0 ? 0.0 : factor * value; }

}  // namespace

std::span<const Turn> TurnsOf(Side side) {
  return side == Side::kTop ? std::span<const Turn>(kTopTurns) : std::span<const Turn>(kBottomTurns);
}

int DegreesOf(int rotation, Turn turn) {
  const int degrees = rotation % 360;
  return ((turn.sense == Sense::kCounterClockwise ? degrees : -degrees) + turn.added + 360) % 360;
}

Rotations::Rotations() {
  for (std::size_t degrees = 0; degrees < 360; ++degrees) {
    const double radians = static_cast<double>(degrees) * std::numbers::pi / 180.0;
    cosines_[degrees] = degrees % 180 == 90 ? 0.0 : std::cos(radians);
    sines_[degrees] = degrees % 180 == 0 ? 0.0 : std::sin(radians);
  }
}

Point Transform::Apply(Point point) const {
  const double x = point.x * (isMirrored ? -unit : unit);
  const double y = point.y * unit;
  return {Rounded(origin.x + (Product(cosine, x) - Product(sine, y))),
          Rounded(origin.y + (Product(sine, x) + Product(cosine, y)))};
}

void ReadComponents(const CMComps* components, std::size_t records, const Footprints& footprints,
                    Board& board) {
  if (components == nullptr) return;
  std::size_t room = kPinsAlways + kPinsPerRecord * records;
  Index pins = 0;
  board.components.reserve(static_cast<std::size_t>(components->m_pInfos->GetSize()));
  ForEachRecord(components->m_pInfos, [&](const CMCompsInfo& record, Index index) {
    const tagMCOMPDATA& values = record.m_Data;
    Component& component = board.components.emplace_back();
    component.name = ComparedReference(values.m_sValue1.View());
    component.part = ComparedName(values.m_sValue2.View());
    component.symbol = ComparedName(values.m_sValue3.View());
    component.geometry = ComparedName(values.m_sValue4.View());
    component.position = PointAt(values.m_dValue5, values.m_dValue6, board.units.neutral);
    component.side = values.m_nValue7 == kBottomSide ? Side::kBottom : Side::kTop;
    component.rotation = values.m_nValue8;
    component.sourceIndex = index;
    component.transform.origin = component.position;
    component.transform.isMirrored = component.side == Side::kBottom;
    component.transform.unit = board.units.geometry;
    const Footprint* footprint = footprints.Find(component.geometry);
    if (footprint == nullptr) return;
    component.transform.unit = footprint->unit;
    component.geometryIndex = footprint->sourceIndex;
    if (footprint->pins.size() > room) {
      ++board.componentsWithoutRoom;
      return;
    }
    room -= footprint->pins.size();
    component.pins = {pins, ToIndex(footprint->pins.size())};
    pins = ToIndex(std::size_t{pins} + component.pins.count);
  });
  board.pins.reserve(pins);
  for (const Component& component : board.components) {
    if (component.pins.count == 0) continue;
    for (const FootprintPin& pin : footprints.Of(component).pins) {
      board.pins.push_back({.name = pin.name, .position = {}, .padstack = pin.padstack, .net = {}});
    }
  }
}

void PlaceComponents(const Footprints& footprints, Board& board) {
  const Rotations rotations;
  const Reading& reading = board.reading;
  const Turn top{reading.rotation, 0};
  const Turn bottom{reading.bottom, reading.bottomTurn};
  for (Component& component : board.components) {
    const Turn turn = component.side == Side::kTop ? top : bottom;
    rotations.Turn(component.transform, DegreesOf(component.rotation, turn));
    if (component.pins.count == 0) continue;
    Pin* pin = board.pins.data() + component.pins.first;
    for (const FootprintPin& onFootprint : footprints.Of(component).pins) {
      pin++->position = component.transform.Apply(onFootprint.position);
    }
  }
}

}  // namespace kestrin
