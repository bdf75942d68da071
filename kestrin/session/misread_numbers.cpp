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
  Search(ImportFile file, std::size_t most, std::size_t& count) : file_(file), most_(most), count_(count) {
    count_ = 0;
  }

  /// Reads the lines as an import does, which alone knows what becomes of each.
  template <class Reader>
  std::vector<MisreadNumber> In(CStdioFile& lines, Reader reader) {
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
    if (count_++ >= most_) return;
    found_.push_back({file_, line, position, std::string(text.substr(0, FileReport::kKeptBytes)),
                      kind != NumberKind::kDecimal});
  }

  ImportFile file_;
  std::size_t most_;
  std::size_t& count_;
  std::vector<MisreadNumber> found_;
};

}  // namespace

std::vector<MisreadNumber> FindMisreadNumbers(ImportFile file, const char* path, std::size_t most,
                                              std::size_t& count) {
  Search search(file, most, count);
  CStdioFile lines;
  if (lines.Open(path) == 0) return {};
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
  CMTraces traces;
  return search.In(lines, TracesReader(traces));
}

}  // namespace kestrin
