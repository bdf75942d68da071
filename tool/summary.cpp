#include "tool/summary.h"

#include <cstdio>
#include <string>

#include "tool/board.h"
#include "tool/board_summary.h"
#include "tool/exit_status.h"
#include "tool/geometry_summary.h"
#include "tool/import.h"
#include "tool/json_writer.h"
#include "tool/neutral_summary.h"
#include "tool/output.h"
#include "tool/readable_text.h"
#include "tool/summary_document.h"
#include "tool/tech_summary.h"
#include "tool/text_table.h"
#include "tool/traces_summary.h"

namespace kestrin::tool {
namespace {

using Align = TextTable::Align;

std::string Milliseconds(std::chrono::nanoseconds duration) {
  CString text;
  text.Format("%.1f ms", std::chrono::duration<double, std::milli>(duration).count());
  return text.GetString();
}

void PrintFiles(const Imported& imported) {
  std::puts("Files");
  TextTable table({{"file"},
                   {"lines", Align::kRight},
                   {"imported", Align::kRight},
                   {"ignored", Align::kRight},
                   {"skipped", Align::kRight},
                   {"time", Align::kRight},
                   {"path"}});
  for (const FileKind& kind : kFileKinds) {
    const FileReport& file = imported.session.GetReport().Of(kind.file);
    if (file.end == ReadingEnd::kNotRead) continue;
    table.AddRow({kind.name, std::to_string(file.linesRead), std::to_string(file.Imported()),
                  std::to_string(file.Ignored()), std::to_string(file.Skipped()), Milliseconds(file.duration),
                  PathToTerminal(imported.files.PathOf(kind.file))});
  }
  if (const auto& strict = imported.strictTraces) {
    table.AddRow({"Traces", std::to_string(strict->parse.line), "", "", "", Milliseconds(strict->duration),
                  PathToTerminal(imported.files.PathOf(ImportFile::kTraces))});
  }
  table.Print();
  if (imported.strictTraces) {
    std::printf("\nStrict parse of the Traces file: %s\n", Verdict(imported.strictTraces->parse).c_str());
  }
}

void PrintTables(const Imported& imported) {
  const CPC_KESTRIN_GET& session = imported.session;
  PrintFiles(imported);
  if (const CMTech* tech = session.GetTech()) PrintTech(*tech);
  if (session.GetComps() != nullptr) {
    PrintNeutral(*session.GetComps(), *session.GetNetList(), session.GetReport().boardSelection);
  }
  if (const CMGeom* geom = session.GetGeom()) PrintGeometry(*geom);
  if (const CMTraces* traces = imported.Traces()) PrintTraces(*traces);
  PrintBoardSummary(BoardOf(imported));
}

/// Prints a line of JSON, in one piece: several processes may write to the same pipe or file.
void PrintLine(const Imported& imported) {
  constexpr std::size_t kLongest = std::size_t{1} << 16;
  std::setvbuf(stdout, nullptr, _IOFBF, kLongest);
  JsonLineWriter json;
  WriteSummary(json, imported, BoardOf(imported));
  json.Finish();
}

}  // namespace

int Summary(const ExportSet& files, const std::string& format) {
  Imported imported(files);
  const std::string stopped = Import(imported);
  format == "json" ? PrintLine(imported) : PrintTables(imported);
  return FinishOutput(stopped.empty() ? kSuccess : ReportError(stopped, kIncomplete));
}

}  // namespace kestrin::tool
