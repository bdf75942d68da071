#include "tool/traces_summary.h"

#include <cstdint>
#include <cstdio>
#include <string>

#include "tool/readable_text.h"
#include "tool/text_table.h"

namespace kestrin::tool {
namespace {

using Align = TextTable::Align;

struct NetCounts {
  void Add(const NetCounts& other) {
    wires += other.wires;
    incomplete += other.incomplete;
    antennas += other.antennas;
    segments += other.segments;
  }

  std::int64_t wires = 0;
  std::int64_t incomplete = 0;
  std::int64_t antennas = 0;
  std::int64_t segments = 0;
};

template <class Record>
std::int64_t SegmentsOf(const RecordArray<Record>* records) {
  std::int64_t count = 0;
  for (const Record* record : *records) count += record->m_pSegArray->GetSize();
  return count;
}

NetCounts CountsOf(const CMTracesNET& net) {
  return {.wires = net.m_pWirArray->GetSize(),
          .incomplete = net.m_pIncArray->GetSize(),
          .antennas = net.m_pAntWirArray->GetSize() + net.m_pAntIncArray->GetSize(),
          .segments = SegmentsOf(net.m_pWirArray) + SegmentsOf(net.m_pIncArray) +
                      SegmentsOf(net.m_pAntWirArray) + SegmentsOf(net.m_pAntIncArray)};
}

struct FillCounts {
  std::int64_t vertices = 0;
  std::int64_t areas = 0;
  std::int64_t islands = 0;
};

template <class Record>
std::int64_t VerticesOf(const RecordArray<Record>* records) {
  std::int64_t count = 0;
  for (const Record* record : *records) count += record->m_pVerArray->GetSize();
  return count;
}

FillCounts CountsOf(const RecordArray<CMTracesFIL>* fills) {
  FillCounts counts{.vertices = VerticesOf(fills)};
  for (const CMTracesFIL* fill : *fills) {
    counts.vertices += VerticesOf(fill->m_pAreArray) + VerticesOf(fill->m_pArsArray) +
                       VerticesOf(fill->m_pIslArray) + VerticesOf(fill->m_pIssArray);
    counts.areas += fill->m_pAreArray->GetSize() + fill->m_pArsArray->GetSize();
    counts.islands += fill->m_pIslArray->GetSize() + fill->m_pIssArray->GetSize();
  }
  return counts;
}

void PrintCounts(const CMTraces& traces, const NetCounts& nets) {
  const FillCounts fills = CountsOf(traces.m_pFilArray);
  std::printf("\nTraces: units %s\n", ToTerminal(traces.m_sUnits.View()).c_str());
  TextTable table({{"records"}, {"count", Align::kRight}});
  const auto add = [&](const char* what, std::int64_t count) { table.AddRow({what, std::to_string(count)}); };
  add("nets", traces.m_pNetArray->GetSize());
  add("wires", nets.wires);
  add("incomplete connections", nets.incomplete);
  add("antennas", nets.antennas);
  add("segments", nets.segments);
  add("fills", traces.m_pFilArray->GetSize());
  add("areas", fills.areas);
  add("islands", fills.islands);
  add("vertices", fills.vertices);
  table.Print();
}

}  // namespace

void PrintTraces(const CMTraces& traces) {
  NetCounts all;
  for (const CMTracesNET* net : *traces.m_pNetArray) all.Add(CountsOf(*net));
  PrintCounts(traces, all);
}

}  // namespace kestrin::tool
