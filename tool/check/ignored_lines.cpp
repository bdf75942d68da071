#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <map>

#include "kestrin/base/characters.h"
#include "kestrin/framework/exceptions.h"
#include "kestrin/framework/stdio_file.h"
#include "kestrin/geometry/geometry_reader.h"
#include "kestrin/neutral/neutral_reader.h"
#include "kestrin/tech/tech_reader.h"
#include "kestrin/text/trim.h"
#include "kestrin/traces/traces_reader.h"
#include "tool/check/print.h"
#include "tool/readable_text.h"

namespace kestrin::tool {
namespace {

using LineCounts = std::map<std::string, std::int64_t>;

/// What a line is, by its first word.
std::string KeywordOf(std::string_view line) {
  constexpr std::size_t kMostShown = 40;
  line = Trimmed(line);
  if (line.empty()) return "blank lines";
  if (line.starts_with('#') && !line.starts_with("###")) return "comments (#)";
  const auto end = std::find_if(line.begin(), line.end(), [](char c) { return IsSpace(c) || c == '('; });
  const std::string_view word = line.substr(0, static_cast<std::size_t>(end - line.begin()));
  return ToTerminal(word.substr(0, kMostShown));
}

/// Counts the lines that a reader does not import.
template <class Reader>
void Count(Reader&& reader, const std::string& path, LineCounts& counts) {
  CStdioFile file;
  if (file.Open(path.c_str()) == 0) return;
  while (const auto line = file.ReadLine()) {
    try {
      if (reader.ReadLine(*line).GetKind() != LineOutcome::Kind::kImported) ++counts[KeywordOf(*line)];
    } catch (const CInvalidArgException&) {
      return;  // here the import ends
    }
  }
}

LineCounts NotImported(ImportFile file, const std::string& path) {
  LineCounts counts;
  CMTech tech;
  CMComps components;
  CMNetList nets;
  BoardSelection selection;
  CMGeom geometry;
  CMTraces traces;
  switch (file) {
    case ImportFile::kTech: Count(TechReader(tech), path, counts); break;
    case ImportFile::kNeutral: Count(NeutralReader(components, nets, selection), path, counts); break;
    case ImportFile::kGeometry: Count(GeometryReader(geometry), path, counts); break;
    case ImportFile::kTraces: Count(TracesReader(traces), path, counts); break;
  }
  return counts;
}

}  // namespace

void PrintIgnoredLines(const Imported& imported) {
  for (const ImportFile file : imported.FilesRead()) {
    std::printf("%s: not imported\n", PathToTerminal(imported.files.PathOf(file)).c_str());
    for (const auto& [keyword, count] : NotImported(file, imported.files.ReadablePathOf(file))) {
      std::printf("  %s: %" PRId64 " line%s\n", keyword.c_str(), count, count == 1 ? "" : "s");
    }
  }
}

}  // namespace kestrin::tool
