#include "tool/dump.h"

#include "tool/exit_status.h"
#include "tool/json_writer.h"
#include "tool/model_document.h"
#include "tool/output.h"

namespace kestrin::tool {

void WriteModels(DocumentWriter& document, const Imported& imported) {
  const CPC_KESTRIN_GET& session = imported.session;
  DocumentObject models(document);
  models.Member("tech", session.m_pTech);
  models.Member("components", session.m_pComps).Member("nets", session.m_pNetList);
  models.Member("geometry", session.m_pGeom).Member("traces", imported.Traces());
  if (imported.strictTraces) {
    models.Member("strict", *imported.strictTraces);
  } else if (imported.files.IsStrict()) {
    models.Member("strict", nullptr);
  }
}

int Dump(const ExportSet& files) {
  Imported imported(files);
  const std::string stopped = Import(imported);
  JsonWriter json;
  WriteModels(json, imported);
  json.Finish();
  return FinishOutput(stopped.empty() ? kSuccess : ReportError(stopped, kIncomplete));
}

}  // namespace kestrin::tool
