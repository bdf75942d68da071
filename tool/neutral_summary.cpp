#include "tool/neutral_summary.h"

#include <cinttypes>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "tool/ranking.h"
#include "tool/readable_text.h"
#include "tool/text_table.h"

namespace kestrin::tool {
namespace {

using Align = TextTable::Align;

void PrintPanel(const CMComps& components) {
  std::printf("\nPanel: %" PRId64 " placements\n", components.m_pPanels->GetSize());
  TextTable table({{"placement", Align::kRight}, {"board"}});
  std::int64_t number = 0;
  for (const CMCompsPanel* panel : *components.m_pPanels) {
    table.AddRow({std::to_string(++number), ToTerminal(panel->m_sBoardName.View())});
  }
  table.Print();
}

void PrintSelection(const CMComps& components, const BoardSelection& selection) {
  std::printf("Imported: nets section %" PRId64 " of %" PRId64 ", component section %" PRId64 " of %" PRId64
              ", ",
              selection.ordinal, selection.netsSections, selection.ordinal, selection.componentSections);
  if (selection.placement < 0) {
    std::puts("by default: no placement selects another");
    return;
  }
  const CMCompsPanel& chosen = *components.m_pPanels->GetAt(selection.placement);
  std::printf("selected by placement %" PRId64 " (%s, value 6 is %d)\n", selection.placement + 1,
              ToTerminal(chosen.m_sBoardName.View()).c_str(), chosen.m_nValue6);
}

void PrintComponents(const CMComps& components) {
  std::map<std::string_view, std::int64_t> counts;
  for (const CMCompsInfo* component : *components.m_pInfos) ++counts[component->m_Data.m_sValue4.View()];
  std::vector<Ranked> rows;
  rows.reserve(counts.size());
  for (const auto& [geometry, count] : counts) rows.push_back({ToTerminal(geometry), count});
  std::printf("\nComponents: %" PRId64 "\n", components.m_pInfos->GetSize());
  PrintGreatest(rows, "geometry", "components");
}

void PrintNets(const CMNetList& nets) {
  std::int64_t pins = 0;
  std::vector<Ranked> rows;
  for (const CMNetInfo* net : *nets.m_pNets) {
    pins += net->m_pPins->GetSize();
    rows.push_back({ToTerminal(net->m_sName.View()), net->m_pPins->GetSize()});
  }
  std::printf("\nNets: %zu with %" PRId64 " pins\n", rows.size(), pins);
  PrintGreatest(rows, "net", "pins");
}

}  // namespace

void PrintNeutral(const CMComps& components, const CMNetList& nets, const BoardSelection& selection) {
  std::printf("\nUnit of the Neutral file: %s\n",
              components.m_sUnits.IsEmpty() ? "not given" : ToTerminal(components.m_sUnits.View()).c_str());
  PrintPanel(components);
  PrintSelection(components, selection);
  PrintComponents(components);
  PrintNets(nets);
}

}  // namespace kestrin::tool
