#include "kestrin/board/nets.h"

#include <deque>
#include <utility>

#include "kestrin/board/records.h"
#include "kestrin/board/references.h"
#include "kestrin/neutral/net_model.h"

namespace kestrin {
namespace {

/// Assigns each pin to the first net that names it.
class PinAssignment {
 public:
  PinAssignment(const Footprints& footprints, Board& board)
      : board_(board), components_(board.components.size()) {
    std::size_t pins = 0;
    parts_.reserve(board.components.size());
    for (std::size_t i = 0; i < board.components.size(); ++i) {
      const Component& component = board.components[i];
      components_.Add(component.name, i);
      parts_.push_back({component.pins.empty() ? nullptr : &footprints.Of(component), pins});
      pins += component.pins.size();
    }
    nets_.resize(pins, kNoNet);
  }

  /// Adds the pin to a net unless a net already has it. The pin's netRecord and pinRecord must be set.
  void Assign(PinText text, NetPin pin, std::size_t net) {
    Find(text, pin);
    if (!Take(text, pin, net)) return;
    pin.name = std::move(text.text);
    board_.nets[net].pins.push_back(std::move(pin));
  }

  /// Sets the nets of the components' pins. Pins that share a name are pads of one pin.
  void Finish() {
    for (std::size_t c = 0; c < board_.components.size(); ++c) {
      std::vector<Pin>& pins = board_.components[c].pins;
      for (std::size_t p = 0; p < pins.size(); ++p) {
        const std::size_t net = nets_[parts_[c].firstPin + p];
        if (net == kNoNet) continue;
        const std::vector<FootprintPin>& onFootprint = parts_[c].footprint->pins;
        for (std::size_t pad = p; pad < pins.size(); pad = onFootprint[pad].nextOfName) pins[pad].net = net;
      }
    }
  }

 private:
  static constexpr std::size_t kNoNet = static_cast<std::size_t>(-1);

  struct Part {
    const Footprint* footprint;  // null for a component without pins
    std::size_t firstPin;        // in nets_
  };

  void Find(const PinText& text, NetPin& pin) const {
    if (text.hasReference) pin.component = components_.Find(text.Reference());
    if (!pin.component) return;
    const Footprint* footprint = parts_[*pin.component].footprint;
    if (footprint != nullptr) pin.pin = footprint->pinsByName.Find(text.Pin());
  }

  /// Marks the pin as taken by a net. Returns false if a net already has it.
  bool Take(const PinText& text, const NetPin& pin, std::size_t net) {
    if (pin.pin) {
      std::size_t& taken = nets_[parts_[*pin.component].firstPin + *pin.pin];
      if (taken != kNoNet) return false;
      taken = net;
      return true;
    }
    const std::string& name = notOnBoard_.emplace_back(text.text);
    return namesNotOnBoard_.Add(name, notOnBoard_.size()) == notOnBoard_.size();
  }

  Board& board_;
  NameIndex components_;
  std::vector<Part> parts_;        // for each component
  std::vector<std::size_t> nets_;  // of each pin on the board
  std::deque<std::string> notOnBoard_;
  NameIndex namesNotOnBoard_;
};

}  // namespace

NetTable::NetTable(std::size_t names, Board& board) : board_(board), byName_(names) {
  board.nets.reserve(names);
}

std::size_t NetTable::IndexOf(std::string_view name) {
  const std::string_view compared = ComparedName(name);
  const std::size_t next = board_.nets.size();
  const std::size_t index = byName_.Add(compared, next);
  if (index == next) board_.nets.emplace_back().name = compared;
  return index;
}

void ReadNets(const CMNetList* nets, const Footprints& footprints, NetTable& table, Board& board) {
  if (nets == nullptr) return;
  PinTexts texts(*nets, board.components);
  PinAssignment assignment(footprints, board);
  ForEachRecord(nets->m_pNets, [&](const CMNetInfo& record, std::size_t netRecord) {
    const std::size_t net = table.IndexOf(record.m_sName.View());
    if (board.nets[net].netRecords.empty()) {
      board.nets[net].pins.reserve(static_cast<std::size_t>(record.m_pPins->GetSize()));
    }
    board.nets[net].netRecords.push_back(netRecord);
    ForEachRecord(record.m_pPins, [&](const CMRefPin& pin, std::size_t pinRecord) {
      NetPin made;
      made.netRecord = netRecord;
      made.pinRecord = pinRecord;
      assignment.Assign(texts.Next(pin), std::move(made), net);
    });
  });
  assignment.Finish();
}

}  // namespace kestrin
