#include "tool/dump.h"

#include "tool/exit_status.h"
#include "tool/import.h"
#include "tool/model_json.h"
#include "tool/output.h"

namespace kestrin::tool {
namespace {

void WriteDocument(JsonWriter& json, const Imported& imported, const ExportSet& files) {
  const CPC_KESTRIN_GET& session = imported.session;
  JsonObject document(json);
  document.Member("tech", session.m_pTech);
  document.Member("components", session.m_pComps).Member("nets", session.m_pNetList);
  document.Member("geometry", session.m_pGeom).Member("traces", imported.Traces());
  if (imported.strictTraces) {
    document.Member("strict", *imported.strictTraces);
  } else if (files.IsStrict()) {
    document.Member("strict", nullptr);
  }
}

}  // namespace

int Dump(const ExportSet& files) {
  files.CheckReadable();
  Imported imported;
  const std::string stopped = Import(imported, files);
  JsonWriter json;
  WriteDocument(json, imported, files);
  json.Finish();
  return FinishOutput(stopped.empty() ? kSuccess : ReportError(stopped, kIncomplete));
}

}  // namespace kestrin::tool
