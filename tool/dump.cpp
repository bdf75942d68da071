#include "tool/dump.h"

#include "tool/import.h"
#include "tool/model_json.h"
#include "tool/report_error.h"
#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

void WriteDocument(JsonWriter& json, const CPC_KESTRIN_GET& session) {
  JsonObject document(json);
  document.Member("tech", session.m_pTech);
  for (const char* unread : {"components", "nets"}) document.Member(unread, nullptr);
  document.Member("geometry", session.m_pGeom);
  document.Member("traces", nullptr);
}

}  // namespace

int Dump(const ExportSet& files) {
  files.CheckReadable();
  CPC_KESTRIN_GET session;
  const std::string stopped = Import(session, files);
  JsonWriter json;
  WriteDocument(json, session);
  if (!json.Finish()) return ReportError("standard output: the document could not be written", kIncomplete);
  return stopped.empty() ? kSuccess : ReportError(stopped, kIncomplete);
}

}  // namespace kestrin::tool
