#include "kestrin/board/findings/line_kinds.h"

#include "kestrin/framework/exceptions.h"
#include "kestrin/framework/stdio_file.h"
#include "kestrin/geometry/geometry_reader.h"
#include "kestrin/neutral/neutral_reader.h"
#include "kestrin/tech/tech_reader.h"
#include "kestrin/text/trim.h"
#include "kestrin/traces/traces_reader.h"

namespace kestrin {
namespace {

template <class Reader>
bool Imports(Reader& reader, std::string_view line) {
  try {
    return reader.ReadLine(line).GetKind() == LineOutcome::Kind::kImported;
  } catch (const CInvalidArgException&) {
    return false;
  }
}

/// The four readers, with models that nobody needs.
class Readers {
 public:
  void Read(std::string_view line, LineKinds& kinds) {
    const auto count = [&](ImportFile file, auto& reader) {
      if (Imports(reader, line)) ++kinds.imported[static_cast<std::size_t>(file)];
    };
    ++kinds.lines;
    count(ImportFile::kTech, techReader_);
    count(ImportFile::kNeutral, neutralReader_);
    count(ImportFile::kGeometry, geometryReader_);
    count(ImportFile::kTraces, tracesReader_);
  }

 private:
  CMTech tech_;
  CMComps components_;
  CMNetList nets_;
  BoardSelection selection_;
  CMGeom geometry_;
  CMTraces traces_;
  TechReader techReader_{tech_};
  NeutralReader neutralReader_{components_, nets_, selection_};
  GeometryReader geometryReader_{geometry_};
  TracesReader tracesReader_{traces_};
};

}  // namespace

LineKinds CountLineKinds(const std::string& path) {
  LineKinds kinds;
  CStdioFile file;
  if (file.Open(path.c_str()) == 0) return kinds;
  Readers readers;
  while (const auto line = file.ReadLine()) {
    if (!Trimmed(*line).empty()) readers.Read(*line, kinds);
  }
  return kinds;
}

}  // namespace kestrin
