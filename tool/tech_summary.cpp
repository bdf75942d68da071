#include "tool/tech_summary.h"

#include <cinttypes>
#include <cstdio>
#include <string>

#include "tool/readable_text.h"
#include "tool/text_table.h"

namespace kestrin::tool {
namespace {

using Align = TextTable::Align;

std::string Joined(const CStringArray& texts) {
  std::string joined;
  for (const CString& text : texts) joined += (joined.empty() ? "" : ", ") + ToTerminal(text.View());
  return joined;
}

}  // namespace

void PrintTech(const CMTech& tech) {
  std::printf("\nStack-up: %" PRId64 " physical layers\n", tech.m_pStackupArray->GetSize());
  TextTable layers({{"number", Align::kRight}, {"physical layer"}, {"logical layers"}});
  for (const CMTechStackUpOrder* layer : *tech.m_pStackupArray) {
    layers.AddRow({std::to_string(layer->m_nPhysicalLayerNumber),
                   ToTerminal(layer->m_sPhysicalLayerName.View()), Joined(layer->m_arrLogicalLayerNames)});
  }
  layers.Print();

  std::printf("\nVia rules: %" PRId64 "\n", tech.m_pViaArray->GetSize());
  TextTable vias({{"first argument"}, {"second argument"}, {"last argument"}});
  for (const CMTechVia* via : *tech.m_pViaArray) {
    vias.AddRow({ToTerminal(via->m_sArg1.View()), ToTerminal(via->m_sArg2.View()),
                 ToTerminal(via->m_sArgLast.View())});
  }
  vias.Print();
}

}  // namespace kestrin::tool
