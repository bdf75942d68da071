#pragma once

#include <string>

#include "kestrin/session/import_session.h"

namespace kestrin::test {

/// A file of the sample board: "tech", "neutral", "geometry" or "traces".
inline std::string BoardFile(const std::string& kind) { return KESTRIN_EXAMPLES "/board/board." + kind; }

inline void ImportBoard(CPC_KESTRIN_GET& session) {
  session.vSetTechFilePath(BoardFile("tech"));
  session.vSetNeutralFilePath(BoardFile("neutral"));
  session.vSetGeomFilePath(BoardFile("geometry"));
  session.vSetTraceFilePath(BoardFile("traces"));
  session.vParse();
}

}  // namespace kestrin::test
