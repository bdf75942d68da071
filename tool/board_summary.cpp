#include "tool/board_summary.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "tool/board.h"
#include "tool/readable_text.h"
#include "tool/text_table.h"

namespace kestrin::tool {
namespace {

using Align = TextTable::Align;

std::string Millimetres(double length) {
  CString text;
  text.Format("%.3f", length);
  return text.GetString();
}

/// The totals of a net or of the whole board.
struct Totals {
  void Add(const Net& net) {
    pins += net.pins.count;
    tracks += net.tracks.count;
    vias += net.vias.count;
    areas += net.areas.size();
    open += net.open.size();
    for (const LayerLength& layer : net.lengths) length += layer.length;
  }

  double length = 0.0;
  std::size_t pins = 0;
  std::size_t tracks = 0;
  std::size_t vias = 0;
  std::size_t areas = 0;
  std::size_t open = 0;
};

Totals TotalsOf(const Net& net) {
  Totals totals;
  totals.Add(net);
  return totals;
}

std::vector<std::string> RowOf(std::string name, const Totals& totals) {
  return {std::move(name),
          Millimetres(totals.length),
          std::to_string(totals.pins),
          std::to_string(totals.tracks),
          std::to_string(totals.vias),
          std::to_string(totals.areas),
          std::to_string(totals.open)};
}

const char* NameOf(Sense sense) { return sense == Sense::kClockwise ? "clockwise" : "counter-clockwise"; }

void PrintReading(const Reading& reading) {
  std::printf("  rotation of components: %s on the top, %s on the bottom%s; ", NameOf(reading.rotation),
              NameOf(reading.bottom), reading.bottomTurn == 180 ? " plus 180 degrees" : "");
  std::puts(reading.isConfirmed ? "confirmed by the copper"
            : reading.isFitted  ? "the best fit, but not confirmed by the copper"
                                : "not confirmed by the copper");
  std::printf("  pins that touch copper of their net: %zu of %zu\n", reading.pinsTouching,
              reading.pinsCounted);
  if (reading.widthStep) {
    std::printf("  unit of track widths written with digits only: %g of the Traces file's unit\n",
                *reading.widthStep);
  } else {
    std::puts("  unit of track widths written with digits only: unknown");
  }
}

void PrintComponents(const Board& board) {
  const auto onTop = std::count_if(board.components.begin(), board.components.end(),
                                   [](const Component& component) { return component.side == Side::kTop; });
  const auto all = static_cast<std::ptrdiff_t>(board.components.size());
  std::printf("  components: %td, %td on the top and %td on the bottom\n", all, onTop, all - onTop);
}

void PrintLayers(const Board& board) {
  std::map<int, double> lengths;
  for (const Net& net : board.nets) {
    for (const LayerLength& layer : net.lengths) lengths[layer.layer] += layer.length;
  }
  std::puts("\nTrack length by layer");
  TextTable table({{"layer", Align::kRight}, {"name"}, {"mm", Align::kRight}});
  for (const auto& [number, length] : lengths) {
    const Layer* layer = board.FindLayer(number);
    table.AddRow(
        {std::to_string(number), layer == nullptr ? "" : ToTerminal(layer->name), Millimetres(length)});
  }
  table.Print();
}

void PrintNets(const Board& board) {
  constexpr std::size_t kShown = 10;
  std::vector<std::pair<const Net*, Totals>> nets;
  Totals all;
  for (const Net& net : board.nets) {
    nets.emplace_back(&net, TotalsOf(net));
    all.Add(net);
  }
  std::stable_sort(nets.begin(), nets.end(),
                   [](const auto& a, const auto& b) { return a.second.length > b.second.length; });
  const std::size_t shown = std::min(nets.size(), kShown);
  std::printf("\nLongest nets: %zu of %zu\n", shown, nets.size());
  TextTable table({{"net"},
                   {"track mm", Align::kRight},
                   {"pins", Align::kRight},
                   {"tracks", Align::kRight},
                   {"vias", Align::kRight},
                   {"areas", Align::kRight},
                   {"open", Align::kRight}});
  for (std::size_t i = 0; i < shown; ++i)
    table.AddRow(RowOf(ToTerminal(nets[i].first->name), nets[i].second));
  table.AddRow(RowOf("all nets", all));
  table.Print();
}

}  // namespace

void PrintBoardSummary(const Board& board) {
  std::printf("\nBoard in millimetres: %s\n",
              board.name.empty() ? "no name" : ToTerminal(board.name).c_str());
  PrintReading(board.reading);
  PrintComponents(board);
  PrintLayers(board);
  PrintNets(board);
}

}  // namespace kestrin::tool
