#include <algorithm>
#include <ostream>
#include <random>

#include "support/generators/board/board_plan.h"

namespace kestrin::test {
namespace {

/// Routes the connections of a plan, without regard for what is in the way.
class Router {
 public:
  Router(std::ostream& out, const BoardPlan& plan) : out_(out), plan_(plan), legsLeft_(plan.legs) {
    for (const PlannedNet& net : plan.nets) connectionsLeft_ += net.pins - 1;
  }

  void Write() {
    out_ << "# Application board layout export, generated\nUNITS MM\nST " << Decimals(plan_.size, " ") << " "
         << BoardPlan::kLayers << " 2\n";
    for (std::size_t i = 0; i < plan_.components.size(); ++i)
      out_ << "XRF " << i + 1 << " " << plan_.components[i].reference << "\n";
    for (std::size_t i = 0; i < plan_.nets.size(); ++i) WriteNet(i);
    WritePlane();
  }

 private:
  void WriteNet(std::size_t number) {
    out_ << "# NET '" << NameOfNet(number) << "'\n";
    const PlannedNet& net = plan_.nets[number];
    for (std::size_t i = 1; i < net.pins; ++i) {
      const PlannedPin& from = plan_.pins[net.firstPin + i - 1];
      const PlannedPin& to = plan_.pins[net.firstPin + i];
      const std::uint64_t legs = std::max<std::uint64_t>(legsLeft_ / connectionsLeft_, 4);
      --connectionsLeft_;
      legsLeft_ -= std::min(legs, legsLeft_);
      random_() % 100 == 0 ? WriteOpen(i, from.place, to.place) : WriteWire(i, from, to, legs);
    }
  }

  /// From one pin to the next on an inner layer, which a via at each end reaches.
  void WriteWire(std::size_t number, const PlannedPin& from, const PlannedPin& to, std::uint64_t legs) {
    const int inner = 2 + static_cast<int>(random_() % (BoardPlan::kLayers - 2));
    out_ << "WIR " << number << " " << Decimals(from.place, " ") << " " << Decimals(to.place, " ") << "\n";
    WritePoint(from.place, LayerOf(from), "25");
    const auto points = static_cast<Length>(legs) - 1;  // between the two pins
    for (Length i = 1; i <= points; ++i) {
      const Point point = Between(from.place, to.place, i, points + 1);
      if (i == 1) {
        WritePoint(point, LayerOf(from), "VIA_T06");
      } else if (i == points) {
        WritePoint(point, inner, "VIA_T06");
      } else {
        WritePoint(point, inner, "25");
      }
    }
    WritePoint(to.place, LayerOf(to), "25");
  }

  void WriteOpen(std::size_t number, Point from, Point to) {
    out_ << "INC " << number << " " << Decimals(from, " ") << " 1 " << Decimals(to, " ") << " 1\n";
    WritePoint(from, 0, "0");
    WritePoint(to, 0, "0");
  }

  void WritePoint(Point point, int layer, std::string_view widthOrVia) {
    out_ << "SEG " << Decimals(point, " ") << " " << layer << " " << widthOrVia << "\n";
  }

  /// A point on the way, a little aside of the straight line.
  Point Between(Point from, Point to, Length step, Length steps) {
    const auto aside = [&] { return static_cast<Length>(random_() % 8'000) - 4'000; };
    return {from.x + (to.x - from.x) * step / steps + aside(),
            from.y + (to.y - from.y) * step / steps + aside()};
  }

  [[nodiscard]] int LayerOf(const PlannedPin& pin) const {
    return plan_.components[pin.component].isOnBottom ? BoardPlan::kLayers : 1;
  }

  /// A plane with a hole at every component.
  void WritePlane() {
    out_ << "FIL 'GND' 'SIGNAL_2' SOLID 1 2 0 1 0 0.25 0 4 0 STYLE FULL CROSS 1\n";
    WriteRectangle({}, plan_.size);
    out_ << "ARE 'GND' 'SIGNAL_2' SOLID 1 0.25 8\n";
    WriteRectangle({}, plan_.size);
    for (std::size_t i = 0; i < plan_.components.size(); ++i) {
      const Point centre = plan_.components[i].origin;
      const Length half = kMillimetre / 2;
      out_ << "ISL " << i + 1 << "\n";
      WriteRectangle({centre.x - half, centre.y - half}, {centre.x + half, centre.y + half});
    }
  }

  void WriteRectangle(Point low, Point high) {
    for (const Point corner : {low, Point{high.x, low.y}, high, Point{low.x, high.y}})
      out_ << "VER " << Decimals(corner, " ") << "\n";
  }

  std::ostream& out_;
  const BoardPlan& plan_;
  std::uint64_t legsLeft_;
  std::uint64_t connectionsLeft_ = 0;
  std::mt19937_64 random_{2};  // the same file every time
};

}  // namespace

void WriteTraces(std::ostream& out, const BoardPlan& plan) { Router(out, plan).Write(); }

}  // namespace kestrin::test
