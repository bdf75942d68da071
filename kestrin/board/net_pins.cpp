#include "kestrin/board/net_pins.h"

#include <algorithm>
#include <deque>
#include <iterator>
#include <utility>

#include "kestrin/board/for_each_record.h"
#include "kestrin/board/names.h"
#include "kestrin/board/references.h"
#include "kestrin/neutral/net_model.h"

namespace kestrin {
namespace {

/// Finds the pins that nets name, and assigns each to the first net that names it.
class PinAssignment {
 public:
  PinAssignment(const Footprints& footprints, Board& board)
      : board_(board), components_(board.components.size()), nets_(board.pins.size(), kNoNet) {
    parts_.reserve(board.components.size());
    for (Index i = 0; i < board.components.size(); ++i) {
      const Component& component = board.components[i];
      components_.Add(component.name, i);
      const bool hasPins = component.pins.count != 0;
      parts_.push_back({hasPins ? &footprints.Of(component) : nullptr, component.pins.first});
    }
  }

  /// Completes a pin that a net names, and assigns it to the net. Returns false if a net already has it.
  [[nodiscard]] bool Assign(PinText text, Index net, NetPin& pin) {
    if (text.hasReference) pin.component = components_.Find(text.Reference());
    if (pin.component) {
      const Part& part = parts_[*pin.component];
      const auto pad = part.footprint == nullptr ? std::nullopt : part.footprint->pinsByName.Find(text.Pin());
      if (pad) pin.pin = part.firstPin + *pad;
    }
    pin.name = std::move(text.text);
    return pin.pin ? Take(*pin.pin, net) : TakeMissing(pin.name);
  }

  /// Sets the nets of the components' pins. Pins that share a name are pads of one pin.
  void Finish() {
    for (const Part& part : parts_) {
      if (part.footprint == nullptr) continue;
      const std::vector<FootprintPin>& pins = part.footprint->pins;
      for (Index i = 0; i < pins.size(); ++i) {
        const Index net = nets_[part.firstPin + i];
        if (net == kNoNet) continue;
        for (Index pad = i; pad < pins.size(); pad = pins[pad].nextOfName)
          board_.pins[part.firstPin + pad].net = net;
      }
    }
  }

 private:
  /// The data of a component that is needed here, kept compact because nets access components in any order.
  struct Part {
    const Footprint* footprint;  // null for a component without pins
    Index firstPin;              // in Board::pins
  };

  /// Assigns a pin to a net. Returns false if a net already has it.
  bool Take(Index pin, Index net) {
    if (nets_[pin] != kNoNet) return false;
    nets_[pin] = net;
    return true;
  }

  /// The same for a pin that is not on the board.
  bool TakeMissing(const std::string& text) {
    const std::string& name = missing_.emplace_back(text);
    const Index count = ToIndex(missing_.size());
    return missingByName_.Add(name, count) == count;
  }

  static constexpr Index kNoNet = static_cast<Index>(-1);

  Board& board_;
  NameIndex components_;
  std::vector<Part> parts_;  // for each component
  // For each of Board::pins. Nets name pins in any order, which is faster in a compact list.
  std::vector<Index> nets_;
  std::deque<std::string> missing_;
  NameIndex missingByName_;
};

/// The pins that a net record added to its net.
struct PinRun {
  Index net;
  Range pins;  // in Board::netPins
};

/// Sets the pins of nets. Brings the pins into the order of the nets, which differs from that of the file if
/// several records have the same name.
void GroupByNet(std::vector<PinRun> runs, Board& board) {
  const auto isBefore = [](const PinRun& a, const PinRun& b) { return a.net < b.net; };
  if (!std::is_sorted(runs.begin(), runs.end(), isBefore)) {
    std::stable_sort(runs.begin(), runs.end(), isBefore);
    std::vector<NetPin> grouped;
    grouped.reserve(board.netPins.size());
    for (PinRun& run : runs) {
      const auto first = std::make_move_iterator(board.netPins.begin() + run.pins.first);
      run.pins.first = ToIndex(grouped.size());
      grouped.insert(grouped.end(), first, first + run.pins.count);
    }
    board.netPins = std::move(grouped);
  }
  for (const PinRun& run : runs) {
    Range& pins = board.nets[run.net].pins;
    if (pins.count == 0) pins.first = run.pins.first;
    pins.count += run.pins.count;
  }
}

}  // namespace

void ReadNetPins(const CMNetList* records, const std::vector<Index>& netOf, const Footprints& footprints,
                 Board& board) {
  if (records == nullptr) return;
  std::size_t pins = 0;
  ForEachRecord(records->m_pNets, [&](const CMNetInfo& record, Index) {
    pins += static_cast<std::size_t>(record.m_pPins->GetSize());
  });
  board.netPins.reserve(pins);
  PinTexts texts(*records, board.components);
  PinAssignment assignment(footprints, board);
  std::vector<PinRun> runs;
  ForEachRecord(records->m_pNets, [&](const CMNetInfo& record, Index netRecord) {
    const Index net = netOf[netRecord];
    const Index first = ToIndex(board.netPins.size());
    ForEachRecord(record.m_pPins, [&](const CMRefPin& pin, Index pinRecord) {
      NetPin& added = board.netPins.emplace_back();
      added.netRecord = netRecord;
      added.pinRecord = pinRecord;
      if (assignment.Assign(texts.Next(pin), net, added)) return;
      board.repeatedPins.push_back(std::move(added));
      board.netPins.pop_back();
    });
    runs.push_back({net, {first, ToIndex(board.netPins.size()) - first}});
  });
  assignment.Finish();
  GroupByNet(std::move(runs), board);
}

}  // namespace kestrin
