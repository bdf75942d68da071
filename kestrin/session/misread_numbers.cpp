#include "kestrin/session/misread_numbers.h"

#include <string_view>
#include <utility>

#include "kestrin/framework/exceptions.h"
#include "kestrin/framework/stdio_file.h"
#include "kestrin/geometry/geometry_reader.h"
#include "kestrin/neutral/neutral_reader.h"
#include "kestrin/tech/tech_reader.h"
#include "kestrin/text/value_kinds.h"
#include "kestrin/traces/traces_reader.h"

namespace kestrin {
namespace {

/// Keeps the first of the values and counts all.
class Search {
 public:
  Search(ImportFile file, std::size_t most) : file_(file), most_(most) {}

  /// Reads the lines as an import does, which alone knows what becomes of each.
  template <class Reader>
  MisreadNumbers In(CStdioFile& lines, Reader reader) {
    std::int64_t number = 0;
    const NumberAction add = [&](int position, std::string_view text, NumberKind kind) {
      Add(number, position, text, kind);
    };
    try {
      while (const auto line = lines.ReadLine()) {
        ++number;
        if (reader.ReadLine(*line) == LineOutcome::Imported()) reader.ForEachMisreadNumber(*line, add);
      }
    } catch (const CInvalidArgException&) {
      // The line lacks a value. An import ends there.
    }
    return std::move(found_);
  }

 private:
  void Add(std::int64_t line, int position, std::string_view text, NumberKind kind) {
    if (found_.count++ >= most_) return;
    found_.first.push_back({file_, line, position, std::string(text.substr(0, FileReport::kKeptBytes)),
                            kind != NumberKind::kDecimal});
  }

  ImportFile file_;
  std::size_t most_;
  MisreadNumbers found_;
};

/// Whether a line of a Traces file may have a misread number if it is imported. Few files have such a line,
/// and this is twice as fast as reading one with a model.
bool MayMisread(const std::string& path) {
  CStdioFile lines;
  if (lines.Open(path.c_str()) == 0) return false;
  CMTraces traces;
  TracesReader reader(traces);
  bool mayMisread = false;
  const NumberAction note = [&](int, std::string_view, NumberKind) { mayMisread = true; };
  while (const auto line = lines.ReadLine()) {
    reader.CutLine(*line);
    reader.ForEachMisreadNumber(*line, note);
    if (mayMisread) break;
  }
  return mayMisread;
}

}  // namespace

MisreadNumbers FindMisreadNumbers(ImportFile file, const std::string& path, std::size_t most) {
  Search search(file, most);
  CStdioFile lines;
  if (lines.Open(path.c_str()) == 0) return {};
  switch (file) {
    case ImportFile::kTech: {
      CMTech tech;
      return search.In(lines, TechReader(tech));
    }
    case ImportFile::kNeutral: {
      CMComps components;
      CMNetList nets;
      BoardSelection selection;
      return search.In(lines, NeutralReader(components, nets, selection));
    }
    case ImportFile::kGeometry: {
      CMGeom geom;
      return search.In(lines, GeometryReader(geom));
    }
    case ImportFile::kTraces: break;
  }
  if (!MayMisread(path)) return {};
  CMTraces traces;
  return search.In(lines, TracesReader(traces));
}

}  // namespace kestrin
