// What the models hold, counted as the yardsticks count theirs.

#include "bench/kestrin_works.h"

namespace kestrin::bench {
namespace {

std::uint64_t Length(const CString& text) { return text.View().size(); }

template <class LIST>
std::uint64_t Records(const LIST& list) {
  return static_cast<std::uint64_t>(list->GetSize());
}

void Add(Tally& tally, const RecordList<CMTracesSEG>& segments) {
  tally.records += 1 + Records(segments);
  for (const auto* segment : *segments) {
    tally.coordinates += segment->m_dValue1;
    tally.coordinates += segment->m_dValue2;
    tally.characters += Length(segment->m_sValue4) + Length(segment->m_sValue5);
  }
}

void Add(Tally& tally, const RecordList<CMTracesVER>& vertices) {
  tally.records += 1 + Records(vertices);
  for (const auto* vertex : *vertices) {
    tally.coordinates += vertex->m_dX;
    tally.coordinates += vertex->m_dY;
  }
}

}  // namespace

Tally CountTraces(const CMTraces& traces) {
  Tally tally;
  tally.records = Records(traces.m_pXrfArray) + Records(traces.m_pTttArray) + Records(traces.m_pNetArray);
  for (const auto* net : *traces.m_pNetArray) {
    tally.characters += Length(net->m_sName);
    tally.records += Records(net->m_pGuiArray);
    for (const auto* wire : *net->m_pWirArray) Add(tally, wire->m_pSegArray);
    for (const auto* incomplete : *net->m_pIncArray) Add(tally, incomplete->m_pSegArray);
    for (const auto* antenna : *net->m_pAntWirArray) Add(tally, antenna->m_pSegArray);
  }
  for (const auto* fill : *traces.m_pFilArray) {
    tally.records += Records(fill->m_pTtiArray);
    Add(tally, fill->m_pVerArray);
    for (const auto* area : *fill->m_pAreArray) Add(tally, area->m_pVerArray);
    for (const auto* island : *fill->m_pIslArray) Add(tally, island->m_pVerArray);
  }
  return tally;
}

Tally CountGeometry(const CMGeom&) { return {}; }
Tally CountNeutral(const CMComps&, const CMNetList&) { return {}; }
Tally CountTech(const CMTech&) { return {}; }

}  // namespace kestrin::bench
