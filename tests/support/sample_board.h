#pragma once

#include <string>

#include "kestrin/session/import_session.h"
#include "support/described.h"

namespace kestrin::test {

/// A file of the sample board: "tech", "neutral", "geometry" or "traces".
inline std::string BoardFile(const std::string& kind) { return KESTRIN_EXAMPLES "/board/board." + kind; }

/// Imports the four files of a folder.
inline void ImportBoard(CPC_KESTRIN_GET& session, const std::string& folder = KESTRIN_EXAMPLES "/board") {
  session.vSetTechFilePath(folder + "/board.tech");
  session.vSetNeutralFilePath(folder + "/board.neutral");
  session.vSetGeomFilePath(folder + "/board.geometry");
  session.vSetTraceFilePath(folder + "/board.traces");
  session.vParse();
}

/// A description of everything that a session has read.
inline std::string DescribedModels(const CPC_KESTRIN_GET& session) {
  std::string text;
  const auto add = [&text](const char* kind, const auto* model) {
    if (model != nullptr) text += std::string(kind) + " " + Described(*model) + "\n";
  };
  add("tech", session.m_pTech);
  add("components", session.m_pComps);
  add("nets", session.m_pNetList);
  add("geometry", session.m_pGeom);
  add("traces", session.m_pTraces);
  return text;
}

}  // namespace kestrin::test
