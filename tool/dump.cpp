#include "tool/dump.h"

#include "tool/exit_status.h"
#include "tool/import.h"
#include "tool/model_json.h"
#include "tool/output.h"

namespace kestrin::tool {
namespace {

void WriteDocument(JsonWriter& json, const Imported& imported) {
  const CPC_KESTRIN_GET& session = imported.session;
  JsonObject document(json);
  document.Member("tech", session.m_pTech);
  document.Member("components", session.m_pComps).Member("nets", session.m_pNetList);
  document.Member("geometry", session.m_pGeom).Member("traces", imported.Traces());
  if (imported.strictTraces) {
    document.Member("strict", *imported.strictTraces);
  } else if (imported.files.IsStrict()) {
    document.Member("strict", nullptr);
  }
}

}  // namespace

int Dump(const ExportSet& files) {
  Imported imported(files);
  const std::string stopped = Import(imported);
  JsonWriter json;
  WriteDocument(json, imported);
  json.Finish();
  return FinishOutput(stopped.empty() ? kSuccess : ReportError(stopped, kIncomplete));
}

}  // namespace kestrin::tool
