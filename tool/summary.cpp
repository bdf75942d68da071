#include "tool/summary.h"

#include <cstdio>
#include <string>

#include "kestrin/tech/tech_model.h"
#include "tool/geom_summary.h"
#include "tool/import.h"
#include "tool/readable_text.h"
#include "tool/report_error.h"
#include "tool/text_table.h"
#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

using Align = TextTable::Align;

std::string Milliseconds(std::chrono::nanoseconds duration) {
  CString text;
  text.Format("%.1f ms", std::chrono::duration<double, std::milli>(duration).count());
  return text.GetString();
}

void PrintFiles(const ImportReport& report) {
  std::puts("Files");
  TextTable table({{"file"},
                   {"lines", Align::kRight},
                   {"imported", Align::kRight},
                   {"ignored", Align::kRight},
                   {"skipped", Align::kRight},
                   {"time", Align::kRight},
                   {"path"}});
  for (const FileKind& kind : kFileKinds) {
    const FileReport& file = report.Of(kind.file);
    if (file.end == ReadingEnd::kNotRead) continue;
    table.AddRow({kind.name, std::to_string(file.linesRead), std::to_string(file.Imported()),
                  std::to_string(file.Ignored()), std::to_string(file.Skipped()), Milliseconds(file.duration),
                  file.path});
  }
  table.Print();
}

std::string Joined(const CStringArray& texts) {
  std::string joined;
  for (const CString& text : texts) joined += (joined.empty() ? "" : ", ") + ToTerminal(text.View());
  return joined;
}

void PrintTech(const CMTech& tech) {
  std::printf("\nStack-up: %lld physical layers\n", static_cast<long long>(tech.m_pStackupArray->GetSize()));
  TextTable layers({{"number", Align::kRight}, {"physical layer"}, {"logical layers"}});
  for (const CMTechStackUpOrder* layer : *tech.m_pStackupArray) {
    layers.AddRow({std::to_string(layer->m_nPhysicalLayerNumber),
                   ToTerminal(layer->m_sPhysicalLayerName.View()), Joined(layer->m_arrLogicalLayerNames)});
  }
  layers.Print();

  std::printf("\nVia rules: %lld\n", static_cast<long long>(tech.m_pViaArray->GetSize()));
  TextTable vias({{"first argument"}, {"second argument"}, {"last argument"}});
  for (const CMTechVia* via : *tech.m_pViaArray) {
    vias.AddRow({ToTerminal(via->m_sArg1.View()), ToTerminal(via->m_sArg2.View()),
                 ToTerminal(via->m_sArgLast.View())});
  }
  vias.Print();
}

}  // namespace

int Summary(const ExportSet& files) {
  files.CheckReadable();
  CPC_KESTRIN_GET session;
  const std::string stopped = Import(session, files);
  PrintFiles(session.GetReport());
  if (const CMTech* tech = session.GetTech()) PrintTech(*tech);
  if (const CMGeom* geom = session.GetGeom()) PrintGeometry(*geom);
  return stopped.empty() ? kSuccess : ReportError(stopped, kIncomplete);
}

}  // namespace kestrin::tool
