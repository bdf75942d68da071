#include "kestrin/board/findings/checks.h"
#include "kestrin/board/names.h"
#include "kestrin/geometry/geometry_model.h"
#include "kestrin/neutral/net_model.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {
namespace {

const CMNetInfo& NetRecord(const CheckedSet& set, Index index) {
  return *set.models.nets->m_pNets->GetAt(index);
}

const CMRefPin& PinRecord(const CheckedSet& set, const NetPin& pin) {
  return *NetRecord(set, pin.netRecord).m_pPins->GetAt(pin.pinRecord);
}

FindingPlace PlaceOf(const CheckedSet& set, const NetPin& pin, const Collector& findings) {
  return findings.PlaceOf(ImportFile::kNeutral, &PinRecord(set, pin));
}

FindingPlace PlaceOfNet(const CheckedSet& set, Index netRecord, const Collector& findings) {
  return findings.PlaceOf(ImportFile::kNeutral, &NetRecord(set, netRecord));
}

FindingPlace PlaceOfHeader(const CheckedSet& set, Index header, const Collector& findings) {
  return findings.PlaceOf(ImportFile::kTraces, set.models.traces->m_pNetArray->GetAt(header));
}

/// Whether the board has the pins of a component's geometry.
bool HasPinsOfGeometry(const CheckedSet& set, const Component& component) {
  if (!component.geometryIndex) return false;
  return component.pins.count != 0 ||
         set.models.geometry->m_pComponents->GetAt(*component.geometryIndex)->m_pPinDefs->IsEmpty();
}

/// Calls an action with every pin and its net.
template <class Action>
void ForEachPin(const Board& board, Action action) {
  for (const Net& net : board.nets) {
    for (const NetPin& pin : board.PinsOf(net)) action(net, pin);
  }
}

}  // namespace

void CheckComponentsOfPins(const CheckedSet& set, const Board& board, Collector& findings) {
  NameMatches matches(FindingCode::kUnknownComponent, "references of pins", "a component");
  ForEachPin(board, [&](const Net& net, const NetPin& pin) {
    if (pin.component) return matches.Match(board.components[*pin.component].name);
    const std::string_view reference = ComparedName(PinRecord(set, pin).m_sRef.View());
    matches.Miss(reference, [&] {
      const std::string why = reference.empty()
                                  ? ", which names no component"
                                  : ", but there is no component " + Quoted(ComparedReference(reference));
      return Finding{.message = "net " + Quoted(net.name) + " has pin " + Quoted(pin.name) + why,
                     .at = {PlaceOf(set, pin, findings)}};
    });
  });
  std::move(matches).Finish(findings);
}

void CheckPinsOfNets(const CheckedSet& set, const Board& board, Collector& findings) {
  NameMatches matches(FindingCode::kUnknownPin, "pins of nets", "a pin of their component's geometry");
  ForEachPin(board, [&](const Net& net, const NetPin& pin) {
    if (pin.pin) return matches.Match(pin.name);
    if (!pin.component || !HasPinsOfGeometry(set, board.components[*pin.component])) return;
    matches.Miss(pin.name, [&] {
      const std::string& geometry = board.components[*pin.component].geometry;
      return Finding{.message = "net " + Quoted(net.name) + " has pin " + Quoted(pin.name) +
                                ", but geometry " + Quoted(geometry) + " has no such pin",
                     .at = {PlaceOf(set, pin, findings)}};
    });
  });
  std::move(matches).Finish(findings);
}

void CheckPinsInTwoNets(const CheckedSet& set, const Board& board, Collector& findings) {
  if (board.repeatedPins.empty()) return;
  NameIndex byName(board.netPins.size());
  for (Index i = 0; i < board.netPins.size(); ++i) byName.Add(board.netPins[i].name, i);
  for (const NetPin& pin : board.repeatedPins) {
    const auto found = byName.Find(pin.name);
    if (!found) continue;
    const NetPin& first = board.netPins[*found];
    const std::string_view firstNet = ComparedName(NetRecord(set, first.netRecord).m_sName.View());
    const std::string_view net = ComparedName(NetRecord(set, pin.netRecord).m_sName.View());
    if (net == firstNet) continue;
    findings.Add(FindingCode::kPinInTwoNets, [&] {
      return Finding{.message = "pin " + Quoted(pin.name) + " is in net " + Quoted(firstNet) +
                                " and in net " + Quoted(net),
                     .at = {PlaceOf(set, pin, findings), PlaceOf(set, first, findings)}};
    });
  }
}

void CheckNetsOfTraces(const CheckedSet& set, const Board& board, Collector& findings) {
  if (set.models.nets == nullptr || !findings.Trusts(ImportFile::kNeutral)) return;
  NameMatches matches(FindingCode::kNetNotInNeutral, "nets of the Traces file", "a net of the Neutral file");
  for (const Net& net : board.nets) {
    if (net.headers.empty()) continue;
    if (!net.netRecords.empty()) {
      matches.Match(net.name);
      continue;
    }
    matches.Miss(net.name, [&] {
      return Finding{.message = "the Neutral file has no net " + Quoted(net.name),
                     .at = {PlaceOfHeader(set, net.headers.front(), findings)}};
    });
  }
  std::move(matches).Finish(findings);
}

void CheckNetsOfNeutral(const CheckedSet& set, const Board& board, Collector& findings) {
  constexpr Index kPinsToConnect = 2;
  if (set.models.traces == nullptr || !findings.Trusts(ImportFile::kTraces)) return;
  NameMatches matches(FindingCode::kNetNotInTraces, "nets of the Neutral file", "a net of the Traces file");
  for (const Net& net : board.nets) {
    if (net.netRecords.empty() || net.pins.count < kPinsToConnect) continue;
    if (!net.headers.empty()) {
      matches.Match(net.name);
      continue;
    }
    matches.Miss(net.name, [&] {
      return Finding{.message = "net " + Quoted(net.name) + " has " + std::to_string(net.pins.count) +
                                " pins, but the Traces file does not have it",
                     .at = {PlaceOfNet(set, net.netRecords.front(), findings)}};
    });
  }
  std::move(matches).Finish(findings);
}

void CheckNamesOfNets(const CheckedSet& set, const Board& board, Collector& findings) {
  for (const Net& net : board.nets) {
    for (std::size_t i = 1; i < net.netRecords.size(); ++i) {
      findings.Add(FindingCode::kDuplicateNet, [&] {
        return Finding{.message = "net " + Quoted(net.name) + " is there more than once",
                       .at = {PlaceOfNet(set, net.netRecords[i], findings),
                              PlaceOfNet(set, net.netRecords.front(), findings)}};
      });
    }
  }
}

}  // namespace kestrin
